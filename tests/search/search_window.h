// The search pages over a data folder of the test's own.
#pragma once

#include "search/marks.h"
#include "search/search_pages.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <initializer_list>
#include <string_view>

namespace tallywick::test {

inline constexpr std::string_view powerBallDraws = R"(QzrNumbers\QZR6PWR\QZRNUM62.Dat)";
inline constexpr std::string_view doublePlayDraws = R"(QzrNumbers\QZR6PWR\QZRNUM72.Dat)";
inline constexpr std::string_view megaMillionsDraws = R"(QzrNumbers\QZR6MEG\QZRNUM62.Dat)";
inline constexpr std::string_view hoosierDraws = R"(QzrNumbers\Qzr6Ind\QZRNUM62.Dat)";

struct SearchWindow {
  void showOnly(std::initializer_list<Frame GameFrames::*> visible) {
    for (Frame GameFrames::*frame :
         {&GameFrames::Frame4, &GameFrames::Frame5, &GameFrames::Frame6, &GameFrames::Frame11}) {
      (frames.*frame).hide();
    }
    for (Frame GameFrames::*frame : visible) (frames.*frame).show();
  }

  static void setCaptions(ButtonRow<6>& row, const std::array<std::string_view, 6>& captions) {
    for (std::size_t i = 0; i < 6; ++i) row[i].setCaption(captions[i]);
  }
  /// Marks exactly these positions, from 1.
  static void mark(ButtonRow<6>& row, std::string_view positions) {
    unmarkAll(row);
    for (char position : positions) row[static_cast<std::size_t>(position - '1')].setBackColor(colors::cyan);
  }
  static std::vector<std::string> captionsOf(const ButtonRow<6>& row) {
    std::vector<std::string> captions;
    for (const Button& button : row) captions.push_back(button.caption());
    return captions;
  }

  ScratchFolder files;
  Form form{"Form1"};
  GameFrames frames{form};
  SearchPages pages{form};
  RecordingBoxes boxes;
};

}  // namespace tallywick::test
