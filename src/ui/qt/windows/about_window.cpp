// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/about_window.h"

#include "app/small_windows.h"
#include "ui/qt/parts/layouts.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tallywick {

using namespace Qt::StringLiterals;

AboutWindow::AboutWindow(AboutForm& form, const Desk& desk) : FormWindow(form, desk) {
  setWindowFlags(Qt::Dialog);
  auto* page = new QWidget;
  setCentralWidget(page);
  auto* picture = new QLabel(page);
  picture->setPixmap(QApplication::windowIcon().pixmap(8 * theme::gap));
  auto* title = new QLabel(page);
  title->setFont(theme::headingFont(title->font()));
  auto* version = new QLabel(page);
  auto* description = new QLabel(page);
  description->setWordWrap(true);
  auto* ok = new QPushButton(page);
  ok->setDefault(true);
  auto* systemInformation = new QPushButton(page);

  auto* texts = new QVBoxLayout;
  texts->setSpacing(theme::gap);
  for (QLabel* label : {title, version, description}) texts->addWidget(label);
  texts->addStretch();
  auto* top = new QHBoxLayout;
  top->setSpacing(theme::pageMargin);
  top->addWidget(picture, 0, Qt::AlignTop);
  top->addLayout(texts, 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(theme::gap);
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(systemInformation);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(theme::pageMargin, theme::pageMargin, theme::pageMargin, theme::pageMargin);
  column->setSpacing(theme::pageMargin);
  column->addLayout(top, 1);
  column->addLayout(buttons);
  binding().bind(form.lblTitle, *title);
  binding().bind(form.lblVersion, *version);
  binding().bind(form.lblDescription, *description);
  binding().bind(form.cmdOK, *ok, withMnemonic('O'));
  binding().bind(form.cmdSysInfo, *systemInformation, withMnemonic('S'));
  ok->setFocus();
  const int width = sentencesWidth(*this, 48 * theme::gap);
  resize(width, std::max(22 * theme::gap, column->heightForWidth(width)));
  answerHelpKey();
}

QString AboutWindow::helpPage() const {
  return u"index.html"_s;
}

void AboutWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) close();
  FormWindow::keyPressEvent(event);
}

}  // namespace tallywick
