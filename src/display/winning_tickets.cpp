// SPDX-License-Identifier: GPL-3.0-or-later
#include "display/winning_tickets.h"

#include "core/text.h"
#include "display/draw_index.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallywick {

namespace {

constexpr int extraBallScore = 5;
constexpr std::string_view noPlays = " No plays were created to search for";

bool wins(const Play& play, const Draw& draw) {
  return play.isListed() && matchScore(play, draw) >= winningScore;
}

/// A blank, the date, three blanks, the main numbers with a blank between, three blanks, the extra ball.
std::string ticketLine(const Play& play) {
  std::string text = join(" ", play.date, "  ");
  for (std::string_view number : play.main) text.append(" ").append(number);
  return text.append("   ").append(play.extra);
}

void clearResults(WinningsPage& page) {
  page.Combo10.clear();
  page.List10.clear();
  page.List11.clear();
  page.List14.setEmphasis({});
}

/// Makes the winning plays stand out, in the results and in the list of plays.
void emphasise(WinningsPage& page, std::vector<std::string> winners) {
  page.List11.setEmphasis({join(winningTicket, "...")});
  page.List14.setEmphasis(std::move(winners));
}

void showLatestWinner(WinningsPage& page, const Play& play, std::size_t ordinal) {
  const std::string line = ticketLine(play);
  page.List11.add(join(" ", play.date, "   ", winningTicket, "... Play Number ", std::to_string(ordinal)));
  page.List11.add(line);
  page.List11.add(" ");
  page.Combo10.add(line);
  page.Combo10.setText("Winning Ticket(s)");
}

void showWinnerOfItsDate(WinningsPage& page, const Play& play) {
  page.List11.add(join(" ", play.date, "   ", winningTicket, "... "));
  page.List10.add(join(ticketLine(play), "     "));
}

/// Kept slip: only the play file's first play meets the newest Double Play draw.
void checkDoublePlay(WinningsPage& page, const DataFolder& folder, std::string_view file, const Play& first) {
  SequentialReader draws(folder, file, SequentialReader::Reading::inPieces);
  if (wins(first, doublePlayDrawOf(draws.record<doublePlayFields>()))) {
    page.List10.add(join(" ", winningTicket, " for PowerBall Double Play"));
  }
}

void listPlays(ListBox& list, const DataFolder& folder, const GameInfo& game, PlaySlot slot) {
  list.clear();
  SequentialReader plays = openPlays(folder, playFilePath(game, slot));
  forEachRecord<playFields>(plays, [&](const Fields<playFields>& record) {
    const Play play = playOf(record);
    if (play.isListed()) list.add(play.itemText());
  });
}

}  // namespace

WinningsPage::WinningsPage(Form& form)
    : List14(form, "List14"),
      List17(form, "List17"),
      Option1(form, "Option1", "Latest draw"),
      Option2(form, "Option2", "Draw of each play's date"),
      Command47(form, "Command47", "Check Tickets"),
      Combo10(form, "Combo10"),
      List10(form, "List10"),
      List11(form, "List11") {}

int matchScore(const Play& play, const Draw& draw) {
  int score = play.extra == draw.extra ? extraBallScore : 0;
  for (std::string_view ball : draw.white) {
    if (std::find(play.main.begin(), play.main.end(), ball) != play.main.end()) ++score;
  }
  return score;
}

TicketFiles ticketFilesOf(const GameInfo& game) {
  return {playFilePath(game, PlaySlot::played), inFolder(game, searchDrawsFile),
          game.game == Game::powerBall ? inFolder(game, doublePlayFile) : std::string()};
}

TicketFiles hoosierTicketFiles() {
  return {std::string(hoosierPlayedFile), join(hoosierFolder, searchDrawsFile), {}};
}

void checkAgainstLatestDraw(WinningsPage& page, const DataFolder& folder, const TicketFiles& files) {
  clearResults(page);
  SequentialReader draws(folder, files.draws, SequentialReader::Reading::inPieces);
  const Draw latest = drawOf(draws.record<drawFields>());
  SequentialReader plays = openPlays(folder, files.plays);
  if (plays.atEnd()) return page.Combo10.setText(noPlays);
  Play first;
  std::vector<std::string> winners;
  forEachRecord<playFields>(plays, [&](const Fields<playFields>& record) {
    const Play play = playOf(record);
    if (plays.recordNumber() == 1) first = play;
    if (!wins(play, latest)) return;
    showLatestWinner(page, play, plays.recordNumber());
    winners.push_back(play.itemText());
  });
  if (winners.empty()) page.Combo10.setText(" No Current Play is a Winning Ticket");
  emphasise(page, std::move(winners));
  if (!files.doublePlays.empty()) checkDoublePlay(page, folder, files.doublePlays, first);
}

void checkByDate(WinningsPage& page, const DataFolder& folder, const TicketFiles& files) {
  clearResults(page);
  SequentialReader plays = openPlays(folder, files.plays);
  if (plays.atEnd()) return page.Combo10.setText(noPlays);
  DrawIndex draws(folder, files.draws, DrawIndex::Dates::asShown, plays);
  std::vector<std::string> winners;
  forEachRecord<playFields>(plays, [&](const Fields<playFields>& record) {
    const Play play = playOf(record);
    const Draw* const draw = draws.find(play);
    if (draw != nullptr && wins(play, *draw)) {
      showWinnerOfItsDate(page, play);
      winners.push_back(play.itemText());
    } else if (winners.empty()) {
      // Kept slip: a later winner leaves this verdict as it is.
      page.Combo10.clear();
      page.Combo10.setText(" No Play(s) were a Winning Ticket");
    }
  });
  emphasise(page, std::move(winners));
}

void Option1_Click(WinningsPage& page) {
  page.Option1.setValue(true);
  page.Option2.setValue(false);
}

void Option2_Click(WinningsPage& page) {
  page.Option2.setValue(true);
  page.Option1.setValue(false);
}

void Command47_Click(WinningsPage& page, const GameFrames& frames, const DataFolder& folder) {
  const GameInfo* const game = gameOnShow(frames);
  if (game == nullptr) return;
  const TicketFiles files = ticketFilesOf(*game);
  if (page.Option1.value()) {
    checkAgainstLatestDraw(page, folder, files);
  } else if (page.Option2.value()) {
    checkByDate(page, folder, files);
  }
}

void fillPlayedPlays(WinningsPage& page, const DataFolder& folder, const GameInfo& game) {
  listPlays(page.List14, folder, game, PlaySlot::played);
}

void fillCommittedPlays(WinningsPage& page, const DataFolder& folder, const GameInfo& game) {
  listPlays(page.List17, folder, game, PlaySlot::committed);
}

}  // namespace tallywick
