// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_pages.h"

#include "core/plays.h"
#include "core/text.h"

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
  SequentialReader history(folder, inFolder(game, searchDrawsFile));
  std::string item;
  forEachRecord<drawFields>(history, [&](const Fields<drawFields>& record) {
    const Draw draw = drawOf(record);
    item.assign(1, ' ');
    draw.appendLine(item);
    addToPicker(havePlayed.Combo2, item);
    addToPicker(twoThree.Combo4, item);
    for (ListBox* list : {&havePlayed.List6, &played.List7, &twoThree.List8, &havePlayedPlays.List9}) {
      list->add(item);
    }
    addToPicker(played.Combo3, join(" ", draw.displayDate(), "    ", record[multiplierField]));
  });
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
  SequentialReader history(folder, inFolder(powerBall, doublePlayFile));
  std::string item;
  forEachRecord<doublePlayFields>(history, [&](const Fields<doublePlayFields>& record) {
    item.assign(1, ' ');
    doublePlayDrawOf(record).appendLine(item);
    for (ListBox* list : {&List6, &List7, &List8}) list->add(item);
  });
}

void setSearchCaptions(SearchPages& pages, const std::array<std::string, 6>& newestDraw) {
  setCaptions(pages.havePlayed.numbers, newestDraw);
  pages.played.Command23.setCaption(newestDraw[0]);
  setCaptions(pages.twoThree.numbers, newestDraw);
}

}  // namespace tallywick
