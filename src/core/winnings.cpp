// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/winnings.h"

#include "core/data_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <charconv>

namespace tallywick {

namespace {

/// Whether a mark count, a decimal number as text, is 1 or more.
bool isMarked(std::string_view markCount, const SequentialReader& reader) {
  std::string_view text = trimmed(markCount);
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  // The conversion takes "inf" and "nan" for numbers.
  const bool isDecimal = text.find_first_not_of("0123456789.eE+-") == std::string_view::npos &&
                         markCount.find("+-") == std::string_view::npos;
  if (!isDecimal || error != std::errc() || end != text.data() + text.size()) {
    throw RuntimeError(ErrorNumber::typeMismatch,
                       join(reader.name(), ", record ", std::to_string(reader.recordNumber()),
                            ": mark count \"", markCount, "\" is not a number"));
  }
  return value >= 1;
}

}  // namespace

void listAmounts(const DataFolder& folder, const GameInfo& game,
                 const std::function<void(std::string_view)>& add) {
  SequentialReader reader(folder, inFolder(game, game.winningsFile));
  forEachRecordButLast<winningsFields>(reader, [&](const Fields<winningsFields>& record) {
    const auto& [month, day, year, amount, markCount] = record;
    const std::string_view mark = isMarked(markCount, reader) ? "     * " : "        ";
    add(join(" ", month, "-", day, "-", year, "    ", trimmed(amount), mark));
  });
}

void AmountLookup::read(const DataFolder& folder) {
  amounts_.clear();
  firstAmount_ = {};
  SequentialReader& reader = reader_.emplace(folder, inFolder(game_, game_.winningsFile));
  Fields<winningsFields> inHand = reader.record<winningsFields>();
  firstAmount_ = inHand[3];
  while (!reader.atEnd()) {
    amounts_.insert_or_assign(join(inHand[0], inHand[1], inHand[2]), trimmed(inHand[3]));
    inHand = reader.record<winningsFields>();
  }
}

AmountLookup::Amount AmountLookup::of(const std::string& dateKey) const {
  const auto found = amounts_.find(dateKey);
  // Kept slip: a draw without an amount of its own shows the first one.
  const std::string_view text = found == amounts_.end() ? firstAmount_ : found->second;
  return {text, text == game_.baseAmount ? " * " : "   "};
}

}  // namespace tallywick
