// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a data folder: draws, amounts, plays, calendar, pictures, settings.
#pragma once

#include "core/games.h"
#include "setup/book.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace tallywick::setup {

/// Everything that a data folder's files are made from.
struct FolderContents {
  struct Part {
    Game game;
    GameBook book;
    /// Where the draws come from, for people: "sample draws", "1511 draws from powerball.csv".
    std::string origin;
  };
  std::array<Part, 2> games;
};

/// The last day whose draw has taken place at `date` (MM-DD-YYYY) and `time` (HH:MM:SS): today's is drawn at
/// eleven in the evening. std::invalid_argument where it is no date.
Day lastDrawnDay(std::string_view date, std::string_view time);

/// Sample draws, amounts and plays of both games up to `last`.
FolderContents sampleContents(Day last, std::uint64_t seed);

/// Whether plays of either game stand in the folder.
bool holdsPlays(const std::filesystem::path& folder);

/// Makes a whole data folder. Of the files that stand already, only draws and amounts are replaced.
void writeFolder(const std::filesystem::path& folder, const FolderContents& contents);

/// Replaces the draws and amounts of one game in a folder that stands, and nothing else.
void replaceDraws(const std::filesystem::path& folder, const FolderContents::Part& part);

/// The README of the folder, which tells what of it is made up.
void writeNotes(const std::filesystem::path& folder, const FolderContents& contents);

/// A new data folder with sample draws, for a first start: today's clock, any seed.
void makeSampleFolder(const std::filesystem::path& folder, std::uint64_t seed);

}  // namespace tallywick::setup
