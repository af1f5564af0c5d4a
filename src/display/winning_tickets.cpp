#include "display/winning_tickets.h"

namespace tallywick {

WinningsPage::WinningsPage(Form& form)
    : List14(form, "List14"),
      List17(form, "List17"),
      Option1(form, "Option1", "Latest draw"),
      Option2(form, "Option2", "Draw of each play's date"),
      Command47(form, "Command47", "Check Tickets"),
      Combo10(form, "Combo10"),
      List10(form, "List10"),
      List11(form, "List11") {}

int matchScore(const Play&, const Draw&) {
  return 0;
}
void Command47_Click(WinningsPage&, const GameFrames&, const DataFolder&) {}
void checkPowerBallLatest(WinningsPage&, const DataFolder&) {}
void checkPowerBallByDate(WinningsPage&, const DataFolder&) {}
void checkMegaMillionsLatest(WinningsPage&, const DataFolder&) {}
void checkMegaMillionsByDate(WinningsPage&, const DataFolder&) {}
void checkHoosierLatest(WinningsPage&, const DataFolder&) {}
void checkHoosierByDate(WinningsPage&, const DataFolder&) {}
void fillPlayLists(WinningsPage&, const DataFolder&, const GameInfo&) {}

}  // namespace tallywick
