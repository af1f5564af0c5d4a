// SPDX-License-Identifier: GPL-3.0-or-later
// Updates from the public exports of draws, in the place of an FTP server's folders.
#pragma once

#include "core/day.h"
#include "core/games.h"
#include "exports/export_rows.h"
#include "update/https_fetch.h"
#include "update/transfer_component.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace tallywick {

class Clock;
class DataFolder;

/// The draws in the document that `address` has given. Raises an error that names the address where it is no
/// export, or one that is cut short.
exports::ExportedDraws drawsIn(const FetchedDocument& document, const std::string& address, Game game,
                               Day today);

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
  /// Makes components that fetch nothing: they merge what has been fetched.
  TransferFactory components() const;
  /// Merges it without an update.
  void merge() const;

 private:
  struct Fetched {
    std::string address;
    FetchedDocument document;
  };
  using Documents = std::map<Game, Fetched>;

  const DataFolder& folder_;
  const Clock& clock_;
  TransferWatch* watch_;
  TransferProgress soFar_;
  bool bringDraws_ = false;
  std::shared_ptr<Documents> documents_ = std::make_shared<Documents>();
};

}  // namespace tallywick
