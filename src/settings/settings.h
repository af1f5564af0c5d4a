// SPDX-License-Identifier: GPL-3.0-or-later
// The settings in "tallywick.ini" of the data folder.
#pragma once

#include "core/games.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallywick {

class DataFolder;

inline constexpr std::string_view settingsFile = "tallywick.ini";

/// Where the draws of the games are published; used where the settings have no address.
inline constexpr std::string_view powerBallExport =
    "https://data.ny.gov/api/views/d6yy-54nr/rows.csv?accessType=DOWNLOAD";
inline constexpr std::string_view megaMillionsExport =
    "https://data.ny.gov/api/views/5xaw-6ayf/rows.csv?accessType=DOWNLOAD";

struct Settings {
  enum class Tls { off, required };
  enum class Source { publicExports, server };

  /// The update server: HOST or HOST:PORT.
  std::string server;
  Tls tls = Tls::off;
  /// Addresses of the product's web site and web help page; empty where none is known.
  std::string webSite;
  std::string webHelp;
  /// Where updates come from.
  Source source = Source::publicExports;
  /// Addresses of the public exports of draws, never empty.
  std::string powerBallDraws{powerBallExport};
  std::string megaMillionsDraws{megaMillionsExport};
  /// What a play costs, in cents; none where the player has not said.
  std::optional<std::int64_t> powerBallPrice = std::nullopt;
  std::optional<std::int64_t> megaMillionsPrice = std::nullopt;

  bool operator==(const Settings&) const = default;
};

/// Where the public export of a game's draws is.
const std::string& exportAddress(const Settings& settings, Game game);

/// The source that a word of the settings file or the command line names: "public" or "server". Raises
/// std::invalid_argument for any other.
Settings::Source sourceNamed(std::string_view word);

/// Cents for an amount of dollars such as "2" or "2.50"; none for an empty text. Raises std::invalid_argument
/// for any other text, and above a thousand dollars.
std::optional<std::int64_t> priceFrom(std::string_view text);
/// The text that priceFrom() reads.
std::string priceText(std::optional<std::int64_t> cents);

/// The settings that a file with this text contains. Raises std::invalid_argument, its text beginning with
/// "line N: ", for a line that cannot be understood.
Settings settingsFrom(std::string_view text);

/// Reads the settings; a missing file gives the defaults. A line that cannot be understood raises
/// std::invalid_argument with the file, the line and what is wrong.
Settings readSettings(const DataFolder& folder);

/// The settings as the text of the file, each with a comment that explains it.
std::string settingsText(const Settings& settings);

/// Replaces the file in one step. A value that the file cannot contain raises std::invalid_argument.
void writeSettings(const DataFolder& folder, const Settings& settings);

}  // namespace tallywick
