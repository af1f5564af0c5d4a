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

/// Fetches a game's export and reads it; writes nothing. Where the game's files are still what the last
/// answer made them, only a newer one is asked for. Raises a RuntimeError that says why it cannot be had, or
/// TransferCancelled.
FetchedExport fetchExport(const DataFolder& folder, const Clock& clock, Game game, const std::string& address,
                          const FetchSettings& settings = {}, TransferWatch* watch = nullptr);

/// What a game's files become with the export, the note on its version among them; nothing changes where the
/// document is unchanged. Raises an error that
/// names the address where the export must not be taken.
exports::Merge mergeOf(const FetchedExport& fetched, const exports::GameFiles& files,
                       exports::Standing standing);

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
  /// What changed, once the export has been taken into a folder.
  exports::MergeReport report = {};
};

/// The exports of several games, all fetched before any is merged.
class FetchedDraws {
 public:
  /// Fetches one after the other; writes nothing. A failure is kept for its game. `watch` sees all of them as
  /// one transfer of several files. Raises TransferCancelled.
  FetchedDraws(const DataFolder& folder, const Clock& clock, const std::vector<ExportAddress>& addresses,
               const FetchSettings& settings = {}, TransferWatch* watch = nullptr);

  /// Whether nothing has failed.
  bool isComplete() const;
  /// A game each, in the order of the addresses.
  const std::vector<GameFetch>& results() const { return results_; }
  /// Finds out whether a new folder would take what has come; what it would not becomes a failure.
  void tryInNewFolder();
  /// Merges what has come, each game's folder as one change. A failure is kept for its game.
  void takeInto(const DataFolder& folder);

 private:
  template <typename Action>
  void forEachFetched(Action action);

  std::vector<GameFetch> results_;
  /// None where it failed.
  std::vector<std::optional<FetchedExport>> fetched_;
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

/// Exports that are all fetched before an update begins, which then takes them from here.
class FetchedExports {
 public:
  /// `count` of them are going to be fetched; `watch` learns how many are through.
  FetchedExports(const DataFolder& folder, const Clock& clock, TransferWatch* watch, std::size_t count);

  /// Fetches the game's export and works out its merge, and changes nothing. Raises what an update from that
  /// address would raise.
  void fetch(Game game, const std::string& address);
  /// Whether merging what has been fetched changes a game's draws or amounts.
  bool bringDraws() const { return bringDraws_; }
  /// What the player should know of the exports: rows that cannot be used, numbers beyond the known rules. A
  /// sentence a line; empty where there is nothing.
  const std::string& remarks() const { return remarks_; }
  /// Makes components that fetch nothing: they merge what has been fetched.
  TransferFactory components() const;
  /// Merges it without an update.
  void merge() const;

 private:
  const DataFolder& folder_;
  const Clock& clock_;
  TransferWatch* watch_;
  TransferProgress soFar_;
  bool bringDraws_ = false;
  std::string remarks_;
  std::shared_ptr<std::vector<FetchedExport>> fetched_ = std::make_shared<std::vector<FetchedExport>>();
};

}  // namespace tallywick
