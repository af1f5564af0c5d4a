// SPDX-License-Identifier: GPL-3.0-or-later
// selection_action FOLDER ACTION: one action of the PowerBall selection window, or one change of the plays by
// hand, on a data folder, for the test that kills it. A runtime error is reported by its number on standard
// output and exit code 1.
#include "core/file_commit.h"
#include "core/runtime_error.h"
#include "plays/play_changes.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"
#include "support/fakes.h"

#include <iostream>

using namespace tallywick;

namespace {

void done(SelectionForm& form, std::string_view drawCount, EarlierPlays earlier = EarlierPlays::replaced) {
  form.earlierPlays = earlier;
  form.Label1.setCaption(drawCount);
  Command5_Click(form);
}

void select(SelectionForm& form) {
  for (int number : {5, 11, 23, 42, 60}) setMark(form.button(number), Mark::main);
  setMark(form.button(7), Mark::extra);
  Command59_Click(form);
}

void changePlays(const DataFolder& folder, const Clock& clock, std::string_view action) {
  const PlayChanges changes(powerBall, folder, clock);
  const PlayTexts shown = readPlayTexts(powerBall, folder);
  if (action == "remove") changes.remove(shown, std::vector<PlayPlace>{{PlaySlot::committed, 1}});
  if (action == "move") changes.moveToPlayed(shown, std::vector<std::size_t>{1, 2});
  if (action == "keep") changes.add(PlaySlot::played, shown.committed);
  if (action == "bring-back") changes.bringBack(shown, "QZR6PWR2 2026-11-01 120000.Ply");
  if (action == "undo") changes.undo({"", {shown.played, shown.committed}, shown, "copy", {}});
}

void run(const DataFolder& folder, std::string_view action) {
  const StandingClock clock("11-21-2026", "12:00:00");
  MixingGenerator random(1);
  test::RecordingBoxes boxes;
  SelectionForm form(powerBall, {folder, clock, random, boxes});
  if (action == "open") form.load();
  if (action == "select") select(form);
  if (action == "done-1") done(form, "    ");
  if (action == "done-keep") done(form, "   2", EarlierPlays::kept);
  if (action == "done-10") done(form, "  10");
  changePlays(folder, clock, action);
  if (action == "recover") recoverFolder(folder.resolve(powerBall.folder));
  for (const MessageBox& box : boxes.shown) std::cout << box.text << "\n";
}

}  // namespace

int main(int, char** arguments) {
  try {
    run(DataFolder(arguments[1]), arguments[2]);
  } catch (const std::exception&) {
    std::cout << currentRuntimeError().number() << "\n";
    return 1;
  }
  return 0;
}
