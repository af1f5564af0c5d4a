// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/splash_window.h"

#include "app/small_windows.h"
#include "ui/qt/parts/theme.h"

#include <QApplication>
#include <QFrame>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QLabel* centredLabel(QWidget* parent, qreal sizeFactor) {
  auto* label = new QLabel(parent);
  QFont font = theme::headingFont(label->font());
  font.setPointSizeF(font.pointSizeF() * sizeFactor);
  label->setFont(font);
  label->setAlignment(Qt::AlignCenter);
  return label;
}

}  // namespace

SplashWindow::SplashWindow(SplashForm& form, const Desk& desk) : FormWindow(form, desk) {
  setWindowFlags(Qt::SplashScreen);
  auto* frame = new QFrame;
  frame->setFrameShape(QFrame::StyledPanel);
  setCentralWidget(frame);
  auto* picture = new QLabel(frame);
  picture->setPixmap(QApplication::windowIcon().pixmap(12 * theme::gap));
  picture->setAlignment(Qt::AlignCenter);
  auto* name = centredLabel(frame, 2.4);
  auto* version = centredLabel(frame, 1.0);

  auto* column = new QVBoxLayout(frame);
  column->setSpacing(theme::gap);
  column->setContentsMargins(6 * theme::gap, 4 * theme::gap, 6 * theme::gap, 4 * theme::gap);
  column->addWidget(picture);
  column->addWidget(name);
  column->addWidget(version);
  resize(48 * theme::gap, 32 * theme::gap);

  frame_ = frame;
  frame->installEventFilter(this);
  binding().bind(form.Frame1, *frame);
  binding().bind(form.lblProductName, *name);
  binding().bind(form.lblVersion, *version);
}

QString SplashWindow::helpPage() const {
  return u"index.html"_s;
}

// The main window comes by the timer alone: closing the splash before it fires ends the program.
void SplashWindow::keyPressEvent(QKeyEvent*) {
  close();
}

bool SplashWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == frame_ && event->type() == QEvent::MouseButtonRelease) close();
  return FormWindow::eventFilter(watched, event);
}

}  // namespace tallywick
