// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings.h"

#include "core/data_folder.h"
#include "core/file_commit.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"

#include <CLI/CLI.hpp>
#include <sstream>
#include <stdexcept>

namespace tallywick {

namespace {

[[noreturn]] void refuse(const std::string& what) {
  throw std::invalid_argument(join(settingsFile, ": ", what));
}

Settings::Tls tlsOf(const std::string& text) {
  if (equalIgnoringCase(text, "off")) return Settings::Tls::off;
  if (equalIgnoringCase(text, "required")) return Settings::Tls::required;
  refuse(join("tls is \"", text, "\"; it can be off or required"));
}

void take(Settings& settings, const CLI::ConfigItem& item) {
  if (item.name == "++") refuse("it has no sections");
  if (item.inputs.size() > 1)
    refuse(join(item.name, " has a value with blanks or commas; put it between double quotes"));
  const std::string value = item.inputs.empty() ? std::string() : item.inputs.front();
  if (item.name == "server") {
    settings.server = value;
  } else if (item.name == "tls") {
    settings.tls = tlsOf(value);
  } else if (item.name == "web-site") {
    settings.webSite = value;
  } else if (item.name == "web-help") {
    settings.webHelp = value;
  } else {
    refuse(join("there is no setting \"", item.name, "\""));
  }
}

/// A value between quotes, as the settings file's form wants it.
std::string inQuotes(std::string_view value) {
  return join("\"", value, "\"");
}

}  // namespace

Settings readSettings(const DataFolder& folder) {
  Settings settings;
  if (!folder.exists(settingsFile)) return settings;
  const os::FileBytes bytes = os::readFile(folder.resolve(settingsFile));
  std::istringstream text{std::string(bytes.view())};
  try {
    for (const CLI::ConfigItem& item : CLI::ConfigINI().from_config(text)) take(settings, item);
  } catch (const CLI::Error& error) {
    refuse(error.what());
  }
  return settings;
}

std::string settingsText(const Settings& settings) {
  const std::string_view tls = settings.tls == Settings::Tls::required ? "required" : "off";
  return join(
      "# Settings of Tallywick.\n\n",
      "# The update server: its name or address, with a colon and a port where that is not 21.\n",
      "server=", inQuotes(settings.server), "\n\n",
      "# \"required\" asks the server for an encrypted connection and sends no password without one.\n",
      "tls=", tls, "\n\n", "# The pages that the Help menu opens.\n", "web-site=", inQuotes(settings.webSite),
      "\n", "web-help=", inQuotes(settings.webHelp), "\n");
}

void writeSettings(const DataFolder& folder, const Settings& settings) {
  for (const std::string* value : {&settings.server, &settings.webSite, &settings.webHelp}) {
    if (value->find_first_of("\"\r\n") != std::string::npos)
      refuse("a setting holds no quotes and no line ends");
  }
  replaceFile(folder.resolve(settingsFile), settingsText(settings));
}

}  // namespace tallywick
