// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/settings.h"

#include "core/data_folder.h"
#include "core/file_names.h"
#include "core/os.h"
#include "core/text.h"
#include "core/work_files.h"

#include <algorithm>
#include <array>
#include <set>
#include <stdexcept>

namespace tallywick {

namespace {

constexpr std::string_view blanks = " \t\r";
/// The server that the first release wrote into a new folder. It exists on no player's computer.
constexpr std::string_view firstReleaseServer = "127.0.0.1:2121";

[[noreturn]] void refuse(const std::string& what) {
  throw std::invalid_argument(what);
}

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isComment(std::string_view text) {
  return text.starts_with('#') || text.starts_with(';');
}

Settings::Tls tlsNamed(std::string_view word) {
  if (equalIgnoringCase(word, "off")) return Settings::Tls::off;
  if (equalIgnoringCase(word, "required")) return Settings::Tls::required;
  refuse(join("tls is \"", word, "\"; it must be off or required"));
}

/// An export's address; the built-in one for an empty text.
std::string exportAddress(std::string_view key, std::string_view value, std::string_view builtIn) {
  if (value.empty()) return std::string(builtIn);
  if (!value.starts_with("https://") && !value.starts_with("http://"))
    refuse(join(key, " is \"", value, "\"; it must be an address that begins with https://"));
  return std::string(value);
}

/// A setting by the name that it has in the file.
struct Key {
  std::string_view name;
  void (*set)(Settings& settings, std::string_view value);
};

constexpr std::array keys = {
    Key{"source", [](Settings& settings, std::string_view value) { settings.source = sourceNamed(value); }},
    Key{"powerball-draws",
        [](Settings& settings, std::string_view value) {
          settings.powerBallDraws = exportAddress("powerball-draws", value, powerBallExport);
        }},
    Key{"mega-millions-draws",
        [](Settings& settings, std::string_view value) {
          settings.megaMillionsDraws = exportAddress("mega-millions-draws", value, megaMillionsExport);
        }},
    Key{"powerball-price",
        [](Settings& settings, std::string_view value) { settings.powerBallPrice = priceFrom(value); }},
    Key{"mega-millions-price",
        [](Settings& settings, std::string_view value) { settings.megaMillionsPrice = priceFrom(value); }},
    Key{"server", [](Settings& settings, std::string_view value) { settings.server = value; }},
    Key{"tls", [](Settings& settings, std::string_view value) { settings.tls = tlsNamed(value); }},
    Key{"web-site", [](Settings& settings, std::string_view value) { settings.webSite = value; }},
    Key{"web-help", [](Settings& settings, std::string_view value) { settings.webHelp = value; }},
};

/// The value in the text behind a key's equals sign, which begins and ends with no blank. A value between
/// quotes contains every character but its own quote.
std::string_view valueIn(std::string_view key, std::string_view text) {
  if (text.empty() || isComment(text)) refuse(join(key, " has no value"));
  const char quote = text.front();
  const bool isQuoted = quote == '"' || quote == '\'';
  const std::size_t end = isQuoted ? text.find(quote, 1) : text.find_first_of(blanks);
  if (isQuoted && end == std::string_view::npos) refuse(join("the value of ", key, " has no closing quote"));
  const std::size_t rest = std::min(end, text.size() - 1) + 1;
  const std::string_view behind = withoutBlanks(text.substr(rest));
  if (!behind.empty() && !isComment(behind)) {
    if (isQuoted) refuse(join("text follows the closing quote of ", key));
    refuse(join(key, " has a value with blanks; put it between double quotes"));
  }
  if (isQuoted) return text.substr(1, end - 1);
  const std::string_view value = text.substr(0, end);
  if (value.find_first_of(",;\"") != std::string_view::npos)
    refuse(join(key, " has a value with a comma, a semicolon or a quote; put it between double quotes"));
  return value;
}

void takeLine(Settings& settings, std::string_view line, std::set<std::string_view>& seen) {
  if (line.empty() || isComment(line)) return;
  if (line.starts_with('[')) refuse("there are no sections in this file");
  const std::size_t equals = line.find('=');
  const std::string_view name = withoutBlanks(line.substr(0, equals));
  const auto* const key = std::ranges::find(keys, name, &Key::name);
  if (key == keys.end()) refuse(join("there is no setting \"", name, "\""));
  if (!seen.insert(key->name).second) refuse(join(name, " is set a second time"));
  key->set(settings,
           valueIn(name, equals == std::string_view::npos ? "" : withoutBlanks(line.substr(equals + 1))));
}

/// A value between quotes, so that blanks, commas and comment signs in it are part of it.
std::string inQuotes(std::string_view value) {
  return join("\"", value, "\"");
}

}  // namespace

const std::string& exportAddress(const Settings& settings, Game game) {
  return game == Game::powerBall ? settings.powerBallDraws : settings.megaMillionsDraws;
}

Settings::Source sourceNamed(std::string_view word) {
  if (equalIgnoringCase(word, "public")) return Settings::Source::publicExports;
  if (equalIgnoringCase(word, "server")) return Settings::Source::server;
  refuse(join("source is \"", word, "\"; it must be public or server"));
}

std::optional<std::int64_t> priceFrom(std::string_view text) {
  constexpr std::int64_t most = 1000;
  if (text.empty()) return std::nullopt;
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::string_view dollars = text.substr(0, point);
  const std::string_view cents = point == text.size() ? "00" : text.substr(point + 1);
  const auto isDigits = [](std::string_view part) {
    return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
  };
  const std::optional<std::int64_t> whole = wholeNumber<std::int64_t>(dollars);
  if (!isDigits(dollars) || !isDigits(cents) || cents.size() != 2 || !whole || *whole > most)
    refuse(join("the price of a play is \"", text, "\"; it must be dollars and cents, such as 2 or 2.50"));
  return *whole * 100 + *wholeNumber<std::int64_t>(cents);
}

std::string priceText(std::optional<std::int64_t> cents) {
  if (!cents) return "";
  const std::string dollars = std::to_string(*cents / 100);
  return *cents % 100 == 0 ? dollars : join(dollars, ".", twoDigits(static_cast<int>(*cents % 100)));
}

Settings settingsFrom(std::string_view text) {
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  Settings settings;
  std::set<std::string_view> seen;
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1);
    try {
      takeLine(settings, withoutBlanks(text.substr(0, text[end] == '\n' ? end : end + 1)), seen);
    } catch (const std::invalid_argument& error) {
      refuse(join("line ", std::to_string(number), ": ", error.what()));
    }
    text.remove_prefix(end + 1);
  }
  const bool hasServer = !settings.server.empty() && settings.server != firstReleaseServer;
  if (!seen.contains("source") && hasServer) settings.source = Settings::Source::server;
  return settings;
}

Settings readSettings(const DataFolder& folder) {
  if (!folder.exists(settingsFile)) return {};
  const std::filesystem::path file = folder.resolve(settingsFile);
  const os::FileBytes bytes = os::readFile(file);
  try {
    return settingsFrom(bytes.view());
  } catch (const std::invalid_argument& error) {
    refuse(join(textOf(file), ", ", error.what()));
  }
}

std::string settingsText(const Settings& settings) {
  const std::string_view source = settings.source == Settings::Source::server ? "server" : "public";
  const std::string_view tls = settings.tls == Settings::Tls::required ? "required" : "off";
  return join(
      "# Settings of Tallywick.\n\n",
      "# Where updates come from: \"public\", the public exports of draws, or \"server\", an update "
      "server.\n",
      "source=", source, "\n\n",
      "# The addresses of the public exports.\n"
      "powerball-draws=",
      inQuotes(settings.powerBallDraws), "\n", "mega-millions-draws=", inQuotes(settings.megaMillionsDraws),
      "\n\n",
      "# The update server: its name or address, with a colon and a port where that is not 21.\n"
      "server=",
      inQuotes(settings.server), "\n\n",
      "# \"required\" asks the server for an encrypted connection and sends no password without one.\n"
      "tls=",
      tls, "\n\n",
      "# The pages that the Help menu opens.\n"
      "web-site=",
      inQuotes(settings.webSite), "\n", "web-help=", inQuotes(settings.webHelp), "\n\n",
      "# What a play costs in dollars, for the sums of your plays; empty for none.\n"
      "powerball-price=",
      inQuotes(priceText(settings.powerBallPrice)), "\n",
      "mega-millions-price=", inQuotes(priceText(settings.megaMillionsPrice)), "\n");
}

void writeSettings(const DataFolder& folder, const Settings& settings) {
  for (const std::string* value : {&settings.server, &settings.webSite, &settings.webHelp,
                                   &settings.powerBallDraws, &settings.megaMillionsDraws}) {
    if (value->find_first_of("\"\r\n") != std::string::npos)
      refuse("a setting contains neither quotes nor line ends");
  }
  exportAddress("powerball-draws", settings.powerBallDraws, powerBallExport);
  exportAddress("mega-millions-draws", settings.megaMillionsDraws, megaMillionsExport);
  replaceFile(folder.resolve(settingsFile), settingsText(settings));
}

}  // namespace tallywick
