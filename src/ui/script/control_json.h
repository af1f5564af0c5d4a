// SPDX-License-Identifier: GPL-3.0-or-later
// What `show` and `print` write about a control, and `plays` of a play.
#pragma once

#include "controls/controls.h"
#include "display/judging.h"

#include <nlohmann/json.hpp>
#include <string>

namespace tallywick::script {

using Json = nlohmann::ordered_json;

/// Name, type and all properties of that type, always the same keys in the same order.
Json describe(const Control& control);
Json describe(const Form& form);
/// A judged play as `plays` prints it.
Json describe(const JudgedPlay& play);

/// The control's text as lines for people, each with its line end: a caption, a drop-down's text, a list's
/// items.
std::string plainText(const Control& control);

/// One line, whatever bytes the texts contain.
std::string oneLine(const Json& json);

}  // namespace tallywick::script
