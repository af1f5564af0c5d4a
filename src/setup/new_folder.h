// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a data folder: draws, amounts, plays, calendar, pictures, settings.
#pragma once

#include "core/games.h"
#include "settings/settings.h"
#include "setup/book.h"
#include "update/public_exports.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::setup {

/// Everything that a data folder's files are made from.
struct FolderContents {
  struct Part {
    Game game;
    GameBook book;
    /// Whether the draws are samples; their folder is marked so.
    bool madeUp = true;
  };
  std::array<Part, allGames.size()> games;
};

/// Sample draws, amounts and plays of both games up to `last`.
FolderContents sampleContents(Day last, std::uint64_t seed);

/// Whether draws, amounts or plays of either game are in the folder, so that it is somebody's.
bool containsRecords(const std::filesystem::path& folder);

/// std::runtime_error where a file, a link or another spelling of the name is in the way of a game's folder,
/// so that writing there would change what is not this data folder's.
void requireGameFolders(const std::filesystem::path& root);

/// Makes a whole data folder; where there is no folder QzrNumbers yet, it appears with all that is in it or
/// not at all. Every file that exists already stays. std::runtime_error where the folder contains records, or
/// where a file or a link has the name of one of its folders; then nothing is written.
void writeFolder(const std::filesystem::path& folder, const FolderContents& contents,
                 const Settings& settings = {});

/// Where the settings say that both games' exports are.
std::vector<ExportAddress> exportAddresses(const Settings& settings);

/// Fetches both games' exports by the addresses of `settings`, and makes a whole data folder with these
/// draws, these settings and without plays. Where one of the two fails nothing is made, and the answer says
/// why. std::runtime_error and RuntimeError where the folder cannot be made, TransferCancelled.
std::vector<GameFetch> makeFetchedFolder(const DataFolder& folder, const Clock& clock,
                                         const Settings& settings = {}, const FetchSettings& limits = {},
                                         TransferWatch* watch = nullptr);

/// Makes a whole data folder with the draws in two export files and without plays; returns what they
/// contain, in words. Raises an error that names the file where one is no export or has too few draws; then
/// nothing is made.
std::string makeFolderFromFiles(const DataFolder& folder, const Clock& clock,
                                const std::filesystem::path& powerBallDraws,
                                const std::filesystem::path& megaMillionsDraws);

/// Replaces the draws and amounts of one game as a whole, marks it where they are made up, and leaves
/// everything else alone.
void replaceDraws(const std::filesystem::path& folder, const FolderContents::Part& part);

/// A new data folder with sample draws, for a first start: today's clock, any seed.
void makeSampleFolder(const std::filesystem::path& folder, std::uint64_t seed);

}  // namespace tallywick::setup
