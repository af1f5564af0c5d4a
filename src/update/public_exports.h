// SPDX-License-Identifier: GPL-3.0-or-later
// Draws from public exports: fetched over HTTPS, checked, and merged into the games' folders.
#pragma once

#include "core/day.h"
#include "core/games.h"
#include "exports/export_rows.h"
#include "exports/merge.h"
#include "update/https_fetch.h"
#include "update/transfer_component.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tallywick {

class Clock;
class DataFolder;

/// The draws in the document that `address` has given. Raises an error that names the address where it is no
/// export, or one that is cut short.
exports::ExportedDraws drawsIn(const FetchedDocument& document, const std::string& address, Game game,
                               Day today);

/// A game's export that has come and is not merged yet.
struct FetchedExport {
  Game game;
  std::string address;
  FetchedDocument document;
  /// Empty where the document is unchanged.
  exports::ExportedDraws draws = {};
};

/// Merges the export into its game's folder, as one change.
exports::MergeReport takeInto(const DataFolder& folder, const FetchedExport& fetched);

/// Where a game's export is.
struct ExportAddress {
  Game game;
  std::string address;
};

/// What a fetch of one game has led to.
struct GameFetch {
  Game game;
  std::string address;
  /// Why the draws of the game are as they were; empty where nothing failed.
  std::string error = {};
  /// The server has nothing newer than what is known; the report is empty.
  bool isUnchanged = false;
  /// Whether merging changes the game's draws or amounts in the folder that it was fetched for.
  bool bringsDraws = false;
  /// What merging changes in that folder; once the export has been taken into a folder, what it changed
  /// there.
  exports::MergeReport report = {};
};

/// The exports of several games, all fetched before any is merged.
class FetchedExports {
 public:
  /// `count` exports are going to be fetched; `watch` sees them as one transfer of several files.
  FetchedExports(const DataFolder& folder, const Clock& clock, std::size_t count, FetchSettings settings = {},
                 TransferWatch* watch = nullptr);

  /// Fetches a game's export and finds out what it makes of the folder's files; writes nothing. A failure,
  /// also of the trial, is kept for its game. Once more for a game, it takes the place of what came before.
  /// Raises TransferCancelled.
  const GameFetch& fetch(const ExportAddress& from);

  /// A game each, in the order in which they were fetched.
  const std::vector<GameFetch>& results() const { return results_; }
  /// Whether nothing has failed.
  bool isComplete() const;
  /// Whether merging changes a game's draws or amounts.
  bool bringDraws() const;
  /// What the player should know of the exports: rows that cannot be used, numbers beyond the known rules. A
  /// sentence a line; empty where there is nothing.
  std::string remarks() const;

  /// Merges what has come, each game's folder as one change. A failure is kept for its game.
  void takeInto(const DataFolder& folder);
  /// Makes components that fetch nothing: they merge what has been fetched.
  TransferFactory components() const;

 private:
  const DataFolder& folder_;
  const Clock& clock_;
  FetchSettings settings_;
  TransferWatch* watch_;
  TransferProgress soFar_;
  std::vector<GameFetch> results_;
  std::shared_ptr<std::vector<FetchedExport>> fetched_ = std::make_shared<std::vector<FetchedExport>>();
};

/// Fetches the exports and merges what has come: a game that fails leaves the others alone. At any time of
/// the day; plays stay where they are. Raises TransferCancelled before anything is changed.
std::vector<GameFetch> fetchDraws(const DataFolder& folder, const Clock& clock,
                                  const std::vector<ExportAddress>& addresses,
                                  const FetchSettings& settings = {}, TransferWatch* watch = nullptr);

/// A component whose host is the address of an export. Asked for a game's server folder, in any letter case,
/// it fetches that export and merges it into the game's folder as one change. What the server names the
/// version by is kept in that change, so that an unchanged export costs one short answer and writes nothing.
/// It sends nothing: uploads are errors. Login, password and passive mode mean nothing to it.
std::unique_ptr<TransferComponent> newPublicExports(const DataFolder& folder, const Clock& clock,
                                                    FetchSettings settings = {},
                                                    TransferWatch* watch = nullptr,
                                                    TransferWindow* window = nullptr);

}  // namespace tallywick
