// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the draw of a date in a draw history.
#pragma once

#include "core/draws.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace tallywick {

class DataFolder;

/// A draw history that answers as if it were searched from its start for every date, but is read once and
/// only as far as the dates asked for need. The file is opened by the first search.
class DrawIndex {
 public:
  /// How a draw's date is compared: Draw::dateKey or Draw::displayDate.
  using DateText = std::string (Draw::*)() const;

  DrawIndex(const DataFolder& folder, std::string file, DateText dateText)
      : folder_(folder), file_(std::move(file)), dateText_(dateText) {}

  /// The first draw of the file with this date; null where there is none. Valid as long as the index.
  const Draw* find(const std::string& date) {
    if (const auto known = draws_.find(date); known != draws_.end()) return &known->second;
    if (!reader_) reader_.emplace(folder_, file_);
    while (!reader_->atEnd()) {
      const Draw draw = drawAt(reader_->recordView<drawFields>(), mainBalls);
      if (!wanted_.mayHave(draw.month, draw.day, draw.year)) continue;
      const auto [entered, isFirst] =
          draws_.try_emplace(dates_ == Dates::asKeys ? draw.dateKey() : draw.displayDate());
      if (isFirst) entered->second.keep(draw);
      if (entered->first == date) return &entered->second.draw;
    }
    return nullptr;
  }

 private:
  const DataFolder& folder_;
  std::string file_;
  DateText dateText_;
  std::optional<SequentialReader> reader_;
  std::unordered_map<std::string, Draw> draws_;
};

}  // namespace tallywick
