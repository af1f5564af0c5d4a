// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/typed_draws.h"

#include "core/draws.h"
#include "core/eras.h"
#include "core/text.h"
#include "core/winnings.h"
#include "exports/entry_checks.h"
#include "exports/folder_merge.h"
#include "exports/history_report.h"
#include "exports/record_list.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tallywick::exports {

namespace {

template <typename... Pieces>
[[noreturn]] void fail(const Pieces&... pieces) {
  throw std::runtime_error(join(pieces...));
}

constexpr std::string_view nameOf(TypedField field) {
  switch (field) {
    case TypedField::date:
      return "date";
    case TypedField::numbers:
      return "numbers";
    case TypedField::extra:
      return "extra ball";
    case TypedField::multiplier:
      return "multiplier";
    case TypedField::doublePlay:
      return "Double Play";
    case TypedField::amount:
      return "amount";
    case TypedField::marks:
      return "winning tickets";
  }
  return {};
}

/// What `check` gives; what it raises is reported with the field's name.
template <typename Check>
auto inField(TypedField field, Check check) {
  try {
    return check();
  } catch (const std::runtime_error& error) {
    throw TypingError(field, join(nameOf(field), ": ", error.what()));
  }
}

Day checkedDrawDay(Game game, std::string_view text, Day today) {
  const Day day = checkedDay(trimmed(text), today);
  if (day < firstDrawDay(game)) fail("the game was not drawn yet on ", displayDate(day));
  if (!isDrawDay(game, day)) fail(displayDate(day), " is not a draw day of ", infoOf(game).name);
  return day;
}

/// Rules newer than the program's are not taken: a slip of the finger is likelier.
Balls checkedDoublePlay(Game game, Day day, std::string_view text) {
  if (game != Game::powerBall) fail(infoOf(game).name, " has none");
  if (day < doublePlayBegin) fail("it was not drawn yet on ", displayDate(day));
  std::vector<int> numbers = checkedNumbers(text);
  if (numbers.size() != 6) fail(std::to_string(numbers.size()), " numbers instead of 6");
  const Matrix matrix = matrixOn(game, day).value();
  const int extra = numbers.back();
  numbers.pop_back();
  return {checkedWhites(std::move(numbers), matrix.white), checkedExtra(extra, matrix.extra)};
}

using Numbers = std::vector<std::optional<int>>;

/// The numbers in the fields of a record from `from` on; none for a field that contains none.
Numbers numbersIn(const FileRecord& record, std::size_t from, std::size_t count) {
  Numbers numbers;
  for (std::size_t i = from; i < from + count; ++i) {
    numbers.push_back(wholeNumber<int>(trimmed(record.fields[i])));
  }
  return numbers;
}

Numbers numbersOf(const Balls& balls) {
  Numbers numbers(balls.white.begin(), balls.white.end());
  numbers.emplace_back(balls.extra);
  return numbers;
}

/// As a player reads them.
std::string numbersText(const Numbers& numbers) {
  std::string text;
  for (const std::optional<int>& number : numbers) {
    text.append(text.empty() ? "" : " ").append(number ? twoDigits(*number) : "?");
  }
  return text;
}

const FileRecord* recordOfDay(const RecordList& list, Day day) {
  const auto found = std::ranges::find(list.records, day, &FileRecord::day);
  return found != list.records.end() ? &*found : nullptr;
}

constexpr std::size_t ballCount = 6;

/// DrawIsKnown where the draw has other numbers in the histories, or another amount.
void requireUnknown(Game game, const CheckedDraw& typed, const GameFiles& files) {
  const DrawEntry& draw = typed.draw;
  const std::optional<AmountEntry>& amount = typed.amount;
  const auto fail = [&](std::string_view what, const std::string& known) {
    throw DrawIsKnown(
        join(infoOf(game).name, ", ", displayDate(draw.day), ": ", what, " known already: ", known));
  };
  const RecordList main(files.draws, drawFields);
  if (const FileRecord* const known = recordOfDay(main, draw.day)) {
    const Numbers numbers = numbersIn(*known, mainBalls, ballCount);
    if (numbers != numbersOf(draw.balls)) fail("other numbers are", numbersText(numbers));
    const std::string& multiplier = known->fields[multiplierField];
    if (wholeNumber<int>(trimmed(multiplier)) != wholeNumber<int>(draw.multiplier)) {
      fail("another multiplier is", multiplier);
    }
  }
  const RecordList doublePlay(files.doublePlay, doublePlayFields);
  if (const FileRecord* const known = recordOfDay(doublePlay, draw.day); known && draw.doublePlay) {
    const Numbers numbers = numbersIn(*known, doublePlayBalls, ballCount);
    if (numbers != Numbers(ballCount) && numbers != numbersOf(*draw.doublePlay)) {
      fail("other Double Play numbers are", numbersText(numbers));
    }
  }
  const auto amounts = shownAmounts(files.amounts);
  const auto known = amounts.find(draw.day);
  if (amount && known != amounts.end() && !known->second.amount.empty() && known->second != *amount) {
    fail("another amount is", known->second.amount);
  }
}

void requireDraws(Game game, const GameFiles& files) {
  if (!RecordList(files.draws, drawFields).records.empty()) return;
  fail("there are no draws of ", infoOf(game).name, " yet; fetch or import them first");
}

/// `merge`, whose base was `base`, as a change of `files`; the typed draws become `typed`.
Merge changeOf(Game game, Merge merge, const GameFiles& base, const GameFiles& files, std::string typed) {
  GameFiles now = withChanges(infoOf(game), base, merge.files);
  now.typed = std::move(typed);
  merge.files = changedFiles(infoOf(game), files, std::move(now));
  return merge;
}

void removeDay(std::string& text, std::size_t fields, Day day) {
  RecordList list(text, fields);
  std::erase_if(list.records, [&](const FileRecord& record) { return record.day == day; });
  text = list.text();
}

Merge withDraw(Game game, const CheckedDraw& typed, const GameFiles& files, KnownDraw known) {
  requireDraws(game, files);
  if (known == KnownDraw::stays) requireUnknown(game, typed, files);
  const Day day = typed.draw.day;
  const bool isTyped = recordOfDay(RecordList(files.draws, drawFields), day) == nullptr ||
                       std::ranges::count(typedDraws(files), day) > 0;
  std::vector<AmountEntry> amounts;
  if (typed.amount) amounts.push_back(*typed.amount);
  Merge merge = mergeInto(game, {typed.draw}, amounts, files);

  RecordList noted(files.typed, drawFields);
  std::erase_if(noted.records, [&](const FileRecord& record) { return record.day == day; });
  if (isTyped) {
    const GameFiles now = withChanges(infoOf(game), files, merge.files);
    const RecordList main(now.draws, drawFields);
    noted.records.push_back(*recordOfDay(main, day));
    noted.sort();
  }
  return changeOf(game, std::move(merge), files, files, noted.text());
}

Merge withoutDraw(Game game, Day day, const GameFiles& files) {
  if (recordOfDay(RecordList(files.draws, drawFields), day) == nullptr) {
    fail(infoOf(game).name, " has no draw of ", displayDate(day));
  }
  if (std::ranges::count(typedDraws(files), day) == 0) {
    fail("the draw of ", displayDate(day), " was not typed in, or an export has it by now; it stays");
  }
  GameFiles base = files;
  removeDay(base.draws, drawFields, day);
  removeDay(base.searchDraws, drawFields, day);
  removeDay(base.doublePlay, doublePlayFields, day);
  removeDay(base.amounts, winningsFields, day);
  removeDay(base.typed, drawFields, day);
  return changeOf(game, mergeInto(game, {}, {}, base), base, files, base.typed);
}

Merge withAmounts(Game game, std::vector<AmountEntry> amounts, const GameFiles& files) {
  const std::vector<AmountEntry> shown = reportOf(infoOf(game), files).newestAmounts;
  for (const AmountEntry& entry : amounts) {
    if (std::ranges::find(shown, entry.day, &AmountEntry::day) == shown.end()) {
      fail(displayDate(entry.day), " is none of the ", std::to_string(shownDraws), " newest draws of ",
           infoOf(game).name);
    }
  }
  std::erase_if(amounts, [&](const AmountEntry& entry) { return std::ranges::count(shown, entry) > 0; });
  return changeOf(game, mergeInto(game, {}, amounts, files), files, files, files.typed);
}

/// Writes `merge` of the files of a game with real draws.
MergeReport write(const DataFolder& folder, Game game,
                  const std::function<Merge(const GameFiles& files)>& merge) {
  FolderMerge change(folder, game, [&](const GameFiles& files, DrawOrigin origin) {
    if (origin == DrawOrigin::madeUp) {
      fail("the draws of ", infoOf(game).name, " are made up; fetch or import the real ones first");
    }
    return merge(files);
  });
  change.commit();
  return change.report();
}

}  // namespace

CheckedDraw checkedDraw(Game game, const TypedDraw& typed, Day today) {
  const Day day = inField(TypedField::date, [&] { return checkedDrawDay(game, typed.date, today); });
  const Matrix matrix = matrixOn(game, day).value();
  CheckedDraw checked{{day, {}}, {}};
  DrawEntry& draw = checked.draw;
  inField(TypedField::numbers,
          [&] { draw.balls.white = checkedWhites(checkedNumbers(typed.numbers), matrix.white); });
  inField(TypedField::extra,
          [&] { draw.balls.extra = checkedExtra(checkedNumber(trimmed(typed.extra)), matrix.extra); });
  inField(TypedField::multiplier, [&] { draw.multiplier = checkedMultiplier(trimmed(typed.multiplier)); });
  if (!trimmed(typed.doublePlay).empty()) {
    inField(TypedField::doublePlay,
            [&] { draw.doublePlay = checkedDoublePlay(game, day, typed.doublePlay); });
  }
  const AmountEntry amount = checkedTypedAmount(day, typed.amount, typed.marks);
  if (!amount.amount.empty()) checked.amount = amount;
  return checked;
}

AmountEntry checkedTypedAmount(Day day, std::string_view amount, std::string_view marks) {
  AmountEntry entry = inField(TypedField::amount, [&] { return checkedAmount(day, trimmed(amount), {}); });
  inField(TypedField::marks, [&] {
    entry.marks = checkedAmount(day, {}, trimmed(marks)).marks;
    if (entry.marks < 0) fail(std::to_string(entry.marks), " is less than 0");
    if (entry.amount.empty() && entry.marks > 0) fail("there is no amount that they won");
  });
  return entry;
}

std::vector<Day> typedDraws(const GameFiles& files) {
  std::vector<Day> days;
  const RecordList main(files.draws, drawFields);
  for (const FileRecord& record : RecordList(files.typed, drawFields).records) {
    if (!record.day) continue;
    const FileRecord* const drawn = recordOfDay(main, *record.day);
    if (drawn != nullptr && drawn->fields == record.fields) days.push_back(*record.day);
  }
  std::ranges::sort(days, std::greater());
  return days;
}

MergeReport addDraw(const DataFolder& folder, Game game, const CheckedDraw& typed, KnownDraw known) {
  return write(folder, game, [&](const GameFiles& files) { return withDraw(game, typed, files, known); });
}

MergeReport removeDraw(const DataFolder& folder, Game game, Day day) {
  return write(folder, game, [&](const GameFiles& files) { return withoutDraw(game, day, files); });
}

MergeReport setAmounts(const DataFolder& folder, Game game, const std::vector<AmountEntry>& amounts) {
  return write(folder, game, [&](const GameFiles& files) { return withAmounts(game, amounts, files); });
}

}  // namespace tallywick::exports
