// SPDX-License-Identifier: GPL-3.0-or-later
// The journal of a change of several files of one folder, and the recovery: how a change that was cut short
// is finished.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

/// One file of a change.
struct Replacement {
  std::string name;
  /// The fingerprint of the file that goes; empty where the journal does not contain it.
  std::string replaces;
  /// Nothing takes its place.
  bool isRemoval = false;
};

/// Whether a change may contain a file of that name.
bool canBeStaged(std::string_view name);

/// Where the new contents of a file wait until it is replaced.
std::filesystem::path stagedPath(const std::filesystem::path& folder, std::string_view name);

/// The fingerprint of a file's contents; "- -" for a file that is missing.
std::string fingerprintOf(const std::filesystem::path& file);

/// The journal of a change.
std::string journalText(const std::vector<Replacement>& entries);

/// Takes over the staged files that still exist, and removes what is to go. Doing it twice changes nothing: a
/// staged name is used once.
void takeOver(const std::filesystem::path& folder, const std::vector<Replacement>& entries);

/// Finishes a change that was cut short after its journal was in place, and removes what an uncommitted one
/// left behind. The caller has the folder's lock.
void finishChange(const std::filesystem::path& folder);

/// Whether nobody is at work in the folder and nothing in it is to be finished.
bool isAtRest(const std::filesystem::path& folder);

/// Finishes what was cut short. Where there is nothing to finish it takes no lock, so that a folder that
/// cannot be written is no error. Raises LockedByAnother at once where somebody is at work in the folder.
void recoverFolder(const std::filesystem::path& folder);

/// Adds to what takeRecoveryNotices() gives.
void addRecoveryNotice(std::string text);

/// What the recoveries since the last call could not finish or had to keep, as texts for the player.
std::vector<std::string> takeRecoveryNotices();

}  // namespace tallywick
