// SPDX-License-Identifier: GPL-3.0-or-later
// Updates from the public exports of draws, in the place of an FTP server's folders.
#pragma once

#include "core/day.h"
#include "core/games.h"
#include "exports/export_rows.h"
#include "update/https_fetch.h"
#include "update/transfer_component.h"

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

}  // namespace tallywick
