// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/layout_memory.h"

#include "ui/qt/parts/layouts.h"

#include <QSettings>
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

}  // namespace

void restoreLayout(QWidget& window, QSize usual) {
  const QSettings settings;
  const QSize last = settings.value(keyOf(window, u"size"_s), usual).toSize();
  resizeOnScreen(window, last);
  restoreSplitters(window, window);
}

void restoreSplitters(const QWidget& window, const QWidget& part) {
  const QSettings settings;
  for (QSplitter* splitter : part.findChildren<QSplitter*>()) {
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
