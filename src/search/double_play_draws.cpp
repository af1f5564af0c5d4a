// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/double_play_draws.h"

#include "core/data_folder.h"
#include "core/draws.h"
#include "core/games.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "search/combinations.h"
#include "search/history_file.h"
#include "search/marks.h"

#include <algorithm>
#include <vector>

namespace tallywick {

namespace {

using DoublePlayRecord = RecordView<doublePlayFields>;

/// Of a record, whether it has all the numbers among its white balls or among all six.
bool hasAll(const DoublePlayRecord& record, const std::vector<SearchedNumber>& searched,
            const Combination& combination) {
  return std::ranges::all_of(searched, [&](const SearchedNumber& number) {
    return combination.compared == 5 ? number.isIn<5>(record, doublePlayBalls)
                                     : number.isIn<6>(record, doublePlayBalls);
  });
}

}  // namespace

bool listDoublePlayDraws(const ButtonRow<6>& numbers, const DataFolder& folder, TextLines& lines) {
  lines.clear();
  const auto marked = std::ranges::count_if(numbers, isMarked);
  const Combination* combination = marked < 2 || marked > 3 ? nullptr : chosenCombination(numbers);
  if (combination == nullptr) return false;
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < combination->size(); ++i)
    texts.push_back(numbers[combination->positions[i] - 1U].caption());
  const std::vector<SearchedNumber> searched(texts.begin(), texts.end());
  try {
    SequentialReader history(folder, join(powerBall.folder, doublePlayFile),
                             SequentialReader::Reading::inPieces);
    forEachRecordView<doublePlayFields>(history, [&](const DoublePlayRecord& record) {
      if (!hasAll(record, searched, *combination)) return;
      const Draw draw = drawAt(record, doublePlayBalls);
      if (draw.hasNumbers()) lines.add(join(" ", draw.line()));
    });
  } catch (const RuntimeError& error) {
    return error.is(ErrorNumber::inputPastEnd);
  }
  return true;
}

}  // namespace tallywick
