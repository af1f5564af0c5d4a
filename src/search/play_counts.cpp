// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/play_counts.h"

#include "core/draws.h"
#include "core/games.h"
#include "core/text.h"
#include "search/history_file.h"
#include "search/marks.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace tallywick {

HavePlayedPage::HavePlayedPage(Form& form)
    : Combo2(form, "Combo2"),
      Command22(form, "Command22", "Display"),
      numbers(form, {"Command15", "Command16", "Command17", "Command18", "Command19", "Command20"}),
      Command21(form, "Command21", "Serach"),  // Kept slip.
      Combo5(form, "Combo5"),
      List6(form, "List6"),
      Label23(form, "Label23") {}

PlayedPage::PlayedPage(Form& form)
    : Combo3(form, "Combo3"),
      Command24(form, "Command24", "Display"),
      Command29(form, "Command29", "Display"),
      Command23(form, "Command23"),
      Command30(form, "Command30", "Search"),
      Combo6(form, "Combo6"),
      List7(form, "List7"),
      Label24(form, "Label24") {}

HavePlayedPlaysPage::HavePlayedPlaysPage(Form& form)
    : Combo8(form, "Combo8"),
      Command45(form, "Command45", "Display"),
      numbers(form, {"Command39", "Command40", "Command41", "Command42", "Command43", "Command44"}),
      Command46(form, "Command46", "Search"),
      Combo9(form, "Combo9"),
      List9(form, "List9"),
      Label26(form, "Label26") {}

namespace {

/// The draw history that is counted while a game frame is visible.
struct History {
  Frame GameFrames::*frame;
  std::string_view gameFolder;
  std::string_view file;
  bool isDoublePlay = false;
};

constexpr History powerBallHistory = {&GameFrames::Frame4, powerBall.folder, searchDrawsFile};
constexpr History doublePlayHistory = {&GameFrames::Frame6, powerBall.folder, doublePlayFile, true};
constexpr History hoosierHistory = {&GameFrames::Frame5, hoosierFolder, searchDrawsFile};
constexpr History megaMillionsHistory = {&GameFrames::Frame11, megaMillions.folder, searchDrawsFile};

/// In the order in which the frames are looked at.
using Histories = std::array<History, 3>;
constexpr Histories drawHistories = {powerBallHistory, doublePlayHistory, megaMillionsHistory};
constexpr Histories playHistories = {powerBallHistory, hoosierHistory, megaMillionsHistory};

/// Null where none of the frames is visible.
const History* visibleHistory(const Histories& histories, const GameFrames& frames) {
  const auto visible = std::find_if(histories.begin(), histories.end(), [&](const History& history) {
    return (frames.*history.frame).visible();
  });
  return visible == histories.end() ? nullptr : visible;
}

/// Lists the draws that contain one number and counts them.
class Count {
 public:
  /// The draws come into `items`; one of them is the text of `results`, too.
  Count(std::string_view number, ItemsControl& items, ComboBox& results)
      : number_(number), items_(items), results_(results) {}

  /// Takes the rest of the file, whose records have their draw from field `first` on.
  template <std::size_t Fields>
  void takeAll(SequentialReader& history, std::size_t first) {
    const auto listIt = [this, first](const RecordView<Fields>& record) { list(record, first); };
    try {
      number_.forEachWith<6, Fields>(history, first, listIt);
    } catch (...) {
      showText();
      throw;
    }
    showText();
  }

  std::size_t times() const { return times_; }

 private:
  /// Not inline: that would slow down the loop, which seldom comes here.
  template <std::size_t Fields>
  [[gnu::noinline]] void list(const RecordView<Fields>& record, std::size_t first) {
    const bool isExtra = number_.isIn<1>(record, first + 5);
    addDraw(items_, drawAt(record, first));
    // Kept slip: a draw with the number as extra ball counts as a first one, whatever was found before.
    if (times_ == 0 || isExtra) textLine_ = items_.items().size() - 1;
    ++times_;
  }

  void showText() {
    if (times_ > 0) results_.setText(items_.items()[textLine_]);
  }

  SearchedNumber number_;
  ItemsControl& items_;
  ComboBox& results_;
  std::size_t times_ = 0;
  /// The item that is the text of the results.
  std::size_t textLine_ = 0;
};

/// How often the number came up; nothing where the history cannot be read.
std::optional<std::size_t> countDraws(Count count, const History& history, const DataFolder& folder,
                                      MessageBoxes& boxes) {
  const std::string file = join(history.gameFolder, history.file);
  std::optional<SequentialReader> reader = openHistory(folder, file, boxes);
  if (!reader) return std::nullopt;
  const bool whole = readToEnd(file, boxes, [&] {
    if (history.isDoublePlay) {
      count.takeAll<doublePlayFields>(*reader, doublePlayBalls);
    } else {
      count.takeAll<drawFields>(*reader, mainBalls);
    }
  });
  return whole ? std::make_optional(count.times()) : std::nullopt;
}

std::string havePlayedTally(std::string_view number, std::size_t times) {
  return join(" ", number, "  Have Played:  ", std::to_string(times), "   Times");
}

std::size_t extraBallPositionOf(const GameFrames& frames) {
  return frames.Frame5.visible() ? hoosierExtraBallPosition : extraBallPosition;
}

}  // namespace

void Command22_Click(HavePlayedPage& page, const GameFrames& frames) {
  displayNumbers(page.numbers, page.Combo2.text(), extraBallPositionOf(frames));
}

void havePlayedNumber_Click(HavePlayedPage& page, Button& number) {
  toggleMark(number);
  page.Command21.setEnabled(true);
}

void Command21_Click(HavePlayedPage& page, const GameFrames& frames, const DataFolder& folder,
                     MessageBoxes& boxes) {
  page.Combo5.clear();
  const History* history = visibleHistory(drawHistories, frames);
  if (history == nullptr) return;
  page.List6.clear();
  const std::string number = firstMarkedNumber(page.numbers);
  const auto times = countDraws(Count(number, page.Combo5, page.Combo5), *history, folder, boxes);
  if (!times) return;
  if (*times == 0) {
    // Kept slip: also where a number is selected and never came up.
    boxes.show({"One Number Must Be Selected...", "PowerBall Lotto Search."});
    return;
  }
  page.Label23.setCaption(havePlayedTally(number, *times));
  unmarkAll(page.numbers);
  page.Command21.setEnabled(false);
}

void Command29_Click(PlayedPage& page, const GameFrames& frames) {
  const bool hasGame = visibleHistory(drawHistories, frames) != nullptr;
  page.Command23.setCaption(hasGame ? trimmed(cut(page.Combo3.text(), 16, 2)) : std::string_view());
}

void Command30_Click(PlayedPage& page, const GameFrames& frames, const DataFolder& folder,
                     MessageBoxes& boxes) {
  page.Combo6.clear();
  page.List7.clear();
  const History* history = visibleHistory(drawHistories, frames);
  if (history == nullptr) return;
  const std::string& number = page.Command23.caption();
  std::optional<std::size_t> times;
  const auto count = [&] {
    times = countDraws(Count(number, page.List7, page.Combo6), *history, folder, boxes);
  };
  fillAlike(page.List7, count, page.Combo6);
  if (!times) return;
  page.List7.setEmphasis({number});
  page.Label24.setCaption(join(number, " Played: ", std::to_string(*times), " Times"));
}

void setPlayCaptions(HavePlayedPlaysPage& page, const GameFrames& frames) {
  setNumbers(page.numbers, page.Combo8.text(), extraBallPositionOf(frames));
}

void Command45_Click(HavePlayedPlaysPage& page, const GameFrames& frames) {
  displayNumbers(page.numbers, page.Combo8.text(), extraBallPositionOf(frames));
}

void Command46_Click(HavePlayedPlaysPage& page, ComboBox& Combo5, const GameFrames& frames,
                     const DataFolder& folder, MessageBoxes& boxes) {
  Combo5.clear();
  page.Combo9.clear();
  const History* history = visibleHistory(playHistories, frames);
  if (history == nullptr) return;
  const std::string number = firstMarkedNumber(page.numbers);
  const auto times = countDraws(Count(number, page.Combo9, page.Combo9), *history, folder, boxes);
  if (times) page.Label26.setCaption(havePlayedTally(number, *times));
}

}  // namespace tallywick
