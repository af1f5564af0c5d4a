// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/dated_copies.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/file_commit.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

struct NameParts {
  std::string_view stem;
  /// With its point.
  std::string_view extension;
};

NameParts partsOf(std::string_view name) {
  const std::size_t point = name.rfind('.');
  if (point == std::string_view::npos || point == 0) return {name, {}};
  return {name.substr(0, point), name.substr(point)};
}

std::string sortableDate(const Clock& clock) {
  const std::string date = clock.date();
  const std::string time = clock.time();
  return join(cut(date, 7, 4), "-", cut(date, 1, 2), "-", cut(date, 4, 2), " ", cut(time, 1, 2),
              cut(time, 4, 2), cut(time, 7, 2));
}

/// The number behind a copy's date, as " 2"; 1 where there is none, 0 where it is no such number.
std::size_t numberIn(std::string_view text) {
  if (text.empty()) return 1;
  if (text.front() != ' ' || text.substr(1).starts_with('0')) return 0;
  const std::size_t number = wholeNumber<std::size_t>(text.substr(1)).value_or(0);
  return number > 1 ? number : 0;
}

/// The entry `candidate` as a copy of the file `name`; none where it is none.
std::optional<DatedCopy> copyOf(std::string_view name, std::string_view candidate) {
  constexpr std::size_t dateSize = 17;
  const auto [stem, extension] = partsOf(name);
  const std::size_t dateBegin = stem.size() + 1;
  const std::size_t numberBegin = dateBegin + dateSize;
  if (candidate.size() < numberBegin + extension.size()) return std::nullopt;
  const std::size_t end = candidate.size() - extension.size();
  const std::string_view date = candidate.substr(dateBegin, dateSize);
  const std::size_t number = numberIn(candidate.substr(numberBegin, end - numberBegin));
  if (!equalIgnoringCase(candidate.substr(0, stem.size()), stem) || candidate[stem.size()] != ' ' ||
      !equalIgnoringCase(candidate.substr(end), extension) || !hasForm(date, "0000-00-00 000000") ||
      number == 0) {
    return std::nullopt;
  }
  return DatedCopy{std::string(candidate), std::string(date), number};
}

}  // namespace

std::string nextCopyName(const fs::path& folder, std::string_view name, const Clock& clock,
                         const std::set<std::string>& taken) {
  std::set<std::string> entries;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    entries.insert(lowered(nameOf(entry.path())));
  }
  const auto isFree = [&](const std::string& candidate) {
    const std::string small = lowered(candidate);
    return !entries.contains(small) && !taken.contains(small);
  };
  const auto [stem, extension] = partsOf(name);
  const std::string begin = join(stem, " ", sortableDate(clock));
  std::string candidate = join(begin, extension);
  for (int i = 2; !isFree(candidate); ++i) candidate = join(begin, " ", std::to_string(i), extension);
  return candidate;
}

std::string stageDatedCopy(FileCommit& change, std::string_view name, const Clock& clock,
                           std::set<std::string> taken) {
  const fs::path file = entryInAnyCase(change.folder(), name);
  const os::FileBytes bytes = os::readFile(file);
  for (const std::string& staged : change.names()) taken.insert(lowered(staged));
  std::string copy = nextCopyName(change.folder(), nameOf(file), clock, taken);
  change.stage(copy, bytes.view());
  return copy;
}

std::vector<DatedCopy> datedCopies(const fs::path& folder, std::string_view name) {
  std::vector<DatedCopy> copies;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    const std::optional<DatedCopy> copy = copyOf(name, nameOf(entry.path()));
    if (copy && entry.is_regular_file()) copies.push_back(*copy);
  }
  std::ranges::sort(copies, std::ranges::greater(),
                    [](const DatedCopy& copy) { return std::tie(copy.date, copy.number, copy.name); });
  return copies;
}

void pruneDatedCopies(const fs::path& folder, std::string_view name, std::string_view spared) {
  try {
    const std::vector<DatedCopy> copies = datedCopies(folder, name);
    std::size_t kept = spared.empty() ? 0 : 1;
    for (const DatedCopy& copy : copies) {
      if (copy.name == spared || ++kept <= keptCopies) continue;
      os::removeDurably(folder / pathOf(copy.name));
    }
  } catch (const std::exception&) {
    // A copy too many is in nobody's way; the next change removes it.
  }
}

}  // namespace tallywick
