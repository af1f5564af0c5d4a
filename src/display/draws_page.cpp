#include "display/draws_page.h"

namespace tallywick {

DrawsPage::DrawsPage(Form& form)
    : Draw1(form, "Draw1"),
      Command52(form, "Command52", "Last 100 Draws"),
      Command27(form, "Command27", "Double Play Last 100 Draws"),
      Command3(form, "Command3", "Show Newest Draws"),
      powerBallImages{Image(form, "Image1", false), Image(form, "Image2", false),
                      Image(form, "Image3", false), Image(form, "Image4", false),
                      Image(form, "Image5", false), Image(form, "Image6", true)},
      doublePlayImages{Image(form, "Image44", false), Image(form, "Image7", false),
                       Image(form, "Image8", false),  Image(form, "Image9", false),
                       Image(form, "Image10", false), Image(form, "Image11", true)},
      megaMillionsImages{Image(form, "Image39", false), Image(form, "Image40", false),
                         Image(form, "Image41", false), Image(form, "Image42", false),
                         Image(form, "Image43", false), Image(form, "Image38", true)} {}

void Command52_Click(DrawsPage&, const ButtonRow<6>&, const DataFolder&) {}
void Command27_Click(DrawsPage&, const ButtonRow<6>&, const DataFolder&) {}
void drawStartUpChart(DrawsPage&, const ButtonRow<6>&, const DataFolder&) {}
void Command3_Click(DrawsPage&, const DataFolder&) {}

}  // namespace tallywick
