#include "setup/records.h"

#include "core/plays.h"
#include "core/text.h"

#include <algorithm>
#include <initializer_list>
#include <set>

namespace tallywick::setup {

namespace {

/// A record under construction; its end is written when it goes.
class Record {
 public:
  explicit Record(std::string& text) : text_(text) {}
  ~Record() { text_ += "\r\n"; }
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  Record& field(std::string_view value) {
    text_.append(first_ ? "\"" : ",\"").append(value).append("\"");
    first_ = false;
    return *this;
  }
  Record& day(Day day) {
    const DayFields fields = fieldsOf(day);
    return field(fields.month).field(fields.day).field(fields.year);
  }
  Record& balls(const Balls& balls) {
    for (int white : balls.white) field(twoDigits(white));
    return field(twoDigits(balls.extra));
  }

 private:
  std::string& text_;
  bool first_ = true;
};

void appendDoublePlay(std::string& text, const DrawEntry& draw) {
  Record record(text);
  record.day(draw.day).balls(draw.balls).field(draw.multiplier).field("DP");
  if (draw.doublePlay) {
    record.balls(*draw.doublePlay);
  } else {
    for (int i = 0; i < 6; ++i) record.field("");
  }
  record.field("1");
}

std::string decadePattern(Game game, const std::array<int, 5>& white) {
  std::string pattern(game == Game::powerBall ? 7 : 8, '0');
  for (int number : white) ++pattern[static_cast<std::size_t>(number / 10)];
  return pattern;
}

void appendAmount(std::string& text, const AmountEntry& entry) {
  Record(text).day(entry.day).field(entry.amount).field(std::to_string(entry.marks));
}

}  // namespace

std::string drawsText(const std::vector<DrawEntry>& draws) {
  std::string text;
  for (const DrawEntry& draw : draws) Record(text).day(draw.day).balls(draw.balls).field(draw.multiplier);
  return text;
}

std::string doublePlayText(const std::vector<DrawEntry>& draws) {
  std::string text;
  const auto isKnown = [](const DrawEntry& draw) { return draw.doublePlay.has_value(); };
  auto missing = static_cast<std::ptrdiff_t>(chartedDraws) - std::ranges::count_if(draws, isKnown);
  for (const DrawEntry& draw : draws) {
    if (isKnown(draw)) appendDoublePlay(text, draw);
  }
  for (const DrawEntry& draw : draws) {
    if (!isKnown(draw) && missing-- > 0) appendDoublePlay(text, draw);
  }
  return text;
}

std::string winningsText(std::vector<AmountEntry> amounts, const std::vector<DrawEntry>& draws) {
  std::set<Day> known;
  for (const AmountEntry& entry : amounts) known.insert(entry.day);
  for (std::size_t i = 0; i < std::min(shownDraws, draws.size()); ++i) {
    if (!known.contains(draws[i].day)) amounts.push_back({draws[i].day, "", 0});
  }
  std::ranges::stable_sort(amounts, std::greater(), &AmountEntry::day);
  std::string text;
  for (const AmountEntry& entry : amounts) appendAmount(text, entry);
  if (!amounts.empty()) appendAmount(text, amounts.back());
  return text;
}

std::string playsText(Game game, const std::vector<PlayEntry>& plays) {
  std::string text;
  for (const PlayEntry& play : plays) {
    Record(text).field(displayDate(play.day)).balls(play.balls).field(decadePattern(game, play.balls.white));
  }
  return text;
}

std::string savedTexts(const std::vector<Balls>& texts) {
  std::string text;
  for (const Balls& balls : texts) {
    std::string line;
    for (int white : balls.white) line.append(twoDigits(white)).append("  ");
    Record(text).field(line.append(twoDigits(balls.extra)));
  }
  return text;
}

std::string calendarText(Day first, Day last) {
  constexpr std::array names = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
  std::string text;
  for (Day day = first; day <= last; day += 1) {
    const int code = day.weekday();
    std::string ordinal = std::to_string(day.dayOfYear());
    ordinal.insert(0, 3 - ordinal.size(), '0');
    Record(text)
        .day(day)
        .field(names.at(static_cast<std::size_t>(code - 1)))
        .field(ordinal)
        .field(std::to_string(code));
  }
  return text;
}

}  // namespace tallywick::setup
