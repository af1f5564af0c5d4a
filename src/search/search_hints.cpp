// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_hints.h"

#include "core/text.h"
#include "core/words.h"
#include "search/combinations.h"
#include "search/marks.h"

#include <algorithm>
#include <vector>

namespace tallywick {

namespace {

std::vector<Button*> filledOf(std::vector<Button*> numbers) {
  std::erase_if(numbers, [](const Button* number) { return trimmed(number->caption()).empty(); });
  return numbers;
}

std::size_t markedCount(const ButtonRow<6>& numbers) {
  return static_cast<std::size_t>(std::count_if(numbers.begin(), numbers.end(), isMarked));
}

/// The combination that a press searches; null where it searches none.
const Combination* searchedCombination(const ButtonRow<6>& numbers) {
  const std::size_t marked = markedCount(numbers);
  return marked < 2 || marked > 3 ? nullptr : chosenCombination(numbers);
}

std::vector<std::string> captionsOf(const Combination& combination, const ButtonRow<6>& numbers) {
  std::vector<std::string> captions;
  for (std::size_t i = 0; i < combination.size(); ++i)
    captions.emplace_back(trimmed(numbers[combination.positions[i] - 1U].caption()));
  return captions;
}

bool hasEmpty(const std::vector<std::string>& captions) {
  return std::ranges::any_of(captions, &std::string::empty);
}

/// The draws that a count looks at while the game frame is visible; empty where it looks at none.
std::string_view countedGame(const GameFrames& frames, bool hasDoublePlay) {
  if (frames.Frame4.visible()) return powerBall.name;
  if (!hasDoublePlay && frames.Frame5.visible()) return "Hoosier";
  if (hasDoublePlay && frames.Frame6.visible()) return "Double Play";
  return frames.Frame11.visible() ? megaMillions.name : std::string_view();
}

Searched searchOf(std::string_view game, std::string_view number) {
  return {std::string(game), std::string(trimmed(number))};
}

constexpr std::string_view ownNumbers =
    " In the place of a draw you can type numbers such as 7 17; Display marks them.";

/// The hint of a page on which balls are marked and one is counted.
SearchHint markedHint(const ButtonRow<6>& numbers, std::string_view game, const Button& search,
                      std::string_view source) {
  const std::size_t marked = markedCount(numbers);
  if (game.empty())
    return {false, false, "Nothing is counted for the game on show: press PowerBall or Mega Millions."};
  if (marked == 0)
    return {false, false,
            join("Mark one ball, then press ", search.caption(), ". In the place of a ", source,
                 " you can type a number such as 7; Display marks it.")};
  const std::string number(trimmed(firstMarkedNumber(numbers)));
  if (number.empty())
    return {false, false, join("The marked ball has no number: choose a ", source, " and press Display.")};
  return {true, marked > 1,
          join(search.caption(), " counts the ", game, " draws with ", number,
               marked > 1 ? join(", the first of the ", numberWord(marked), " marked balls.") : ".")};
}

/// The numbers come from a play, and what is counted are draws all the same.
constexpr std::string_view drawsNotPlays = " It counts draws, not your plays: My Plays has those.";

}  // namespace

std::optional<std::string> typedDrawLine(std::string_view typed) {
  constexpr std::string_view separators = " ,;+";
  std::vector<int> numbers;
  bool hasExtra = false;
  for (std::size_t at = 0; (at = typed.find_first_not_of(separators, at)) != std::string_view::npos;) {
    const std::size_t end = std::min(typed.find_first_of(separators, at), typed.size());
    const std::string_view field = typed.substr(at, end - at);
    const std::optional<int> number = wholeNumber<int>(field);
    if (!number || *number < 1 || *number > 99 || hasExtra) return std::nullopt;
    hasExtra = typed.substr(0, at).find('+') != std::string_view::npos;
    numbers.push_back(*number);
    at = end;
  }
  if (numbers.empty() || numbers.size() > 6) return std::nullopt;
  std::string line;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const bool isExtra = hasExtra && i + 1 == numbers.size();
    line.resize(numbersInDrawLine[isExtra ? 5 : i] - 1, ' ');
    line += twoDigits(numbers[i]);
  }
  return line;
}

void takeTypedNumbers(Button& display, ComboBox& source, const std::vector<Button*>& numbers,
                      std::size_t mostMarked) {
  display.onClick = [&source, numbers, mostMarked, act = display.onClick] {
    const std::string typed = source.text();
    const std::optional<std::string> line = typedDrawLine(typed);
    if (line) source.setText(*line);
    act();
    if (!line) return;
    source.setText(typed);
    const std::vector<Button*> filled = filledOf(numbers);
    if (filled.size() > mostMarked) return;
    for (Button* number : filled) {
      // The ball of a multiplier cannot be marked.
      if (number->onClick && !isMarked(*number)) number->onClick();
    }
  };
}

std::string typedHint(const Button& display, const ComboBox& source, const std::vector<Button*>& numbers) {
  const std::optional<std::string> line = typedDrawLine(source.text());
  if (!line) return {};
  std::vector<std::string> typed;
  bool areShown = true;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::string_view number = trimmed(cut(*line, numbersInDrawLine[i], 2));
    if (!number.empty()) typed.emplace_back(number);
    areShown = areShown && trimmed(numbers[i]->caption()) == number;
  }
  return areShown
             ? ""
             : join("Typed, and not on the balls yet: ", listed(typed), ". Press ", display.caption(), ".");
}

SearchHint searchHint(const TwoThreePage& page) {
  const std::size_t marked = markedCount(page.numbers);
  if (marked == 0)
    return {false, false, join("Mark two or three balls, then press the Search of a game.", ownNumbers)};
  if (marked == 1)
    return {false, false, "One ball is marked: mark one or two more. With one alone nothing is searched."};
  if (marked > 3)
    return {false, false,
            sentence(join(numberWord(marked), " balls are marked: two or three can be searched."))};
  const Combination& combination = *chosenCombination(page.numbers);
  const std::vector<std::string> captions = captionsOf(combination, page.numbers);
  if (hasEmpty(captions))
    return {false, false, "A marked ball has no number: choose a draw and press Display."};
  SearchHint hint = {true, captions.size() < marked || combination.compared == 5, {}};
  hint.text = join("Search looks for ", listed(captions), captions.size() < marked ? " only, " : " ",
                   combination.compared == 5 ? "among the five white balls of a draw, not in its extra ball."
                                             : "among all six balls of a draw.");
  if (combination.positions == Positions{2, 3, 6}) {
    hint.surprises = true;
    hint.text += " The count of Double Play stays 0; the true one is below it.";
  }
  return hint;
}

SearchHint searchHint(const HavePlayedPage& page, const GameFrames& frames) {
  return markedHint(page.numbers, countedGame(frames, true), page.Command21, "draw");
}

SearchHint searchHint(const PlayedPage& page, const GameFrames& frames) {
  constexpr std::string_view own =
      " Display takes what is behind a draw's date, its multiplier; type a number such as 7 for another one.";
  const Searched now = searchedNow(page, frames);
  if (now.game.empty()) return {false, false, "Nothing is counted for the game on show."};
  if (now.numbers.empty()) return {false, false, join("The ball has no number.", own)};
  const bool isWritten = now.numbers.size() == 2;
  return {isWritten, !isWritten,
          join("Search counts the ", now.game, " draws with ", now.numbers,
               isWritten ? "."
                         : join("; draws write it as 0", now.numbers, ", so it finds none: type 0",
                                now.numbers, " and press Display."),
               own)};
}

SearchHint searchHint(const HavePlayedPlaysPage& page, const GameFrames& frames) {
  SearchHint hint = markedHint(page.numbers, countedGame(frames, false), page.Command46, "play");
  if (!countedGame(frames, false).empty()) hint.text += drawsNotPlays;
  return hint;
}

Searched searchedNow(const TwoThreePage& page, std::string_view game) {
  const Combination* combination = searchedCombination(page.numbers);
  return {std::string(game), combination == nullptr ? "" : listed(captionsOf(*combination, page.numbers))};
}

Searched searchedNow(const HavePlayedPage& page, const GameFrames& frames) {
  return searchOf(countedGame(frames, true), firstMarkedNumber(page.numbers));
}

Searched searchedNow(const PlayedPage& page, const GameFrames& frames) {
  return searchOf(countedGame(frames, true), page.Command23.caption());
}

Searched searchedNow(const HavePlayedPlaysPage& page, const GameFrames& frames) {
  return searchOf(countedGame(frames, false), firstMarkedNumber(page.numbers));
}

void SearchMemory::watch(Button& search, const std::function<Searched()>& now,
                         const std::function<bool(TextLines&)>& listTrue) {
  search.onClick = [this, now, listTrue, act = search.onClick] {
    const Searched searched = now();
    const std::size_t listedBefore = listed_ != nullptr ? listed_->revision() : 0;
    act();
    searched_ = searched;
    isOld_ = false;
    true_.clear();
    isMixed_ = listTrue && listTrue(true_);
    foundRevision_ = found_.revision();
    // A press that searches nothing leaves the list alone.
    if (listed_ != nullptr && listed_->revision() != listedBefore) listedRevision_ = listed_->revision();
  };
}

std::string SearchMemory::hint(const Searched& now) const {
  if (!isOurs() || found_.empty()) return {};
  const std::string shown = join("the ", searched_.game, " draws with ", searched_.numbers);
  const bool otherGame = !now.game.empty() && now.game != searched_.game;
  const bool otherNumbers = !now.numbers.empty() && now.numbers != searched_.numbers;
  if (isOld_)
    return join("Still shown: ", shown, ", found before the draws changed. Search again for all of them.");
  if (!otherGame && !otherNumbers) return join("Shown: ", shown, ".");
  return join("Still shown: ", shown, otherNumbers ? ", not what is marked now" : "",
              otherGame ? join(", not the game on show (", now.game, ")") : "", ".");
}

std::string SearchMemory::foundText() const {
  if (!isOurs()) return {};
  if (isMixed_) return mixedText();
  const std::size_t count = found_.size();
  const std::string with = join(" with ", searched_.numbers, count == 1 ? " was" : " were", " found");
  if (count == 0) return join("No ", searched_.game, " draw with ", searched_.numbers, " was found.");
  return join(inFigures(count, join(searched_.game, " draw")), with,
              count == 1 ? "; the list below has it." : "; the list below has them all.");
}

std::string SearchMemory::mixedText() const {
  const std::size_t count = true_.size();
  const std::string draw = join(searched_.game, " draw");
  const std::string truly =
      count == 0 ? join("No ", draw, " has ", searched_.numbers, ".")
                 : join(inFigures(count, draw), count == 1 ? " has " : " have ", searched_.numbers,
                        count == 1 ? ": see the list on the left." : ": the list on the left has them all.");
  return join(truly,
              " The count above, the line Draws found and the last list are what old record books expect: "
              "they mix in other draws.");
}

bool SearchMemory::isFoundElsewhere() const {
  return isOurs() && (isMixed_ || listed_ == nullptr) && !foundElsewhere().empty();
}

bool SearchMemory::isListed() const {
  return listed_ != nullptr && listedRevision_ != 0 && listed_->revision() == listedRevision_;
}

}  // namespace tallywick
