// SPDX-License-Identifier: GPL-3.0-or-later
// The draw history as searches and counts read it: one pass, and a file that cannot be read is reported to
// the player.
#pragma once

#include "controls/controls.h"
#include "core/draws.h"
#include "core/outside.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace tallywick {

/// Nothing where the file cannot be read; then a message that names it has been shown.
std::optional<SequentialReader> openHistory(const DataFolder& folder, std::string_view written,
                                            MessageBoxes& boxes);

/// Shows the message that names a history file that cannot be read.
void reportUnreadable(std::string_view written, const RuntimeError& error, MessageBoxes& boxes);

/// Runs `read` on an open history. False where the disk fails it meanwhile; the player has been shown a
/// message then. A file that ends inside a record is raised.
template <typename Read>
bool readToEnd(std::string_view written, MessageBoxes& boxes, Read read) {
  try {
    read();
    return true;
  } catch (const RuntimeError& error) {
    if (error.is(ErrorNumber::inputPastEnd)) throw;
    reportUnreadable(written, error, boxes);
    return false;
  }
}

/// Adds the draw's line, with a blank before it and `tail` behind it, and returns the item.
std::string_view addDraw(ItemsControl& to, const Draw& draw, std::string_view tail = {});

/// Runs `fill`, which adds items to `from`, and lets the others have the same ones, also where it ends with
/// an error.
template <typename Fill, typename... Others>
void fillAlike(ItemsControl& from, Fill fill, Others&... others) {
  const auto share = [&] { (others.shareItems(from), ...); };
  try {
    fill();
  } catch (...) {
    share();
    throw;
  }
  share();
}

/// A number that is searched for, ready to be compared with the fields of many records.
class SearchedNumber {
 public:
  /// `text` must live as long.
  explicit SearchedNumber(std::string_view text) : text_(text), isPair_(text.size() == 2) {
    if (isPair_) pair_ = pairAt(text.data());
  }

  /// Whether one of the `Compared` fields from `first` on, which counts from 0, is this number.
  template <std::size_t Compared, std::size_t Count>
  bool isIn(const RecordView<Count>& record, std::size_t first) const {
    bool found = false;
    // All of them are looked at: leaving at the first hit costs more than it saves.
    if (isPair_ && record.havePairs(first, Compared)) {
      for (std::size_t i = first; i < first + Compared; ++i) found |= pairAt(record.at(i)) == pair_;
    } else {
      for (std::size_t i = first; i < first + Compared; ++i) found |= record[i] == text_;
    }
    return found;
  }

  /// Gives the records to `use` that have this number in one of the `Compared` fields from `first` on.
  template <std::size_t Compared, std::size_t Count, typename Use>
  void forEachWith(SequentialReader& history, std::size_t first, Use use) const {
    const auto useIf = [this, first, use](const RecordView<Count>& record) {
      if (isIn<Compared>(record, first)) use(record);
    };
    if (isPair_) history.lookFor({text_[0], text_[1], ((std::uint32_t{1} << Compared) - 1) << first});
    while (!history.atEnd()) {
      useIf(history.recordView<Count>());
      if (isPair_)
        history.forEachWanted<Count>(use);
      else
        history.forEachAlike<Count>(useIf);
    }
  }

 private:
  static std::uint16_t pairAt(const char* text) {
    std::uint16_t pair = 0;
    std::memcpy(&pair, text, sizeof pair);
    return pair;
  }

  std::string_view text_;
  bool isPair_;
  std::uint16_t pair_ = 0;
};

}  // namespace tallywick
