// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/layout_memory.h"

#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStyle>
#include <QWidget>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QString keyOf(const QWidget& window, const QString& what) {
  return u"windows/%1/%2"_s.arg(window.objectName(), what);
}

QString nameOf(const QSplitter& splitter) {
  return splitter.property("layoutName").toString();
}

/// Room for a frame that the window manager draws.
QSize largestOn(const QScreen& screen, const QWidget& window) {
  const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
  return screen.availableGeometry().size() - QSize(0, title);
}

}  // namespace

void restoreLayout(QWidget& window, QSize usual) {
  const QSettings settings;
  const QSize last = settings.value(keyOf(window, u"size"_s), usual).toSize();
  window.resize(last.boundedTo(largestOn(*window.screen(), window)));
  for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
    splitter->restoreState(settings.value(keyOf(window, nameOf(*splitter))).toByteArray());
  }
}

void saveLayout(const QWidget& window) {
  QSettings settings;
  if (!window.isMaximized() && !window.isFullScreen())
    settings.setValue(keyOf(window, u"size"_s), window.size());
  for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
    settings.setValue(keyOf(window, nameOf(*splitter)), splitter->saveState());
  }
}

}  // namespace tallywick
