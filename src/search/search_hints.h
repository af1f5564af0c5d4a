// SPDX-License-Identifier: GPL-3.0-or-later
// What the search pages say beside the model's own texts: what a press will search, whose result is shown,
// and the line that stands for numbers typed by the player.
#pragma once

#include "search/search_pages.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

/// For one to six numbers such as "7 17 20", or "7 17 + 20" with the extra ball behind the plus: a draw line
/// without a date, which Display cuts. None for any other text.
std::optional<std::string> typedDrawLine(std::string_view typed);

/// Lets a press of `display` take numbers that are typed in the place of a draw, and mark their balls where
/// there are at most `mostMarked` of them.
void takeTypedNumbers(Button& display, ComboBox& source, const std::vector<Button*>& numbers,
                      std::size_t mostMarked);

/// That typed numbers are not on the balls yet; empty where they are, or where none are typed.
std::string typedHint(const Button& display, const ComboBox& source, const std::vector<Button*>& numbers);

struct SearchHint {
  /// Whether the press searches what is marked.
  bool ready = false;
  /// Whether it searches something else than the marks suggest.
  bool surprises = false;
  std::string text;
};

SearchHint searchHint(const TwoThreePage& page);
SearchHint searchHint(const HavePlayedPage& page, const GameFrames& frames);
SearchHint searchHint(const PlayedPage& page, const GameFrames& frames);
SearchHint searchHint(const HavePlayedPlaysPage& page, const GameFrames& frames);

/// What is searched: "PowerBall" and "07 and 17"; no numbers where a press searches nothing.
struct Searched {
  std::string game;
  std::string numbers;

  bool operator==(const Searched&) const = default;
};

Searched searchedNow(const TwoThreePage& page, std::string_view game);
Searched searchedNow(const HavePlayedPage& page, const GameFrames& frames);
Searched searchedNow(const PlayedPage& page, const GameFrames& frames);
Searched searchedNow(const HavePlayedPlaysPage& page, const GameFrames& frames);

/// Remembers to which search the draws found belong, for as long as nothing else changes them.
class SearchMemory {
 public:
  /// `found` and `listed` are where the search puts draws; `listed` is null where it has the drop-down alone.
  SearchMemory(const TextLines& found, const TextLines* listed) : found_(found), listed_(listed) {}

  /// Lets each press of `search` be remembered. The memory outlives the button's presses.
  void watch(Button& search, const std::function<Searched()>& now) { watch(search, now, {}); }
  /// The same for a search that mixes in draws without the numbers: `listTrue` lists those that have them,
  /// and is false where it cannot.
  void watch(Button& search, const std::function<Searched()>& now,
             const std::function<bool(TextLines&)>& listTrue);

  /// The record book has other draws now than when it searched.
  void drawsChanged() { isOld_ = true; }

  /// "Shown: the PowerBall draws with 07 and 17." and where the page is at something else by now, that they
  /// are not of it; empty without a result. `now` without numbers says nothing against it.
  std::string hint(const Searched& now) const;
  /// How many draws were found, and with what: "9 PowerBall draws with 07 and 17 were found."; empty without
  /// a result. After a search that mixes in other draws how many truly have the numbers.
  std::string foundText() const;
  /// Whether the list shows the draws found.
  bool isListed() const;
  /// Whether draws were found that the list does not show.
  bool isFoundElsewhere() const;
  /// Those draws.
  const TextLines& foundElsewhere() const { return listed_ == nullptr ? found_ : true_; }
  /// Whether the search was one that mixes in other draws.
  bool isMixed() const { return isMixed_ && isOurs(); }
  /// What was searched last.
  const Searched& searched() const { return searched_; }

 private:
  std::string mixedText() const;
  bool isOurs() const { return !searched_.numbers.empty() && found_.revision() == foundRevision_; }

  const TextLines& found_;
  const TextLines* listed_;
  Searched searched_;
  bool isOld_ = false;
  bool isMixed_ = false;
  /// What truly has the numbers, after a search that mixes in other draws.
  TextLines true_;
  std::size_t foundRevision_ = 0;
  std::size_t listedRevision_ = 0;
};

}  // namespace tallywick
