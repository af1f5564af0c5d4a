// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program/steps.h"

#include "core/file_names.h"
#include "core/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPixmap>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QWindow>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// In which what a step changed is laid out and painted, one layout in another after the other.
constexpr int betweenSteps = 50;

[[noreturn]] void fail(const QString& what) {
  throw std::runtime_error(what.toStdString());
}

/// The window in front; where a closed one has left none, the one that was opened last.
QWidget& front() {
  QWidget* window = QApplication::activeModalWidget();
  if (window == nullptr) window = QApplication::activeWindow();
  if (window != nullptr) return *window;
  for (const QWindow* opened : QGuiApplication::topLevelWindows()) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->isVisible() && widget->windowHandle() == opened) window = widget;
    }
  }
  if (window == nullptr) fail(u"no window is open"_s);
  return *window;
}

/// A menu entry may show its keys behind a tab.
bool isCalled(const QString& text, const QString& name) {
  return text.section(u'\t', 0, 0).remove(u'&') == name;
}

/// The first one in the window in front that can be seen and used and has that name, or null.
template <typename Widget>
Widget* find(const QString& name) {
  for (auto* widget : front().findChildren<Widget*>()) {
    bool isNamed = widget->objectName() == name || widget->accessibleName() == name;
    if (const auto* button = qobject_cast<QAbstractButton*>(widget))
      isNamed = isNamed || isCalled(button->text(), name);
    if (isNamed && widget->isVisible() && widget->isEnabled()) return widget;
  }
  return nullptr;
}

bool showTab(const QString& name) {
  for (auto* tabs : front().findChildren<QTabWidget*>()) {
    for (int i = 0; tabs->isVisible() && i < tabs->count(); ++i) {
      if (!isCalled(tabs->tabText(i), name)) continue;
      tabs->setCurrentIndex(i);
      return true;
    }
  }
  return false;
}

bool trigger(const QString& name) {
  for (auto* action : front().findChildren<QAction*>()) {
    const bool isNamed = action->objectName() == name || isCalled(action->text(), name);
    if (!isNamed || !action->isEnabled()) continue;
    action->trigger();
    return true;
  }
  return false;
}

void press(const QString& name) {
  if (auto* button = find<QAbstractButton>(name)) {
    button->click();
  } else if (!showTab(name) && !trigger(name)) {
    fail(u"nothing to press is called %1"_s.arg(name));
  }
}

void enter(QLineEdit& field, const QString& text) {
  field.selectAll();
  field.insert(text);
}

void type(const QString& name, const QString& text) {
  if (auto* choice = find<QComboBox>(name)) {
    if (choice->isEditable())
      enter(*choice->lineEdit(), text);
    else
      choice->setCurrentText(text);
  } else if (auto* field = find<QLineEdit>(name)) {
    enter(*field, text);
  } else {
    fail(u"no field is called %1"_s.arg(name));
  }
}

void choose(const QString& name, int line) {
  auto* list = find<QAbstractItemView>(name);
  if (list == nullptr) fail(u"no list is called %1"_s.arg(name));
  const QModelIndex index = list->model()->index(line, 0);
  if (!index.isValid()) fail(u"%1 has no line %2"_s.arg(name).arg(line));
  list->setCurrentIndex(index);
}

void resizeTo(const QString& size) {
  const QStringList sides = size.split(u'x');
  if (sides.size() != 2) fail(u"%1 is not a size such as 1024x768"_s.arg(size));
  front().resize(sides[0].toInt(), sides[1].toInt());
}

void savePicture(const QString& file) {
  if (!front().grab().save(file)) fail(u"%1 cannot be written"_s.arg(file));
}

}  // namespace

void takeStep(const QString& line) {
  const QString verb = line.section(u' ', 0, 0);
  const QString rest = line.section(u' ', 1).trimmed();
  const QString name = rest.section(u": "_s, 0, 0);
  const QString text = rest.section(u": "_s, 1);
  if (verb == u"press"_s) return press(rest);
  if (verb == u"type"_s) return type(name, text);
  if (verb == u"choose"_s) return choose(name, text.toInt());
  if (verb == u"size"_s) return resizeTo(rest);
  if (verb == u"picture"_s) return savePicture(rest);
  if (verb != u"close"_s) fail(u"\"%1\" is no step"_s.arg(verb));
  front().close();
}

Steps::Steps(const std::string& file) {
  std::ifstream lines(pathOf(file));
  if (!lines) throw std::runtime_error(join(file, " cannot be read"));
  for (std::string line; std::getline(lines, line);) lines_.push_back(QString::fromStdString(line).trimmed());
}

void Steps::start() {
  QTimer::singleShot(betweenSteps, qApp, [this] { takeNext(); });
}

void Steps::takeNext() {
  while (next_ < lines_.size() && (lines_[next_].isEmpty() || lines_[next_].startsWith(u'#'))) ++next_;
  if (next_ == lines_.size() || failed_) return QCoreApplication::exit(failed_ ? 1 : 0);
  const std::size_t number = ++next_;
  // A dialog that this step opens has a loop of its own, in which the next step comes.
  start();
  try {
    takeStep(lines_[number - 1]);
  } catch (const std::exception& error) {
    std::cerr << "tallywick: step " << number << ": " << error.what() << '\n';
    failed_ = true;
  }
}

}  // namespace tallywick
