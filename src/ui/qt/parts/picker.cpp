// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/picker.h"

#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"

#include <QCompleter>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStandardItemModel>

namespace tallywick {

namespace {

constexpr int shownLines = 15;
/// A draw line with its margins.
constexpr int lineLength = 36;

/// Proposes the lines that contain what was typed so far.
QCompleter* lineFinder(QAbstractItemModel* lines, QWidget* parent) {
  auto* finder = new QCompleter(lines, parent);
  finder->setCompletionRole(Qt::DisplayRole);
  finder->setFilterMode(Qt::MatchContains);
  finder->setMaxVisibleItems(shownLines);
  auto* popup = new LineList;
  popup->setSelectionMode(QAbstractItemView::SingleSelection);
  popup->hideHeader();
  finder->setPopup(popup);
  return finder;
}

}  // namespace

Picker::Picker(const TextLines& lines, QWidget* parent)
    : QComboBox(parent), lines_(new LineListModel(lines, this)), list_(new LineList(this)) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setMaxVisibleItems(shownLines);
  setMinimumContentsLength(lineLength);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  new ListFace(this);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->hideHeader();
  setView(list_);
  setModel(lines_);
  setCompleter(lineFinder(lines_, this));
}

void Picker::reload() {
  if (beforeReload) beforeReload();
  const QSignalBlocker quiet(this);
  lines_->reset();
}

void Picker::showText(const QString& text) {
  const QSignalBlocker quiet(this);
  if (lineEdit()->text() == text) return;
  lineEdit()->setText(text);
  lineEdit()->setCursorPosition(0);
}

void Picker::showColumns(const LineColumns& columns, Game game) {
  list_->showColumns(columns, game);
  if (completer() != nullptr) static_cast<LineList*>(completer()->popup())->showColumns(columns, game);
}

void Picker::setResultsOnly() {
  lineEdit()->setReadOnly(true);
  setCompleter(nullptr);
}

void Picker::forgetLines() {
  setCompleter(nullptr);
  // The drop-down deletes a model of its own when it gets another one.
  setModel(new QStandardItemModel(this));
  lines_ = nullptr;
}

}  // namespace tallywick
