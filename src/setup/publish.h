// SPDX-License-Identifier: GPL-3.0-or-later
// The update server's folder tree: what any FTP server needs to serve draws and amounts to the program.
#pragma once

#include <filesystem>
#include <iosfwd>

namespace tallywick::setup {

/// Writes the draws and amounts of both games of the data folder `from` into `tree`, the root of the server,
/// each where the program asks for it, in both ways in which it spells the folder. A published file is
/// replaced in one step, and only where it differs. Before anything is written, every file is read and
/// checked: RuntimeError 53 or 62 for one that is missing, empty or cut short. Plays are never published.
void publish(const std::filesystem::path& tree, const std::filesystem::path& from, std::ostream& out);

}  // namespace tallywick::setup
