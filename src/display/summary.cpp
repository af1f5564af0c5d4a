// SPDX-License-Identifier: GPL-3.0-or-later
#include "display/summary.h"

#include "core/draws.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/winnings.h"
#include "display/draw_index.h"
#include "display/recurring_numbers.h"
#include "display/winning_tickets.h"

#include <exception>
#include <vector>

namespace tallywick {

namespace {

/// What the headings of the two games differ in.
struct Headings {
  std::string_view lastFifteen;
  std::string_view previousDraws;
  std::string_view columns;
  std::string_view recurring;
};

constexpr Headings powerBallHeadings = {
    "Last 15 PowerBall Draws and Winning Amounts:", "Previous PowerBall Draws:",
    "Date:              Number Played            PB:", "for the last fifteen PowerBall Draws"};
constexpr Headings megaMillionsHeadings = {
    "Last 15 Mega Millions Draws and Winning Amts:", "Previous Mega Millions Draw",
    "Date:              Number Played         MM:", "for the last fifteen Mega Millions Draw"};

/// Kept slip: the prizes of a leftover state game, in the amounts list of Mega Millions.
constexpr std::array<std::string_view, 3> luckyFivePrizes = {" 5 of 5 Win:    $50,000",
                                                             " 4 of 5 Win:    $200.00", " 3 of 5 Win:    $3"};

}  // namespace

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

void setSummaryHeadings(SummaryPage& page, const GameInfo& game) {
  const Headings& headings = game.game == Game::powerBall ? powerBallHeadings : megaMillionsHeadings;
  page.Label15.setCaption(headings.lastFifteen);
  page.Label16.setCaption("Your Play && Winning Lotto Ticket(s):");
  page.Label17.setCaption("Previous Amount Draws:");
  page.Label18.setCaption("     Dates:             Amounts:");
  page.Label19.setCaption(headings.previousDraws);
  page.Label20.setCaption(headings.columns);
  page.Label21.setCaption("Frequently played numbers,");
  page.Label22.setCaption(headings.recurring);
}

void fillLastFifteen(SummaryPage& page, const DataFolder& folder, const GameInfo& game,
                     MissingAmounts missing) {
  page.List1.clear();
  SequentialReader reader(folder, inFolder(game, drawsFile), SequentialReader::Reading::asNeeded);
  std::vector<Draw> draws;
  std::vector<std::string> dates;
  std::exception_ptr torn;
  try {
    while (draws.size() < shownDraws && !reader.atEnd()) {
      dates.push_back(draws.emplace_back(drawOf(reader.record<drawFields>())).dateKey());
    }
  } catch (const RuntimeError&) {
    torn = std::current_exception();
  }
  AmountLookup amounts(game, dates);
  try {
    amounts.read(folder);
  } catch (const RuntimeError&) {
    if (missing == MissingAmounts::raise) throw;
  }
  for (std::size_t i = 0; i < draws.size(); ++i) {
    const auto [amount, mark] = amounts.of(dates[i]);
    page.List1.add(join(" ", draws[i].line(), " ", mark, " ", amount));
  }
  if (torn) std::rethrow_exception(torn);
}

void fillWinningPlays(SummaryPage& page, const DataFolder& folder, const GameInfo& game) {
  page.List2.clear();
  SequentialReader plays = openPlays(folder, playFilePath(game, PlaySlot::played));
  if (plays.atEnd()) return;
  DrawIndex draws(folder, inFolder(game, drawsFile), DrawIndex::Dates::asKeys, plays);
  forEachRecordButLast<playFields>(plays, [&](const RecordView<playFields>& record) {
    const Play play = playOf(record.fields());
    const Draw* const draw = play.isListed() ? draws.find(play) : nullptr;
    if (draw != nullptr && matchScore(play, *draw) >= winningScore)
      page.List2.add(join(" ", play.drawLine()));
  });
}

void fillAmounts(SummaryPage& page, const DataFolder& folder, const GameInfo& game) {
  page.List3.clear();
  forEachAmount(folder, game, [&](const RecordView<winningsFields>& record, bool isMarked) {
    page.List3.addJoined(" ", record[0], "-", record[1], "-", record[2], "    ", trimmed(record[3]),
                         isMarked ? "     * " : "        ");
  });
  if (game.game != Game::megaMillions) return;
  for (std::string_view prize : luckyFivePrizes) page.List3.add(prize);
}

void fillPreviousDraws(SummaryPage& page, const DataFolder& folder, const GameInfo& game) {
  page.List4.clear();
  SequentialReader reader(folder, inFolder(game, searchDrawsFile), SequentialReader::Reading::inPieces);
  constexpr Draw::Gaps gaps = {4, 5};
  forEachRecordButLast<drawFields>(reader, [&](const RecordView<drawFields>& record) {
    const Draw draw = drawAt(record, mainBalls);
    draw.writeLine(page.List4.addItem(draw.lineSize(gaps)), gaps);
  });
}

void fillFrequentNumbers(SummaryPage& page, const DataFolder& folder, const GameInfo& game) {
  page.List5.clear();
  SequentialReader reader(folder, inFolder(game, drawsFile), SequentialReader::Reading::asNeeded);
  std::vector<KeptDraw> kept;
  try {
    while (kept.size() < shownDraws) {
      const auto record = reader.record<drawFields>();
      kept.push_back({drawOf(record), record.back()});
    }
  } catch (const RuntimeError&) {
    showRecurringNumbers(kept, page.frequent, page.List5);
    throw;
  }
  showRecurringNumbers(kept, page.frequent, page.List5);
}

void showDoublePlay(SummaryPage& page, const DataFolder& folder) {
  page.Label15.setCaption(powerBallHeadings.lastFifteen);
  page.Label16.setCaption("PowerBall Double Play Display");
  page.List2.clear();
  SequentialReader reader(folder, inFolder(powerBall, doublePlayFile), SequentialReader::Reading::asNeeded);
  std::vector<KeptDraw> kept;
  while (kept.size() < shownDraws) {
    const auto record = reader.record<doublePlayFields>();
    kept.push_back({doublePlayDrawOf(record), record.back()});
    page.List2.add(join(" ", kept.back().draw.line()));
  }
  page.List4.clear();
  for (const KeptDraw& draw : kept) page.List4.add(join(" ", draw.draw.line()));
  forEachRecord<doublePlayFields>(reader, [&](const Fields<doublePlayFields>& record) {
    page.List4.add(join(" ", doublePlayDrawOf(record).line()));
  });
  showRecurringNumbers(kept, page.frequent, page.List5);
}

std::array<std::string, 6> newestNumbers(const SummaryPage& page) {
  std::array<std::string, 6> numbers;
  for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = page.frequent[i].caption();
  return numbers;
}

}  // namespace tallywick
