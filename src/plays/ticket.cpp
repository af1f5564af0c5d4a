// SPDX-License-Identifier: GPL-3.0-or-later
#include "plays/ticket.h"

#include "core/data_folder.h"
#include "core/draws.h"
#include "core/eras.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "plays/play_table.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <vector>

namespace tallywick {

namespace {

[[noreturn]] void refuse(const std::string& what) {
  throw std::invalid_argument(what);
}

std::vector<std::string_view> wordsIn(std::string_view text) {
  constexpr std::string_view separators = " ,;\t";
  std::vector<std::string_view> words;
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
    if (text.empty()) return words;
    const std::size_t end = text.find_first_of(separators);
    words.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end, text.size()));
  }
}

int numberUpTo(int last, std::string_view word, std::string_view what) {
  const std::optional<int> number = wholeNumber<int>(word);
  if (!number || *number < 1 || *number > last) {
    refuse(join(what, " is \"", word, "\"; it must be a number from 1 to ", std::to_string(last), "."));
  }
  return *number;
}

std::string describe(const GameInfo& game, const JudgedPlay& ticket) {
  if (ticket.state == DrawState::waiting) {
    const bool isScheduled = isDrawDay(game.game, *ticket.day);
    return join("The draw of ", dateText(ticket), " has not taken place yet, or is not in the record book.",
                isScheduled ? "" : join(" By its schedule ", game.name, " is not drawn on that day."));
  }
  if (ticket.state == DrawState::unknown) {
    return join("The record book has no ", game.name, " draw of ", dateText(ticket), ".");
  }
  const std::string prize = prizeText(ticket);
  return join("Drawn on ", dateText(ticket), ". Matched: ", matchText(ticket.match, game.game), ". ",
              prize.empty()              ? "It does not win."
              : ticket.prize.has_value() ? join("It wins ", prize, ".")
                                         : join("It wins: ", prize, "."));
}

}  // namespace

std::optional<Day> typedDay(std::string_view text) {
  const std::string_view typed = trimmed(text);
  const bool isDigits = typed.find_first_not_of("0123456789") == std::string_view::npos;
  if (isDigits && typed.size() == 8) return parseDay(typed.substr(0, 2), typed.substr(2, 2), typed.substr(4));
  const std::size_t month = typed.find('-');
  if (month == 4) {
    const std::size_t day = std::min(typed.find('-', month + 1), typed.size());
    return parseDay(typed.substr(month + 1, day - month - 1), typed.substr(std::min(day + 1, typed.size())),
                    typed.substr(0, month));
  }
  return parseDay(typed);
}

std::optional<Day> newestDrawDay(const GameInfo& game, const DataFolder& folder) {
  try {
    SequentialReader reader(folder, inFolder(game, drawsFile), SequentialReader::Reading::inPieces);
    return reader.atEnd() ? std::nullopt : drawOf(reader.record<drawFields>()).drawnOn();
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::string ticketRecord(const GameInfo& game, const TypedTicket& typed) {
  const std::optional<Day> day = typedDay(typed.date);
  if (!day) refuse(join("The date is \"", trimmed(typed.date), "\"; it must be a day as MM-DD-YYYY."));
  const std::optional<Matrix> matrix = matrixOn(game.game, *day);
  if (!matrix) refuse(join(game.name, " was first drawn on ", displayDate(firstDrawDay(game.game)), "."));
  const std::vector<std::string_view> words = wordsIn(typed.numbers);
  std::set<int> numbers;
  for (const std::string_view word : words) numbers.insert(numberUpTo(matrix->white, word, "A number"));
  if (words.size() != 5 || numbers.size() != 5) {
    refuse(join("A ticket has five different numbers and the ", extraBallName(game.game), "; there are ",
                std::to_string(numbers.size()), "."));
  }
  const int extra = numberUpTo(matrix->extra, trimmed(typed.extra), join("The ", extraBallName(game.game)));

  const std::string date = displayDate(*day);
  const std::string extraText = twoDigits(extra);
  std::array<int, 5> main{};
  std::array<std::string, 5> mainTexts;
  std::ranges::copy(numbers, main.begin());
  std::ranges::transform(main, mainTexts.begin(), twoDigits);
  const std::string decades = decadePattern(game, main);
  std::string record;
  appendRecord(
      record,
      {date, {mainTexts[0], mainTexts[1], mainTexts[2], mainTexts[3], mainTexts[4]}, extraText, decades});
  return record;
}

JudgedPlay judgeTicket(const GameInfo& game, const DataFolder& folder, std::string_view record) {
  return judgePlays(game, folder, record).plays.at(0);
}

std::string ticketVerdict(const GameInfo& game, const JudgedPlay& ticket) {
  std::string text = describe(game, ticket);
  if (!ticket.doublePlay) return text;
  return join(text, " With Double Play: ", matchText(*ticket.doublePlay, game.game),
              winsDoublePlay(ticket)             ? ", it wins."
              : ticket.state == DrawState::drawn ? ", it does not win."
                                                 : ".");
}

bool canBeKept(const GameInfo& game, const JudgedPlay& ticket) {
  return ticket.state == DrawState::drawn ||
         (ticket.state == DrawState::waiting && isDrawDay(game.game, *ticket.day));
}

PlaySlot fileForTicket(const JudgedPlay& ticket) {
  return ticket.state == DrawState::drawn ? PlaySlot::played : PlaySlot::committed;
}

bool isAmongPlays(const Judgement& plays, const JudgedPlay& ticket) {
  return std::ranges::any_of(plays.plays, [&](const JudgedPlay& play) {
    return play.day == ticket.day && play.extra == ticket.extra &&
           std::ranges::is_permutation(play.white, ticket.white);
  });
}

}  // namespace tallywick
