// SPDX-License-Identifier: GPL-3.0-or-later
// The newest draws at a glance: the chart of the last hundred draws and the pictures of the played numbers.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"

#include <array>
#include <string>

namespace tallywick {

class DataFolder;

/// One draw as six pictures, the extra ball last.
using ImageRow = std::array<Image, 6>;

struct DrawsPage {
  explicit DrawsPage(Form& form);

  /// How often each of the newest draw's numbers came up in the last hundred draws.
  Chart Draw1;
  Button Command52;
  Button Command27;

  Button Command3;
  /// The newest PowerBall draw.
  ImageRow powerBallImages;
  /// The newest Double Play draw.
  ImageRow doublePlayImages;
  /// The newest Mega Millions draw.
  ImageRow megaMillionsImages;
};

/// Charts how often the six numbers on `frequent` came up in the last hundred PowerBall draws. Fewer draws
/// are error 62.
void Command52_Click(DrawsPage& page, const ButtonRow<6>& frequent, const DataFolder& folder);
/// Charts the same for Double Play.
void Command27_Click(DrawsPage& page, const ButtonRow<6>& frequent, const DataFolder& folder);
/// At start-up: up to a hundred draws.
void drawStartUpChart(DrawsPage& page, const ButtonRow<6>& frequent, const DataFolder& folder);

/// What the chart counts, in a sentence that names its game and numbers; empty where it has no bars.
std::string chartInWords(const Chart& chart);
/// What a bar's colour says of its number: the colour that the number has on the summary, where the extra
/// ball has none.
std::string barMeaning(Color color, bool isExtraBall);

/// Shows the newest draw of PowerBall, of Double Play and of Mega Millions as pictures.
void Command3_Click(DrawsPage& page, const DataFolder& folder);

}  // namespace tallywick
