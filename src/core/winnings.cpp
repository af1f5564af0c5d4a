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
  if (error != std::errc() || end != text.data() + text.size()) {
    throw RuntimeError(ErrorNumber::typeMismatch,
                       join(reader.name(), ", near record ", std::to_string(reader.recordNumber()),
                            ": mark count \"", markCount, "\" is no number"));
  }
  return value >= 1;
}

}  // namespace

std::vector<std::string> listAmounts(const DataFolder& folder, const GameInfo& game) {
  std::vector<std::string> lines;
  SequentialReader reader(folder, inFolder(game, game.winningsFile));
  forEachRecordButLast<winningsFields>(reader, [&](const Fields<winningsFields>& record) {
    const auto& [month, day, year, amount, markCount] = record;
    const std::string_view mark = isMarked(markCount, reader) ? "     * " : "        ";
    lines.push_back(join(" ", month, "-", day, "-", year, "    ", trimmed(amount), mark));
  });
  return lines;
}

AmountLookup::AmountLookup(const DataFolder& folder, const GameInfo& game)
    : reader_(folder, inFolder(game, game.winningsFile)), baseAmount_(game.baseAmount) {
  Fields<winningsFields> inHand = reader_.record<winningsFields>();
  firstAmount_ = inHand[3];
  while (!reader_.atEnd()) {
    amounts_.insert_or_assign(join(inHand[0], inHand[1], inHand[2]), trimmed(inHand[3]));
    inHand = reader_.record<winningsFields>();
  }
}

AmountLookup::Amount AmountLookup::of(const std::string& dateKey) const {
  const auto found = amounts_.find(dateKey);
  const std::string_view text = found == amounts_.end() ? firstAmount_ : found->second;
  return {text, text == baseAmount_ ? " * " : "   "};
}

}  // namespace tallywick
