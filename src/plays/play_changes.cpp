// SPDX-License-Identifier: GPL-3.0-or-later
#include "plays/play_changes.h"

#include "core/data_folder.h"
#include "core/dated_copies.h"
#include "core/day.h"
#include "core/file_commit.h"
#include "core/plays.h"
#include "core/text.h"
#include "core/words.h"
#include "display/judging.h"

#include <algorithm>
#include <array>
#include <map>
#include <ranges>
#include <set>
#include <utility>

namespace tallywick {

namespace {

constexpr std::array slots = {PlaySlot::committed, PlaySlot::played};

std::string recordText(const Play& play) {
  std::string text;
  appendRecord(text, play);
  return text;
}

/// `text` with each whole record in lines of its own and a line end behind the last one. Nearly every file is
/// so already and keeps its bytes.
std::string inLines(std::string_view text) {
  const WholePlays records = wholePlays(text, {});
  const auto endsLine = [&](std::size_t end) { return text[end - 1] == '\n' || text[end - 1] == '\r'; };
  if (std::ranges::all_of(records.ends, endsLine)) return std::string(text);
  const bool onlyLast = std::all_of(records.ends.begin(), records.ends.end() - 1, endsLine);
  if (onlyLast && records.end() == text.size()) return join(text, "\r\n");
  std::string lines;
  for (const Play& play : records.plays) appendRecord(lines, play);
  return lines.append(text.substr(records.end()));
}

std::optional<Day> dayOf(const Play& play) {
  if (!play.isListed()) return std::nullopt;
  return parseDay(trimmed(play.date));
}

/// Before which record a play of that day goes: the committed plays have the oldest day first, the played
/// ones the newest.
std::size_t placeFor(std::optional<Day> day, PlaySlot file, const WholePlays& records) {
  const bool isPlayed = file == PlaySlot::played;
  const auto found = std::ranges::find_if(records.plays, [&](const Play& play) {
    const std::optional<Day> other = dayOf(play);
    return isPlayed ? !other || !day || *other <= *day : other && day && *other > *day;
  });
  return static_cast<std::size_t>(found - records.plays.begin());
}

std::string& textIn(PlayTexts& texts, PlaySlot file) {
  return file == PlaySlot::committed ? texts.committed : texts.played;
}
const std::string& textIn(const PlayTexts& texts, PlaySlot file) {
  return file == PlaySlot::committed ? texts.committed : texts.played;
}

/// Adds plays, of which those of one day keep their order: behind the committed ones of that day, before the
/// played ones.
void insertAll(PlayTexts& texts, PlaySlot file, std::vector<Play> plays) {
  if (file == PlaySlot::played) std::ranges::reverse(plays);
  std::string& text = textIn(texts, file);
  for (const Play& play : plays) {
    text = inLines(text);
    const WholePlays records = wholePlays(text, {});
    const std::size_t place = placeFor(dayOf(play), file, records);
    text.insert(place == 0 ? 0 : records.ends[place - 1], recordText(play));
  }
}

/// Cuts records out, by their numbers from 1.
void cutOut(std::string& text, std::vector<std::size_t> numbers) {
  text = inLines(text);
  const WholePlays records = wholePlays(text, {});
  std::ranges::sort(numbers, std::ranges::greater());
  for (const std::size_t number : numbers) {
    const std::size_t begin = number == 1 ? 0 : records.ends.at(number - 2);
    text.erase(begin, records.ends.at(number - 1) - begin);
  }
}

/// How often each play is there, without those that are no real plays.
class PlayCounts {
 public:
  explicit PlayCounts(const PlayTexts& texts) {
    for (const PlaySlot slot : slots) {
      for (const Play& play : wholePlays(textIn(texts, slot), {}).plays) ++counts_[recordText(play)];
    }
  }
  /// Takes one away; false where there is none.
  bool take(const Play& play) { return counts_[recordText(play)]-- > 0; }

 private:
  std::map<std::string, int> counts_;
};

/// The real plays of `text` that are not among `others`.
std::vector<Play> playsMissing(PlayCounts others, std::string_view text) {
  std::vector<Play> missing;
  for (const Play& play : wholePlays(text, {}).plays) {
    if (!others.take(play) && play.isListed()) missing.push_back(play);
  }
  return missing;
}

std::optional<std::string> readIfThere(const GameInfo& game, const DataFolder& folder,
                                       std::string_view file) {
  const std::string written = inFolder(game, file);
  if (!folder.exists(written)) return std::nullopt;
  return std::string(os::readFile(folder.resolve(written)).view());
}

/// A change from its lock to its end.
class OneChange {
 public:
  OneChange(const GameInfo& game, const DataFolder& folder, const Clock& clock)
      : game_(game),
        clock_(clock),
        files_(folder.resolve(game.folder)),
        change_{{},
                readPlayTexts(game, folder),
                {},
                readIfThere(game, folder, saveFileName(game, PlaySlot::committed)),
                readIfThere(game, folder, saveFileName(game, PlaySlot::played))} {}

  const PlayTexts& before() const { return change_.before; }
  void require(const PlayTexts& shown) const {
    if (shown != before()) throw PlaysChangedMeanwhile();
  }

  PlayChange make(std::string what, const PlayTexts& after) {
    return make(std::move(what), after, after.committed, after.played);
  }
  PlayChange make(std::string what, PlayTexts after, std::string_view committedCopy,
                  std::string_view playedCopy) {
    change_.what = std::move(what);
    change_.after = std::move(after);
    for (const PlaySlot slot : slots) requireWholeLines(slot);
    for (const PlaySlot slot : slots) keepWhatGoes(slot);
    stage(PlaySlot::committed, committedCopy);
    stage(PlaySlot::played, playedCopy);
    files_.commit();
    for (const auto& [name, copy] : copies_) pruneDatedCopies(files_.folder(), name, copy);
    return change_;
  }

 private:
  bool changes(PlaySlot slot) const { return textIn(change_.after, slot) != textIn(change_.before, slot); }
  /// A record that goes on in the next line can be put into no place of its own.
  void requireWholeLines(PlaySlot slot) const {
    if (!changes(slot)) return;
    const WholePlays whole = wholePlays(textIn(change_.before, slot), playFileName(game_, slot));
    if (whole.brokenLine)
      throw std::runtime_error(join(whole.torn, ". Nothing was done; mend or delete that line."));
  }
  void keepWhatGoes(PlaySlot slot) {
    if (playsMissing(PlayCounts(change_.after), textIn(change_.before, slot)).empty()) return;
    const std::string name = playFileName(game_, slot);
    copies_.emplace_back(name, stageDatedCopy(files_, name, clock_));
  }
  void stage(PlaySlot slot, std::string_view copy) {
    const std::string& text = textIn(change_.after, slot);
    if (!changes(slot)) return;
    files_.stage(playFileName(game_, slot), text);
    files_.stage(saveFileName(game_, slot), copy);
  }

  const GameInfo& game_;
  const Clock& clock_;
  FileCommit files_;
  PlayChange change_;
  /// The names of files and of the copies that keep them.
  std::vector<std::pair<std::string, std::string>> copies_;
};

/// The file that each of the plays belongs to by its draw; `otherwise` where no draw is known.
std::vector<PlaySlot> filesFor(const GameInfo& game, const DataFolder& folder, const std::vector<Play>& plays,
                               PlaySlot otherwise) {
  std::string records;
  for (const Play& play : plays) appendRecord(records, play);
  std::vector<PlaySlot> files(plays.size(), otherwise);
  for (const JudgedPlay& play : judgePlays(game, folder, records).plays) {
    if (play.state == DrawState::drawn) files.at(play.record - 1) = PlaySlot::played;
    if (play.state == DrawState::waiting) files.at(play.record - 1) = PlaySlot::committed;
  }
  return files;
}

}  // namespace

PlaysChangedMeanwhile::PlaysChangedMeanwhile()
    : std::runtime_error("The play files have changed since they were shown. Nothing was done; look again.") {
}

PlayTexts readPlayTexts(const GameInfo& game, const DataFolder& folder) {
  return {std::string(openPlays(folder, playFilePath(game, PlaySlot::committed)).text()),
          std::string(openPlays(folder, playFilePath(game, PlaySlot::played)).text())};
}

namespace {

/// For how many other draws the committed play of that record is there.
std::size_t otherDrawsOf(const std::string& committed, std::size_t record) {
  const std::vector<Play> plays = wholePlays(committed, {}).plays;
  const Play& play = plays.at(record - 1);
  std::set<std::string_view> dates;
  for (const Play& other : plays) {
    if (other.isListed() && other.main == play.main && other.extra == play.extra) dates.insert(other.date);
  }
  dates.erase(play.date);
  return dates.size();
}

std::string removedText(const PlayTexts& before, std::span<const PlayPlace> plays) {
  const std::string text = join(inFigures(plays.size(), "play"), " removed");
  if (plays.size() != 1 || plays.front().file != PlaySlot::committed) return text;
  const std::size_t others = otherDrawsOf(before.committed, plays.front().record);
  return others == 0 ? text : join(text, "; the same play stays for ", inFigures(others, "other draw"));
}

}  // namespace

PlayChange PlayChanges::remove(const PlayTexts& shown, std::span<const PlayPlace> plays) const {
  OneChange change(game_, folder_, clock_);
  change.require(shown);
  PlayTexts after = shown;
  for (const PlaySlot slot : slots) {
    std::vector<std::size_t> numbers;
    for (const PlayPlace& play : plays) {
      if (play.file == slot) numbers.push_back(play.record);
    }
    if (!numbers.empty()) cutOut(textIn(after, slot), std::move(numbers));
  }
  return change.make(removedText(shown, plays), after);
}

PlayChange PlayChanges::moveToPlayed(const PlayTexts& shown, std::span<const std::size_t> records) const {
  OneChange change(game_, folder_, clock_);
  change.require(shown);
  PlayTexts after = shown;
  const WholePlays committed = wholePlays(shown.committed, {});
  std::vector<Play> moved;
  for (const std::size_t number : records) moved.push_back(committed.plays.at(number - 1));
  insertAll(after, PlaySlot::played, std::move(moved));
  cutOut(after.committed, {records.begin(), records.end()});
  return change.make(join(inFigures(records.size(), "play"), " moved to the played plays"), after);
}

PlayChange PlayChanges::add(PlaySlot file, std::string_view record) const {
  OneChange change(game_, folder_, clock_);
  PlayTexts after = change.before();
  insertAll(after, file, {wholePlays(record, {}).plays.at(0)});
  return change.make("1 play added", after);
}

std::vector<PlayCopy> PlayChanges::copies() const {
  const std::filesystem::path folder = folder_.resolve(game_.folder);
  const PlayCounts present(readPlayTexts(game_, folder_));
  std::vector<PlayCopy> copies;
  for (const PlaySlot slot : slots) {
    for (const DatedCopy& copy : datedCopies(folder, playFileName(game_, slot))) {
      const os::FileBytes bytes = os::readFile(folder / pathOf(copy.name));
      const auto plays = std::ranges::count_if(wholePlays(bytes.view(), {}).plays, &Play::isListed);
      copies.push_back({copy.name, copy.date, static_cast<std::size_t>(plays),
                        playsMissing(present, bytes.view()).size()});
    }
  }
  std::ranges::stable_sort(copies, std::ranges::greater(), &PlayCopy::date);
  return copies;
}

PlayChange PlayChanges::bringBack(const PlayTexts& shown, std::string_view copy) const {
  OneChange change(game_, folder_, clock_);
  change.require(shown);
  const bool isOfPlayed =
      std::ranges::any_of(datedCopies(folder_.resolve(game_.folder), playFileName(game_, PlaySlot::played)),
                          [&](const DatedCopy& other) { return other.name == copy; });
  const os::FileBytes bytes = os::readFile(folder_.resolve(game_.folder) / pathOf(copy));
  const std::vector<Play> missing = playsMissing(PlayCounts(shown), bytes.view());
  if (missing.empty()) throw std::runtime_error(join("Every play of \"", copy, "\" is among your plays."));
  const std::vector<PlaySlot> belongs =
      filesFor(game_, folder_, missing, isOfPlayed ? PlaySlot::played : PlaySlot::committed);
  PlayTexts after = shown;
  for (const PlaySlot slot : slots) {
    std::vector<Play> plays;
    for (std::size_t i = 0; i < missing.size(); ++i) {
      if (belongs[i] == slot) plays.push_back(missing[i]);
    }
    insertAll(after, slot, std::move(plays));
  }
  return change.make(join(inFigures(missing.size(), "play"), " brought back"), after);
}

PlayChange PlayChanges::undo(const PlayChange& earlier) const {
  OneChange change(game_, folder_, clock_);
  change.require(earlier.after);
  return change.make(join("Undone: ", earlier.what), earlier.before,
                     earlier.committedCopy.value_or(earlier.before.committed),
                     earlier.playedCopy.value_or(earlier.before.played));
}

}  // namespace tallywick
