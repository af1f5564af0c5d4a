// SPDX-License-Identifier: GPL-3.0-or-later
// The README of a data folder: what is in it and what of it may be made up.
#pragma once

#include <string>

namespace tallywick::setup {

std::string folderNotes();

}  // namespace tallywick::setup
