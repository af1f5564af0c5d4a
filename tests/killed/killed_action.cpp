// SPDX-License-Identifier: GPL-3.0-or-later
// killed_action FOLDER ACTION [announced]: one action that changes files of a data folder, for the test that
// kills it. A runtime error is reported by its number on standard output and exit code 1. Announced, a line
// goes before the action.
#include "backup/backup.h"
#include "core/journal.h"
#include "core/restored_folder.h"
#include "core/runtime_error.h"
#include "exports/typed_draws.h"
#include "plays/play_changes.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"
#include "setup/publish.h"
#include "support/fakes.h"
#include "update/incoming_files.h"
#include "update/maintenance.h"
#include "update/public_exports.h"

#include <iostream>
#include <sstream>

using namespace tallywick;

/// In the place of the one that asks the network: the transfer library takes most of the time of a start, and
/// there are hundreds.
FetchedDocument tallywick::fetchDocument(const std::string&, const Validators&, const FetchSettings&,
                                         TransferWatch*) {
  throw std::logic_error("there is no network here");
}

namespace {

void done(SelectionForm& form, std::string_view drawCount) {
  form.Label1.setCaption(drawCount);
  Command5_Click(form);
}

void select(SelectionForm& form) {
  for (int number : {5, 11, 23, 42, 60}) setMark(form.button(number), Mark::main);
  setMark(form.button(7), Mark::extra);
  Command59_Click(form);
}

void changePlays(const DataFolder& folder, const Clock& clock, std::string_view change) {
  const PlayChanges changes(powerBall, folder, clock);
  const PlayTexts shown = readPlayTexts(powerBall, folder);
  if (change == "remove") changes.remove(shown, std::vector<PlayPlace>{{PlaySlot::committed, 1}});
  if (change == "move") changes.moveToPlayed(shown, std::vector<std::size_t>{1, 2});
  if (change == "keep") changes.add(PlaySlot::played, shown.committed);
  if (change == "bring-back") changes.bringBack(shown, "QZR6PWR2 2026-11-01 120000.Ply");
  if (change == "undo") changes.undo({"", {shown.played, shown.committed}, shown, "copy", {}});
}

/// What an export brings once it has come.
void takeExport(const DataFolder& folder) {
  FetchedDocument document;
  document.contents = "Draw Date,Winning Numbers,Multiplier\n";
  for (Day day = dayOf(2026, 11, 1); day > dayOf(2026, 7, 1); day += -1) {
    document.contents += displayDate(day) + ",1 2 3 4 5 6,2\n";
  }
  document.validators.entityTag = "\"1\"";
  FetchedExport fetched{Game::powerBall, "https://127.0.0.1/x", document};
  fetched.draws = drawsIn(document, fetched.address, fetched.game, dayOf(2026, 11, 21));
  takeInto(folder, fetched);
}

void changeDraws(const DataFolder& folder, std::string_view action) {
  const exports::TypedDraw typed{"11-16-2026", "1 2 3 4 5", "6", "2", "6 5 4 3 2 1", "150"};
  if (action == "fetch") takeExport(folder);
  if (action == "add-draw") {
    exports::addDraw(folder, Game::powerBall,
                     exports::checkedDraw(Game::powerBall, typed, dayOf(2026, 11, 21)),
                     exports::KnownDraw::stays);
  }
  if (action == "remove-draw") exports::removeDraw(folder, Game::powerBall, dayOf(2026, 11, 18));
}

/// What the next start does, and the next restore with what is left of this one.
void mendRestore(const std::filesystem::path& book) {
  finishRestore(book);
  std::filesystem::remove_all(beside(book, restoringEnding));
}

/// The next day's backup, without the one before.
void backUpNext(const std::filesystem::path& book) {
  const FixedClock clock("11-22-2026", "12:00:00");
  std::filesystem::remove(beside(book, " 2026-11-21 120000.zip"));
  std::filesystem::remove(datedBackup(book, clock));
  backUp(book, datedBackup(book, clock));
}

void run(const DataFolder& folder, std::string_view action) {
  const FixedClock clock("11-21-2026", "12:00:00");
  const std::filesystem::path game = folder.resolve(powerBall.folder);
  MixingGenerator random(1);
  test::RecordingBoxes boxes;
  test::RecordingStarter starter;
  std::ostringstream out;
  SelectionForm form(powerBall, {folder, clock, random, boxes});
  if (action == "open") form.load();
  if (action == "select") select(form);
  if (action == "done-1") done(form, "    ");
  if (action == "done-10") done(form, "  10");
  if (action == "maintain") Command1_Click(folder, starter);
  if (action == "receive") takeIn({{"qzrnum6.dat", "new"}, {"QZR6PWR1.Ply", "theirs"}}, folder, game, clock);
  if (action == "publish") setup::publish(folder.resolve("tree"), folder.resolve(""), out);
  if (action == "restore") restore(folder.root() / "backup", folder.root() / "book", clock);
  if (action == "backup") backUp(folder.root() / "book", datedBackup(folder.root() / "book", clock));
  if (action == "backup-next") backUpNext(folder.root() / "book");
  if (action == "mend-restore") mendRestore(folder.root() / "book");
  if (action.starts_with("by-hand-")) changePlays(folder, clock, action.substr(8));
  changeDraws(folder, action);
  if (action == "recover") recoverFolder(game);
  for (const MessageBox& box : boxes.shown) std::cout << box.text << "\n";
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 3) std::cout << "now" << std::endl;
  try {
    run(DataFolder(arguments[1]), arguments[2]);
  } catch (const std::exception&) {
    std::cout << currentRuntimeError().number() << "\n";
    return 1;
  }
  return 0;
}
