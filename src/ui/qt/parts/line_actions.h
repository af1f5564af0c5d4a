// SPDX-License-Identifier: GPL-3.0-or-later
// What every list can do with its lines: copy, save and print them, from its context menu and by keyboard.
#pragma once

#include <QString>

namespace tallywick {

class HandlerRunner;
class LineList;

void addLineActions(LineList& list, HandlerRunner& runner);

/// All lines of a list as a text. Each line has its end.
std::string asText(const LineList& list);
/// The same with commas: a line of titles, then a field for each cell. A line that does not fit the columns
/// is one field.
std::string asCommaSeparated(const LineList& list);
/// The first lines of a list as a table of HTML with its titles; says so where it has more of them.
QString asTable(const LineList& list, std::size_t atMost);

}  // namespace tallywick
