// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_pages.h"

#include "core/plays.h"
#include "core/text.h"
#include "search/history_file.h"

namespace tallywick {

namespace {

/// The first item added is the drop-down's text as well.
void addToPicker(ComboBox& picker, std::string_view item) {
  if (picker.items().empty()) picker.setText(item);
  picker.add(item);
}

template <typename... Controls>
void clearAll(Controls&... controls) {
  (controls.clear(), ...);
}

void setCaptions(ButtonRow<6>& numbers, const std::array<std::string, 6>& draw) {
  for (std::size_t i = 0; i < draw.size(); ++i) numbers[i].setCaption(draw[i]);
}

}  // namespace

void fillDrawPickers(SearchPages& pages, const DataFolder& folder, const GameInfo& game) {
  // No structured binding: not every compiler lets a lambda capture one.
  auto& twoThree = pages.twoThree;
  auto& havePlayed = pages.havePlayed;
  auto& played = pages.played;
  auto& havePlayedPlays = pages.havePlayedPlays;
  clearAll(havePlayed.Combo2, played.Combo3, twoThree.Combo4, havePlayed.List6, played.List7, twoThree.List8,
           havePlayedPlays.List9);
  SequentialReader history(folder, inFolder(game, searchDrawsFile), SequentialReader::Reading::inPieces);
  const auto addDraws = [&] {
    forEachRecordView<drawFields>(history, [&](const RecordView<drawFields>& record) {
      const Draw draw = drawAt(record, mainBalls);
      const std::string_view item = addDraw(havePlayedPlays.List9, draw);
      if (played.Combo3.items().empty()) {
        for (ComboBox* picker : {&havePlayed.Combo2, &twoThree.Combo4}) picker->setText(item);
        played.Combo3.setText(join(" ", draw.displayDate(), "    ", record[multiplierField]));
      }
      played.Combo3.addJoined(" ", draw.month, "-", draw.day, "-", draw.year, "    ",
                              record[multiplierField]);
    });
  };
  fillAlike(havePlayedPlays.List9, addDraws, havePlayed.Combo2, twoThree.Combo4, havePlayed.List6,
            played.List7, twoThree.List8);
}

void fillPlayPicker(SearchPages& pages, const DataFolder& folder, const GameInfo& game) {
  ComboBox& picker = pages.havePlayedPlays.Combo8;
  picker.clear();
  SequentialReader played = openPlays(folder, playFilePath(game, PlaySlot::played));
  forEachRecord<playFields>(played, [&](const Fields<playFields>& record) {
    const Play play = playOf(record);
    if (play.isListed()) addToPicker(picker, join(" ", play.drawLine()));
  });
}

void fillDoublePlayLists(SearchPages& pages, const DataFolder& folder) {
  ListBox& List6 = pages.havePlayed.List6;
  ListBox& List7 = pages.played.List7;
  ListBox& List8 = pages.twoThree.List8;
  clearAll(List6, List7, List8);
  SequentialReader history(folder, inFolder(powerBall, doublePlayFile), SequentialReader::Reading::inPieces);
  const auto addDraws = [&] {
    forEachRecord<doublePlayFields>(
        history, [&](const Fields<doublePlayFields>& record) { addDraw(List8, doublePlayDrawOf(record)); });
  };
  fillAlike(List8, addDraws, List6, List7);
}

void setSearchCaptions(SearchPages& pages, const std::array<std::string, 6>& newestDraw) {
  setCaptions(pages.havePlayed.numbers, newestDraw);
  pages.played.Command23.setCaption(newestDraw[0]);
  setCaptions(pages.twoThree.numbers, newestDraw);
}

}  // namespace tallywick
