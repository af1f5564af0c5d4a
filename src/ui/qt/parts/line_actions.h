// SPDX-License-Identifier: GPL-3.0-or-later
// What every list can do with its lines: copy, save and print them, from its context menu and by keyboard.
#pragma once

#include <QString>
#include <functional>
#include <string>

class QAbstractItemView;
class QTableView;

namespace tallywick {

class HandlerRunner;
class LineList;

/// What a view has to copy, save and print.
struct ViewTexts {
  /// The selected lines.
  std::function<QString()> selected;
  /// All lines as text, each with its end.
  std::function<std::string()> text;
  /// The same with commas, behind a line of titles.
  std::function<std::string()> commaSeparated;
  /// The first lines as a table of HTML.
  std::function<QString(std::size_t atMost)> table;
};

/// What a table shows, with a tab between the cells of a row; of a selection its whole rows. `table` outlives
/// what is returned.
ViewTexts tableTexts(QTableView& table);

/// Adds the actions to the view's context menu.
void addViewActions(QAbstractItemView& view, HandlerRunner& runner, const ViewTexts& texts);
void addLineActions(LineList& list, HandlerRunner& runner);

/// All lines of a list as a text. Each line has its end.
std::string asText(const LineList& list);
/// The same with commas: a line of titles, then a field for each cell. A line that does not fit the columns
/// is one field.
std::string asCommaSeparated(const LineList& list);
/// The first lines of a list as a table of HTML with its titles; says so where it has more of them.
QString asTable(const LineList& list, std::size_t atMost);

}  // namespace tallywick
