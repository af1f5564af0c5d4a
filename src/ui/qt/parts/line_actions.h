// SPDX-License-Identifier: GPL-3.0-or-later
// What every list can do with its lines: copy, save and print them, from its context menu and by keyboard.
#pragma once

#include <QString>

namespace tallywick {

class HandlerRunner;
class LineList;

void addLineActions(LineList& list, HandlerRunner& runner);

/// All lines of a list as a text, or with their fields separated by commas. Each line has its end.
std::string asText(const LineList& list);
std::string asCommaSeparated(const LineList& list);

}  // namespace tallywick
