// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/help_window.h"

#include "ui/qt/parts/layouts.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QShortcut>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize = {760, 640};

}  // namespace

QString manualFolder() {
  const QDir folder(QCoreApplication::applicationDirPath() + u"/../share/tallywick/manual"_s);
  return folder.exists(u"index.html"_s) ? folder.canonicalPath() : QString();
}

void HelpWindow::showPage(const QString& page) {
  static QPointer<HelpWindow> open;
  if (open == nullptr) open = new HelpWindow;
  open->goTo(page);
  open->show();
  open->raise();
  open->activateWindow();
}

HelpWindow::HelpWindow() : text_(new QTextBrowser) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(u"Tallywick Help"_s);
  text_->setOpenExternalLinks(true);
  text_->setAccessibleName(u"Manual"_s);
  text_->document()->setDocumentMargin(theme::pageMargin);
  setCentralWidget(text_);
  auto* bar = addToolBar(u"Pages"_s);
  bar->setMovable(false);
  bar->addAction(u"&Contents"_s, text_, &QTextBrowser::home);
  auto* back = bar->addAction(u"&Back"_s, text_, &QTextBrowser::backward);
  back->setShortcut(QKeySequence::Back);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  back->setEnabled(false);
  auto* close = new QShortcut(Qt::Key_Escape, this);
  connect(close, &QShortcut::activated, this, &QWidget::close);
  resize(usualSize);
}

void HelpWindow::goTo(const QString& page) {
  const QDir folder(manualFolder());
  if (manualFolder().isEmpty()) {
    text_->setPlainText(u"The manual is not installed."_s);
    return;
  }
  if (text_->source().isEmpty()) text_->setSource(QUrl::fromLocalFile(folder.filePath(u"index.html"_s)));
  if (folder.exists(page)) text_->setSource(QUrl::fromLocalFile(folder.filePath(page)));
}

}  // namespace tallywick
