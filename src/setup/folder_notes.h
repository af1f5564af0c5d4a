// SPDX-License-Identifier: GPL-3.0-or-later
// The README of a data folder: what is in it and what of it is made up.
#pragma once

#include <string>

namespace tallywick::setup {

struct FolderContents;

std::string folderNotes(const FolderContents& contents);

}  // namespace tallywick::setup
