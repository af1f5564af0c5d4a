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
  if (markCount.size() == 1 && markCount[0] >= '0' && markCount[0] <= '9') return markCount[0] > '0';
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

void forEachAmount(const DataFolder& folder, const GameInfo& game,
                   const std::function<void(const RecordView<winningsFields>& record, bool isMarked)>& use) {
  SequentialReader reader(folder, inFolder(game, game.winningsFile), SequentialReader::Reading::inPieces);
  forEachRecordButLast<winningsFields>(
      reader, [&](const RecordView<winningsFields>& record) { use(record, isMarked(record[4], reader)); });
}

AmountLookup::AmountLookup(const GameInfo& game, const std::vector<std::string>& dateKeys) : game_(game) {
  for (const std::string& key : dateKeys) wanted_.add(key);
}

void AmountLookup::read(const DataFolder& folder) {
  amounts_.clear();
  firstAmount_.clear();
  SequentialReader reader(folder, inFolder(game_, game_.winningsFile), SequentialReader::Reading::inPieces);
  const auto take = [&](const RecordView<winningsFields>& record) {
    if (wanted_.mayHave(record[0], record[1], record[2]))
      amounts_.insert_or_assign(join(record[0], record[1], record[2]), trimmed(record[3]));
  };
  const RecordView<winningsFields> first = reader.recordView<winningsFields>();
  firstAmount_ = first[3];
  if (reader.atEnd()) return;
  take(first);
  forEachRecordButLast<winningsFields>(reader, take);
}

AmountLookup::Amount AmountLookup::of(const std::string& dateKey) const {
  const auto found = amounts_.find(dateKey);
  // Kept slip: a draw without an amount of its own shows the first one.
  const std::string& text = found == amounts_.end() ? firstAmount_ : found->second;
  return {text, text == game_.baseAmount ? " * " : "   "};
}

}  // namespace tallywick
