// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the draws of the plays' dates in a draw history.
#pragma once

#include "core/draws.h"
#include "core/plays.h"
#include "core/runtime_error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

namespace tallywick {

class DataFolder;

/// A draw history that answers as if it were searched from its start for every play, but is read once and
/// only as far as the plays asked for need. The file is opened by the first search.
class DrawIndex {
 public:
  /// How dates are compared: as dateKey() makes them, or as they are shown.
  enum class Dates : std::uint8_t { asKeys, asShown };

  /// For the plays that `plays` is about to read.
  DrawIndex(const DataFolder& folder, std::string file, Dates dates, const SequentialReader& plays)
      : folder_(folder), file_(std::move(file)), dates_(dates) {
    SequentialReader ahead(plays.text(), plays.name());
    try {
      while (!ahead.atEnd()) wanted_.add(dateOf(playOf(ahead.record<playFields>())));
    } catch (const RuntimeError&) {
      // Who reads the plays comes upon it.
    }
  }

  /// The first draw of the file with the date of the play; null where there is none. Valid as long as the
  /// index.
  const Draw* find(const Play& play) {
    const std::string date = dateOf(play);
    if (const auto known = draws_.find(date); known != draws_.end()) return &known->second.draw;
    if (!reader_) reader_.emplace(folder_, file_, SequentialReader::Reading::inPieces);
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
  /// A draw with the texts that it views.
  struct KeptDraw {
    void keep(const Draw& kept) {
      draw = kept;
      text.reserve(kept.lineSize({}));
      for (std::string_view* field : {&draw.month, &draw.day, &draw.year, &draw.extra}) take(*field);
      for (std::string_view& ball : draw.white) take(ball);
    }
    void take(std::string_view& field) {
      const std::size_t begin = text.size();
      text += field;
      field = std::string_view(text).substr(begin);
    }
    std::string text;
    Draw draw;
  };

  std::string dateOf(const Play& play) const {
    return dates_ == Dates::asKeys ? play.dateKey() : std::string(play.date);
  }

  const DataFolder& folder_;
  std::string file_;
  Dates dates_;
  WantedDates wanted_;
  std::optional<SequentialReader> reader_;
  std::unordered_map<std::string, KeptDraw> draws_;
};

}  // namespace tallywick
