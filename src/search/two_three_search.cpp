// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/two_three_search.h"

#include "core/draws.h"
#include "core/games.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "search/combinations.h"
#include "search/history_file.h"
#include "search/marks.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace tallywick {

TwoThreePage::TwoThreePage(Form& form)
    : Combo4(form, "Combo4"),
      Command37(form, "Command37", "Display"),
      numbers(form, {"Command31", "Command32", "Command33", "Command34", "Command35", "Command36"}),
      Command38(form, "Command38", "Search"),
      Command25(form, "Command25", "Search"),
      Command26(form, "Command26", "Search"),
      Combo7(form, "Combo7"),
      List8(form, "List8"),
      Label25(form, "Label25") {}

namespace {

constexpr std::string_view twoOrThree = "Error !!!  Search for Two or Three Numbers,";
constexpr std::string_view oneTwoOrThree = "Error !!!  Search for One, Two or Three Numbers,";

/// What differs between the members of the family.
struct Member {
  std::string_view gameFolder;
  std::string_view file;
  std::string_view tooManyText;
  std::string_view tooManyTitle;
  /// Empty where a search without marks ends without a word.
  std::string_view noneMarkedTitle = {};
  bool fillsList = true;
  /// Follows the draw in every line; otherwise the combination's own tail follows it in later lines.
  LineTail everyLinesTail = LineTail::none;
  /// Every match of this combination is taken for the first one.
  Positions neverCounted = {};
  /// Where the file ends inside a record the search ends there, without an error.
  bool mayEndInsideRecord = false;
};

constexpr Member powerBallMember = {.gameFolder = powerBall.folder,
                                    .file = searchDrawsFile,
                                    .tooManyText = twoOrThree,
                                    .tooManyTitle = "PowerBall Lottery Game",
                                    .noneMarkedTitle = "PowerBall Lotto Search."};

constexpr Member megaMillionsMember = {.gameFolder = megaMillions.folder,
                                       .file = searchDrawsFile,
                                       .tooManyText = twoOrThree,
                                       .tooManyTitle = "Mega Million Lottery Game.",
                                       .noneMarkedTitle = "Mega Million Lottery Game."};

/// Kept slips: records of eighteen fields are read in tens, and the matches of 2-3-6 are not counted.
constexpr Member doublePlayMember = {.gameFolder = powerBall.folder,
                                     .file = doublePlayFile,
                                     .tooManyText = twoOrThree,
                                     .tooManyTitle = "PowerBall Double Play Lotto Search.",
                                     .noneMarkedTitle = "PowerBall Double Play Lotto Search.",
                                     .neverCounted = {2, 3, 6},
                                     .mayEndInsideRecord = true};

/// Kept slip: PowerBall's title over the Mega Millions draws.
constexpr Member oneTwoThreeMegaMember = {.gameFolder = megaMillions.folder,
                                          .file = searchDrawsFile,
                                          .tooManyText = oneTwoOrThree,
                                          .tooManyTitle = "PowerBall Lottery Game",
                                          .fillsList = false,
                                          .everyLinesTail = LineTail::fieldTen};

constexpr Member oneTwoThreeHoosierMember = {.gameFolder = hoosierFolder,
                                             .file = searchDrawsFile,
                                             .tooManyText = oneTwoOrThree,
                                             .tooManyTitle = "Hoosier Lottery Game",
                                             .fillsList = false,
                                             .everyLinesTail = LineTail::fieldTen};

using DrawRecord = RecordView<drawFields>;

std::vector<std::string> searchedNumbers(const Combination& combination, const ButtonRow<6>& numbers) {
  std::vector<std::string> searched;
  for (std::size_t i = 0; i < combination.size(); ++i) {
    searched.push_back(numbers[combination.positions[i] - 1U].caption());
  }
  return searched;
}

/// What follows a draw in its line.
std::string tailOf(const DrawRecord& record, LineTail tail) {
  return tail == LineTail::none ? ""
                                : join("     ", tail == LineTail::fieldTen ? record[multiplierField] : "");
}

std::string tally(const std::vector<std::string>& searched, std::size_t matches) {
  std::string text = join(" ", searched[0], " && ", searched[1]);
  text += searched.size() == 3 ? join(" && ", searched[2], "     ") : std::string(12, ' ');
  return join(text, std::to_string(matches), "  Times.");
}

/// Puts matches into the result lists and counts them.
class Results {
 public:
  Results(const Member& member, const Combination& combination, TwoThreePage& page)
      : page_(page),
        fillsList_(member.fillsList),
        counts_(combination.positions != member.neverCounted),
        tail_(member.everyLinesTail),
        laterTail_(member.everyLinesTail == LineTail::none ? combination.laterTail : member.everyLinesTail) {}

  void add(const DrawRecord& record) {
    const Draw draw = drawAt(record, mainBalls);
    if (fillsList_) addDraw(page_.List8, draw, tailOf(record, tail_));
    const std::string_view item =
        addDraw(page_.Combo7, draw, tailOf(record, matches_ == 0 ? tail_ : laterTail_));
    if (matches_ == 0) page_.Combo7.setText(item);
    if (counts_) ++matches_;
  }

  std::size_t matches() const { return matches_; }

 private:
  TwoThreePage& page_;
  bool fillsList_;
  bool counts_;
  LineTail tail_;
  LineTail laterTail_;
  std::size_t matches_ = 0;
};

/// Adds a draw that has the first number where it has the others as well. Seldom called: inline it would slow
/// down the loop around it.
template <std::size_t Compared>
[[gnu::noinline]] void addCandidate(Results& results, const DrawRecord& record,
                                    const std::vector<SearchedNumber>& searched) {
  const bool hasAll = std::all_of(searched.begin() + 1, searched.end(), [&](const SearchedNumber& number) {
    return number.isIn<Compared>(record, mainBalls);
  });
  if (hasAll) results.add(record);
}

/// Adds the draws that have all the numbers among their first `Compared` ones.
template <std::size_t Compared>
void addMatches(Results& results, SequentialReader& history, const std::vector<SearchedNumber>& searched) {
  searched.front().forEachWith<Compared, drawFields>(history, mainBalls, [&](const DrawRecord& record) {
    addCandidate<Compared>(results, record, searched);
  });
}

void addMatches(Results& results, SequentialReader& history, const Member& member,
                const Combination& combination, const std::vector<std::string>& texts) {
  const std::vector<SearchedNumber> searched(texts.begin(), texts.end());
  try {
    combination.compared == 5 ? addMatches<5>(results, history, searched)
                              : addMatches<6>(results, history, searched);
  } catch (const RuntimeError& error) {
    if (!member.mayEndInsideRecord || !error.is(ErrorNumber::inputPastEnd)) throw;
  }
}

void searchCombination(const Combination& combination, const Member& member, TwoThreePage& page,
                       SequentialReader& history) {
  const std::vector<std::string> searched = searchedNumbers(combination, page.numbers);
  if (member.fillsList) {
    page.List8.clear();
    page.List8.setEmphasis(searched);
  }
  Results results(member, combination, page);
  addMatches(results, history, member, combination, searched);
  page.Label25.setCaption(tally(searched, results.matches()));
}

void search(const Member& member, TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes) {
  page.Combo7.clear();
  const std::string file = join(member.gameFolder, member.file);
  std::optional<SequentialReader> history = openHistory(folder, file, boxes);
  if (!history) return;
  const auto marked = std::count_if(page.numbers.begin(), page.numbers.end(), isMarked);
  if (marked == 0 && !member.noneMarkedTitle.empty()) {
    boxes.show({"Minimum of Two Number Must Be Selected...", std::string(member.noneMarkedTitle)});
  } else if (marked >= 4) {
    boxes.show({join(member.tooManyText, "\r\nPlease Retry."), std::string(member.tooManyTitle),
                MessageBox::Icon::exclamation});
  } else if (const Combination* combination = chosenCombination(page.numbers)) {
    readToEnd(file, boxes, [&] { searchCombination(*combination, member, page, *history); });
  }
}

}  // namespace

void Command37_Click(TwoThreePage& page) {
  displayNumbers(page.numbers, page.Combo4.text(), extraBallPosition);
}

void Command38_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes) {
  search(powerBallMember, page, folder, boxes);
}
void Command25_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes) {
  search(megaMillionsMember, page, folder, boxes);
}
void Command26_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes) {
  search(doublePlayMember, page, folder, boxes);
}
void SearchOneTwoThreeMega(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes) {
  search(oneTwoThreeMegaMember, page, folder, boxes);
}
void SearchOneTwoThreeHoosier(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes) {
  search(oneTwoThreeHoosierMember, page, folder, boxes);
}

}  // namespace tallywick
