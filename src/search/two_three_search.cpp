#include "search/two_three_search.h"

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

void Command37_Click(TwoThreePage&) {}
void Command38_Click(TwoThreePage&, const DataFolder&, MessageBoxes&) {}
void Command25_Click(TwoThreePage&, const DataFolder&, MessageBoxes&) {}
void Command26_Click(TwoThreePage&, const DataFolder&, MessageBoxes&) {}
void SearchOneTwoThreeMega(TwoThreePage&, const DataFolder&, MessageBoxes&) {}
void SearchOneTwoThreeHoosier(TwoThreePage&, const DataFolder&, MessageBoxes&) {}

}  // namespace tallywick
