// SPDX-License-Identifier: GPL-3.0-or-later
// The folder listing that a server sends, in both forms.
#include "core/file_names.h"
#include "core/text.h"
#include "fuzz/property.h"
#include "update/server_listing.h"

#include <algorithm>
#include <string>

namespace tallywick::fuzz {

namespace {

bool same(const ListedFile& left, const ListedFile& right) {
  return left.name == right.name && left.size == right.size;
}

bool same(const std::vector<ListedFile>& left, const std::vector<ListedFile>& right) {
  return std::ranges::equal(left, right, [](const auto& one, const auto& other) { return same(one, other); });
}

void checkName(const ListedFile& file, std::string_view text) {
  require(text.find(file.name) != std::string_view::npos, "a listed name is part of the listing");
  require(file.name.find('\n') == std::string::npos, "a listed name is on one line");
  require(file.name != "." && file.name != "..", "no folder is listed as a file");
  if (isPlainFileName(file.name)) {
    require(file.name.find_first_of(std::string_view("/\\:\n\r\0", 6)) == std::string::npos,
            "a plain name leads out of no folder");
  }
  require(matchesWildcard("*.*", file.name), "every name matches *.*");
  const bool ends = lowered(file.name).ends_with(".dat");
  require(matchesWildcard("*.Dat", file.name) == ends, "a pattern with one star compares the end");
}

std::string machineLine(const ListedFile& file) {
  const std::string size = file.size ? join("size=", std::to_string(*file.size), ";") : std::string();
  return join("type=file;", size, " ", file.name, "\r\n");
}

void check(std::string_view text, Listing (*read)(std::string_view)) {
  const Listing listing = read(text);
  if (!text.empty() && !text.ends_with('\n'))
    require(!listing, "a listing that is cut short is not relied on");
  if (!listing) return;
  const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  require(listing->size() <= lines, "each file has a line of its own");
  std::string again;
  for (const ListedFile& file : *listing) {
    checkName(file, text);
    again += machineLine(file);
  }
  const Listing reread = readMachineListing(again);
  require(reread && same(*reread, *listing), "names and sizes survive being written and read again");

  // The lines are read one by one: what the first half lists is listed first.
  const std::size_t half = text.find('\n', text.size() / 2) + 1;
  const Listing first = read(text.substr(0, half));
  const Listing second = read(text.substr(half));
  require(first && second, "both halves of a good listing are good");
  std::vector<ListedFile> both = *first;
  both.insert(both.end(), second->begin(), second->end());
  require(same(both, *listing), "a line is read the same wherever it is");
}

}  // namespace

}  // namespace tallywick::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = tallywick::fuzz::textOf(data, size);
  tallywick::fuzz::check(text, tallywick::readMachineListing);
  tallywick::fuzz::check(text, tallywick::readPeopleListing);
  return 0;
}
