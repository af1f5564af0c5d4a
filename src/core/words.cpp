// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/words.h"

#include "core/text.h"

#include <array>

namespace tallywick {

namespace {

constexpr std::array<std::string_view, 11> numberWords = {"no",  "one",   "two",   "three", "four", "five",
                                                          "six", "seven", "eight", "nine",  "ten"};

}  // namespace

std::string_view extraBallName(Game game) {
  return game == Game::powerBall ? "PowerBall" : "Mega Ball";
}

std::string weekdayDate(Day day) {
  return join(weekdayName(day).substr(0, 3), " ", displayDate(day));
}

std::string weekdayDate(std::string_view date) {
  const std::optional<Day> day = parseDay(date);
  return day ? weekdayDate(*day) : std::string(date);
}

std::string numberWord(std::size_t count) {
  return count < numberWords.size() ? std::string(numberWords.at(count)) : std::to_string(count);
}

std::string counted(std::size_t count, std::string_view thing) {
  return join(numberWord(count), " ", thing, count == 1 ? "" : "s");
}

std::string inFigures(std::size_t count, std::string_view thing) {
  return join(std::to_string(count), " ", thing, count == 1 ? "" : "s");
}

std::string grouped(std::uint64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
  return text;
}

std::string listed(const std::vector<std::string>& things) {
  std::string text;
  for (std::size_t i = 0; i < things.size(); ++i) {
    if (i > 0) text += i + 1 == things.size() ? " and " : ", ";
    text += things[i];
  }
  return text;
}

std::string sentence(std::string text) {
  if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
  return text;
}

}  // namespace tallywick
