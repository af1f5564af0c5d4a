#include "display/summary.h"

namespace tallywick {

SummaryPage::SummaryPage(Form& form)
    : Label15(form, "Label15"),
      Label16(form, "Label16"),
      Label17(form, "Label17"),
      Label18(form, "Label18"),
      Label19(form, "Label19"),
      Label20(form, "Label20"),
      Label21(form, "Label21"),
      Label22(form, "Label22"),
      Label27(form, "Label27", "Previous Lucky Five Draws:"),
      Label28(form, "Label28", "     Dates:        Amounts:"),
      Label29(form, "Label29", "    Date:         Number Played     Group-Play:"),
      Label30(form, "Label30", "             Last 50 Lucky Five Mid Day Draws"),
      Label31(form, "Label31", "Last 50 Lucky Five Evening Draws"),
      List1(form, "List1"),
      List2(form, "List2"),
      List3(form, "List3"),
      List4(form, "List4"),
      List5(form, "List5"),
      frequent(form, {"Command9", "Command10", "Command11", "Command12", "Command13", "Command14"}) {}

void setSummaryHeadings(SummaryPage&, const GameInfo&) {}
void fillLastFifteen(SummaryPage&, const DataFolder&, const GameInfo&, MissingAmounts) {}
void fillWinningPlays(SummaryPage&, const DataFolder&, const GameInfo&) {}
void fillAmounts(SummaryPage&, const DataFolder&, const GameInfo&) {}
void fillPreviousDraws(SummaryPage&, const DataFolder&, const GameInfo&) {}
std::array<std::string, 6> fillFrequentNumbers(SummaryPage&, const DataFolder&, const GameInfo&) {
  return {};
}
std::array<std::string, 6> showDoublePlay(SummaryPage&, const DataFolder&) {
  return {};
}

}  // namespace tallywick
