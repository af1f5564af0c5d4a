#include "search/play_counts.h"

namespace tallywick {

HavePlayedPage::HavePlayedPage(Form& form)
    : Combo2(form, "Combo2"),
      Command22(form, "Command22", "Display"),
      numbers(form, {"Command15", "Command16", "Command17", "Command18", "Command19", "Command20"}),
      Command21(form, "Command21", "Serach"),
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

void Command22_Click(HavePlayedPage&, const GameFrames&) {}
void havePlayedNumber_Click(HavePlayedPage&, Button&) {}
void Command21_Click(HavePlayedPage&, const GameFrames&, const DataFolder&, MessageBoxes&) {}
void Command29_Click(PlayedPage&, const GameFrames&) {}
void Command30_Click(PlayedPage&, const GameFrames&, const DataFolder&, MessageBoxes&) {}
void Command45_Click(HavePlayedPlaysPage&, const GameFrames&) {}
void Command46_Click(HavePlayedPlaysPage&, ComboBox&, const GameFrames&, const DataFolder&, MessageBoxes&) {}

}  // namespace tallywick
