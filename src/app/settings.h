// SPDX-License-Identifier: GPL-3.0-or-later
// The settings in "tallywick.ini" of the data folder.
#pragma once

#include <string>
#include <string_view>

namespace tallywick {

class DataFolder;

inline constexpr std::string_view settingsFile = "tallywick.ini";

struct Settings {
  enum class Tls { off, required };

  /// The update server: HOST or HOST:PORT.
  std::string server;
  Tls tls = Tls::off;
  /// Addresses of the product's web site and web help page; empty where none is known.
  std::string webSite;
  std::string webHelp;

  bool operator==(const Settings&) const = default;
};

/// Reads the settings; a missing file gives the defaults. A line that cannot be understood raises
/// std::invalid_argument that names the file and tells what is wrong.
Settings readSettings(const DataFolder& folder);

/// The settings as the text of the file, each with a comment that explains it.
std::string settingsText(const Settings& settings);

/// Replaces the file in one step.
void writeSettings(const DataFolder& folder, const Settings& settings);

}  // namespace tallywick
