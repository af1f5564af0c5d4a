// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/hints.h"

#include "core/eras.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/words.h"
#include "selection/draw_dates.h"
#include "selection/marked_play.h"
#include "selection/selection_handlers.h"

#include <algorithm>
#include <map>
#include <optional>

namespace tallywick {

namespace {

struct Marks {
  std::vector<int> mains;
  std::vector<int> extras;

  bool empty() const { return mains.empty() && extras.empty(); }
};

Marks marksOf(const SelectionForm& form) {
  Marks marks;
  for (int number = 1; number <= form.game.lastNumber; ++number) {
    const Mark mark = markOf(form.button(number));
    if (mark == Mark::main) marks.mains.push_back(number);
    if (mark == Mark::extra) marks.extras.push_back(number);
  }
  return marks;
}

std::vector<std::string> texts(const std::vector<int>& numbers) {
  std::vector<std::string> texts;
  std::ranges::transform(numbers, std::back_inserter(texts), twoDigits);
  return texts;
}

std::string spaced(const std::vector<int>& numbers) {
  std::string text;
  for (int number : numbers) text += (text.empty() ? "" : " ") + twoDigits(number);
  return text;
}

std::string_view extraName(const SelectionForm& form) {
  return extraBallName(form.game.game);
}

std::string marksText(const SelectionForm& form, const Marks& marks) {
  if (marks.extras.empty()) return spaced(marks.mains);
  return join(spaced(marks.mains), marks.mains.empty() ? "" : "   ", extraName(form), " ",
              spaced(marks.extras));
}

/// The draw for which a play made now is entered; none where the calendar does not say.
std::optional<std::string> nextDraw(const SelectionForm& form) {
  try {
    return drawDateOfPlayMadeNow(form.surroundings.folder, form.surroundings.clock,
                                 drawDayCodes(form.game.game));
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
}

/// The highest numbers that are drawn now.
std::optional<Matrix> matrixNow(const SelectionForm& form) {
  const std::optional<Day> today = parseDay(trimmed(form.surroundings.clock.date()));
  return today ? matrixOn(form.game.game, *today) : std::nullopt;
}

std::string rangeText(int first, int last) {
  return first == last ? twoDigits(first) : join(twoDigits(first), " to ", twoDigits(last));
}

std::string noLongerDrawn(const std::vector<std::string>& whites, const std::vector<std::string>& extras,
                          std::string_view name, bool several) {
  std::vector<std::string> parts;
  if (!whites.empty()) parts.push_back(listed(whites));
  if (!extras.empty()) parts.push_back(join(name, " ", listed(extras)));
  return parts.empty() ? "" : join(listed(parts), several ? " are" : " is", " no longer drawn.");
}

/// The numbers of the slip that are never drawn now; empty where all are.
std::string slipBeyondDraws(const SelectionForm& form) {
  const std::optional<Matrix> matrix = matrixNow(form);
  if (!matrix) return {};
  std::vector<std::string> whites;
  std::vector<std::string> extras;
  if (matrix->white < form.game.lastNumber)
    whites.push_back(rangeText(matrix->white + 1, form.game.lastNumber));
  if (matrix->extra < form.rules.threeMarks)
    extras.push_back(rangeText(matrix->extra + 1, form.rules.threeMarks));
  return noLongerDrawn(whites, extras, extraName(form), !whites.empty());
}

/// The same of the marks.
std::string marksBeyondDraws(const SelectionForm& form, const Marks& marks) {
  const std::optional<Matrix> matrix = matrixNow(form);
  if (!matrix) return {};
  std::vector<int> whites;
  std::vector<int> extras;
  std::ranges::copy_if(marks.mains, std::back_inserter(whites),
                       [&](int number) { return number > matrix->white; });
  std::ranges::copy_if(marks.extras, std::back_inserter(extras),
                       [&](int number) { return number > matrix->extra; });
  return noLongerDrawn(texts(whites), texts(extras), extraName(form), whites.size() + extras.size() > 1);
}

/// What Select will do with a play that passes.
std::string entering(const SelectionForm& form, const Marks& marks) {
  const std::string extra = twoDigits(marks.extras.front());
  if (marks.mains.size() == 4) {
    return join("Four numbers and a ", extraName(form), ": Select will enter ", extra, " as number and ",
                extraName(form), ".");
  }
  const std::optional<std::string> draw = nextDraw(form);
  return draw ? join("Select will enter this play for the draw of ", weekdayDate(*draw), ".")
              : "Select cannot enter a play: the calendar file lacks the next draw.";
}

/// What is missing; nothing where marks are too many.
std::string missing(const SelectionForm& form, const Marks& marks) {
  const std::size_t numbers = marks.mains.size();
  const bool hasExtra = !marks.extras.empty();
  const std::string upTo = twoDigits(form.rules.threeMarks);
  if (numbers < 5) {
    const std::string lacking = counted(5 - numbers, "number");
    if (hasExtra) return sentence(join(lacking, numbers == 4 ? " is" : " are", " missing."));
    return sentence(join(lacking, " and the ", extraName(form), " are missing."));
  }
  if (hasExtra) return {};
  if (numbers == 5) return join("The ", extraName(form), " is missing: press one of 01 to ", upTo, " twice.");
  if (numbers == 6 && marks.mains.front() <= form.rules.threeMarks)
    return join("Six numbers are marked: press one of 01 to ", upTo, " again to make it the ",
                extraName(form), ".");
  return {};
}

std::string refusal(const SelectionForm& form, const Marks& marks) {
  if (const int number = refusedExtra(form); number != 0) {
    return join(twoDigits(number), " cannot be the ", extraName(form),
                ": Select will take this mark off and leave the others.");
  }
  constexpr std::string_view end = ": Select will refuse them and take all marks off.";
  if (marks.extras.size() > 1)
    return sentence(join(counted(marks.extras.size(), extraName(form)), " are marked", end));
  return sentence(join(counted(marks.mains.size(), "number"),
                       marks.extras.empty() ? "" : join(" and a ", extraName(form)), " are marked", end));
}

/// The last six numbers of the line.
std::vector<int> numbersIn(std::string_view line) {
  std::vector<int> numbers;
  std::size_t at = 0;
  while ((at = line.find_first_not_of(" ,", at)) != std::string_view::npos) {
    const std::size_t end = std::min(line.find_first_of(" ,", at), line.size());
    const std::string_view field = line.substr(at, end - at);
    const std::optional<int> number = field.size() <= 2 ? wholeNumber<int>(field) : std::nullopt;
    if (number && *number > 0) numbers.push_back(*number);
    at = end;
  }
  if (numbers.size() > 6) numbers.erase(numbers.begin(), numbers.end() - 6);
  return numbers;
}

std::string_view dateOf(std::string_view item) {
  return cut(item, 3, 10);
}

/// The main numbers of a play that Replay does not mark.
std::vector<int> leftByReplay(const SelectionForm& form, const std::vector<int>& numbers) {
  std::vector<int> mains;
  for (std::size_t i = 0; i + 1 < numbers.size(); ++i) {
    if (numbers[i] > form.rules.replayMain) mains.push_back(numbers[i]);
  }
  return mains;
}

}  // namespace

MarksHint marksHint(const SelectionForm& form) {
  const Marks marks = marksOf(form);
  if (marks.empty()) {
    const std::string beyond = slipBeyondDraws(form);
    return {{},
            join("Mark five numbers, and one of 01 to ", twoDigits(form.rules.threeMarks), " twice for the ",
                 extraName(form), ".", beyond.empty() ? "" : " ", beyond),
            MarksHint::Kind::advice};
  }
  MarksHint hint;
  hint.marks = marksText(form, marks);
  if (refusedExtra(form) == 0 && complaint(form.rules, markedPlay(form)).empty()) {
    hint.text = entering(form, marks);
    hint.kind = marks.mains.size() == 5 ? MarksHint::Kind::ready : MarksHint::Kind::warning;
  } else if (refusedExtra(form) == 0 && marks.extras.size() <= 1) {
    hint.text = missing(form, marks);
  }
  if (hint.text.empty()) {
    hint.text = refusal(form, marks);
    hint.kind = MarksHint::Kind::warning;
  }
  if (const std::string beyond = marksBeyondDraws(form, marks); !beyond.empty()) {
    hint.text += " " + beyond;
    hint.kind = MarksHint::Kind::warning;
  }
  return hint;
}

std::string drawCountHint(const SelectionForm& form) {
  if (!hasPlaysToLose(form)) return {};
  const TextLines& plays = form.Combo1.items();
  const std::string_view first = dateOf(plays[0]);
  const int count = drawCountOf(form.Label1.caption());
  if (count == 1) {
    for (std::size_t i = 1; i < plays.size(); ++i) {
      if (dateOf(plays[i]) != first) return "one draw each, as in the list";
    }
    return join("one draw: ", weekdayDate(first));
  }
  try {
    const std::vector<std::string> dates =
        drawDatesFrom(form.surroundings.folder, drawDayCodes(form.game.game), first, count);
    return join(numberWord(dates.size()), " draws, the last on ", weekdayDate(dates.back()));
  } catch (const CalendarGap&) {
    return join(numberWord(static_cast<std::size_t>(count)),
                " draws: the calendar file does not reach so far");
  } catch (const RuntimeError&) {
    return {};
  }
}

std::string countStepHint(const SelectionForm& form) {
  if (!hasPlaysToLose(form)) return {};
  const std::string& step = form.Command4.caption();
  if (!form.Command4.enabled())
    return join("For more draws press ", form.Command1.caption(), ", then ", step, ".");
  const int count = drawCountOf(form.Label1.caption());
  if (count == 1) return join("Each press of ", step, " adds a draw; after ten it begins again with one.");
  if (form.Command1.enabled())
    return join(form.Command5.caption(), " enters them so; ", form.Command1.caption(),
                " would go back to one draw.");
  const std::string so = join(form.Command5.caption(), " enters them so. ");
  return count == 10 ? join(so, "The next press of ", step, " begins again with one draw.")
                     : join(so, step, " counts up only; after ten it begins again with one.");
}

std::string countLostHint(const SelectionForm& form, int countBefore) {
  if (countBefore == drawCountOf(form.Label1.caption())) return {};
  return join(form.Command1.caption(), " has set the draws back from ",
              numberWord(static_cast<std::size_t>(countBefore)), " to one; ", form.Command4.caption(),
              " counts them up again.");
}

std::string replayHint(const SelectionForm& form) {
  const std::vector<int> numbers = numbersIn(form.Combo7.text());
  const std::vector<int> mains = leftByReplay(form, numbers);
  std::vector<std::string> parts;
  if (!mains.empty()) parts.push_back(listed(texts(mains)));
  if (numbers.size() == 6 && numbers.back() > form.rules.replayExtra)
    parts.push_back(join(extraName(form), " ", twoDigits(numbers.back())));
  if (parts.empty()) return {};
  return join("Replay does not mark ", listed(parts), mains.empty() ? "." : "; press what is missing.");
}

std::string replayQuestion(const SelectionForm& form, std::string_view replayed) {
  if (refusedExtra(form) != 0 || !complaint(form.rules, markedPlay(form)).empty()) return {};
  const std::vector<int> numbers = numbersIn(replayed);
  const Marks marks = marksOf(form);
  const auto isIn = [](const std::vector<int>& those, int number) {
    return std::ranges::find(those, number) != those.end();
  };
  // Another number in the place of those left out is the player's own choice.
  if (!std::ranges::all_of(marks.mains, [&](int number) { return isIn(numbers, number); })) return {};
  std::vector<int> left = leftByReplay(form, numbers);
  std::erase_if(left, [&](int number) { return isIn(marks.mains, number); });
  if (left.empty()) return {};
  return join("The earlier play had ", listed(texts(left)), ", which Replay has not marked. ",
              entering(form, marks), "\n\nSelect the play without ", listed(texts(left)), "?");
}

std::string committedHint(const SelectionForm& form) {
  const PlayFile committed(form.surroundings.folder, playFilePath(form.game, PlaySlot::committed));
  if (committed.empty()) return "Saved. No play waits for its draw now.";
  std::map<std::optional<Day>, std::size_t> byDay;
  for (const Play& play : committed.plays()) ++byDay[parseDay(play.date)];
  const std::size_t count = committed.plays().size();
  const std::string plays = join("Saved. Now ", counted(count, "play"), count == 1 ? " waits" : " wait");
  const auto& [firstDay, ofFirst] = *byDay.begin();
  const auto& lastDay = byDay.rbegin()->first;
  if (!firstDay) return plays + ".";
  if (byDay.size() == 1) return join(plays, " for the draw of ", weekdayDate(*firstDay), ".");
  const bool even =
      std::ranges::all_of(byDay, [each = ofFirst](const auto& day) { return day.second == each; });
  return join(plays, ", ", even ? join(numberWord(ofFirst), " for each of ") : "for ",
              counted(byDay.size(), "draw"), " from ", weekdayDate(*firstDay), " to ", weekdayDate(*lastDay),
              ".");
}

bool hasPlaysToLose(const SelectionForm& form) {
  return form.Command5.enabled() && !form.Combo1.items().empty();
}

std::string markLine(SelectionForm& form, std::string_view line) {
  const std::vector<int> numbers = numbersIn(line);
  if (numbers.empty() || !form.Command84.enabled()) return {};
  Command84_Click(form);
  std::vector<std::string> left;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const int number = numbers[i];
    const bool asExtra = i == 5;
    if (number > (asExtra ? form.rules.threeMarks : form.game.lastNumber)) {
      left.push_back(join(asExtra ? join(extraName(form), " ") : "", twoDigits(number)));
      continue;
    }
    const Mark wanted = asExtra ? Mark::extra : Mark::main;
    while (markOf(form.button(number)) != wanted) Number_Click(form, number);
  }
  return left.empty() ? "" : join("The slip does not have ", listed(left), ".");
}

bool RemovedMarks::watch(const SelectionForm& form, const std::function<void()>& action) {
  std::vector<Mark> before;
  for (const auto& button : form.numbers) before.push_back(markOf(*button));
  const std::size_t plays = form.Combo1.items().size();
  action();
  bool gone = false;
  for (std::size_t i = 0; i < before.size(); ++i)
    gone = gone || (before[i] != Mark::none && markOf(*form.numbers[i]) != before[i]);
  if (!gone || form.Combo1.items().size() != plays) return false;
  removed_.push_back(std::move(before));
  return true;
}

bool RemovedMarks::bringBack(SelectionForm& form) {
  if (removed_.empty()) return false;
  for (std::size_t i = 0; i < form.numbers.size(); ++i) setMark(*form.numbers[i], removed_.back()[i]);
  removed_.pop_back();
  return true;
}

}  // namespace tallywick
