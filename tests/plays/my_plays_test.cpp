// SPDX-License-Identifier: GPL-3.0-or-later
// What a player does with all plays: the table with its sums, changes and their undoing, tickets typed in,
// and what is said beside the winning-ticket check.
#include "core/clock.h"
#include "core/text.h"
#include "display/winning_tickets.h"
#include "plays/check_explained.h"
#include "plays/drawn_plays.h"
#include "plays/glance.h"
#include "plays/judged_plays.h"
#include "plays/play_changes.h"
#include "plays/play_table.h"
#include "plays/ticket.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::records;
using testing::ElementsAre;

const std::string leftBehind = records({"12-30-2025,01,02,03,60,61,20,x"});
const std::string waiting = records({"01-10-2026,01,02,03,04,05,06,x"});
const std::string movedEarly = records({"01-07-2026,11,12,13,14,15,16,x"});
const std::string newest = records({"01-02-2026,10,20,30,60,61,26,x"});
const std::string old = records({"12-27-2025,31,32,33,34,35,26,x"});

/// A New Year at which the maintenance left one play behind and moved another one early.
class MyPlays : public testing::Test {
 protected:
  MyPlays() {
    scratch.write(game("QZRNUM6.Dat"),
                  records({"01,02,2026,10,20,30,40,50,06,2", "12,30,2025,01,02,03,04,05,07,2",
                           "12,27,2025,41,42,43,44,45,26,2"}));
    scratch.write(game("QZRNUM62.Dat"), scratch.read(game("QZRNUM6.Dat")));
    scratch.write(game("QZRNUM72.Dat"), records({"01,02,2026,91,92,93,94,95,96,2,DP,10,20,30,40,50,01,1"}));
    write(leftBehind + waiting, movedEarly + newest + old);
  }
  static std::string game(std::string_view file) { return inFolder(powerBall, file); }
  void write(std::string_view committed, std::string_view played) const {
    scratch.write(game("QZR6PWR1.Ply"), committed);
    scratch.write(game("QZR6PWR2.Ply"), played);
  }
  PlayTexts shown() const { return readPlayTexts(powerBall, scratch.folder()); }
  Judgement judgement() const { return judgePlays(powerBall, scratch.folder()); }
  void expectFiles(const std::string& committed, const std::string& played) const {
    EXPECT_EQ(shown().committed, committed);
    EXPECT_EQ(shown().played, played);
    EXPECT_EQ(scratch.read(game("QZR6PWR1.Sav")), committed);
  }

  test::ScratchFolder scratch;
  FixedClock clock{"01-03-2026", "12:00:00"};
  PlayJudge judge{scratch.folder()};
  PlayChanges changes{powerBall, scratch.folder(), clock};
};

TEST_F(MyPlays, AreInOneTableWithTheirSumsByYear) {
  std::vector<std::string> rows;
  for (const JudgedPlay& play : playsIn(judgement(), PlayFilter::all)) {
    rows.push_back(join(dateText(play), "|", stateText(play), "|", matchText(play.match, Game::powerBall),
                        "|", prizeText(play), "|", doublePlayText(play)));
  }
  EXPECT_THAT(rows,
              ElementsAre("Sat 01-10-2026|waiting|nothing||", "Wed 01-07-2026|waiting, moved early|nothing||",
                          "Fri 01-02-2026|drawn|10 20 30|$7|10 20 30: won",
                          "Tue 12-30-2025|drawn, left among the next plays|01 02 03|$7|",
                          "Sat 12-27-2025|drawn|the PowerBall|$4|"));
  const std::vector<std::string> cells =
      playCells(playsIn(judgement(), PlayFilter::all).at(2), Game::powerBall);
  EXPECT_EQ(cells.size(), playCellTitles(Game::powerBall).size());
  EXPECT_THAT(cells, ElementsAre("01-02-2026", "10", "20", "30", testing::_, testing::_, testing::_, "drawn",
                                 "10 20 30", "7", "10 20 30: won"));
  EXPECT_EQ(playsIn(judgement(), PlayFilter::waiting).size(), 2U);
  EXPECT_EQ(playsIn(judgement(), PlayFilter::won).size(), 3U);
  const std::vector<YearSums> years = sumsByYear(judgement(), 250);
  ASSERT_EQ(years.size(), 2U);
  EXPECT_EQ(years[1].year, 2025);
  EXPECT_EQ(years[1].dollars, 11);
  const YearSums total = totalOf(years);
  EXPECT_EQ(total.plays * 10 + total.wins, 53U);
  EXPECT_EQ(moneyText(*total.costInCents), "$12.50");
  EXPECT_EQ(moneyText(100'000'000), "$1,000,000");
  scratch.write(game("QZR6PWR1.Ply"), leftBehind + "\"01-1");
  EXPECT_THAT(noticesOn(judgement()),
              ElementsAre(testing::HasSubstr("QZR6PWR1.Ply, record 2"),
                          "Drawn, and left among the next plays: 12-30-2025.",
                          "Moved to the played plays before their draw: 01-07-2026."));
}

TEST_F(MyPlays, StayForTheOtherDrawsWhereOneIsRemoved) {
  std::string later = waiting;
  for (const char* date : {"01-14-2026", "01-17-2026", "01-17-2026"})
    later += date + waiting.substr(waiting.find(','));
  write(leftBehind + waiting + later, old);
  const std::vector<PlayPlace> one = {{PlaySlot::committed, 2}};
  EXPECT_EQ(changes.remove(shown(), one).what, "1 play removed; the same play stays for 2 other draws");
  EXPECT_EQ(changes.remove(shown(), std::vector<PlayPlace>{{PlaySlot::committed, 1}}).what, "1 play removed");
}

TEST_F(MyPlays, AreCountedWhenNewDrawsHaveDrawnThem) {
  DrawnPlays drawn(scratch.folder(), judge);
  drawn.look();
  EXPECT_EQ(drawn.note(), "");
  const std::string draws = scratch.read(game("QZRNUM6.Dat"));
  scratch.write(game("QZRNUM6.Dat"), records({"01,10,2026,61,62,63,64,65,06,2"}) + draws);
  drawn.look();
  drawn.look();
  EXPECT_EQ(drawn.note(), "1 of your PowerBall plays was drawn: see My Plays, on the page Winnings.");
}

TEST_F(MyPlays, AreSeenAtAGlance) {
  const auto texts = [this](const Clock* now) {
    const Glance seen = glanceAt(powerBall, scratch.folder(), judge, now);
    return join(seen.newest.text, "|", seen.next.text, "|", seen.waiting.text, "|", seen.wins.text);
  };
  const std::string wins = "|3, of which 3 won";
  struct Row {
    const char* date;
    const char* time;
    std::string nextAndWaiting;
    bool isBehind = false;
    const char* missing = "";
  };
  for (const Row& row : {Row{"12-20-2025", "12:00:00", "Sat 01-03-2026|no plays (2 in all)"},
                         Row{"01-03-2026", "12:00:00", "today, Sat 01-03-2026|no plays (2 in all)"},
                         Row{"01-03-2026", "23:30:00", "Mon 01-05-2026|no plays (2 in all)", true},
                         Row{"01-05-2026", "12:00:00", "today, Mon 01-05-2026|no plays (2 in all)", true,
                             "Sat 01-03 is missing"},
                         Row{"01-07-2026", "12:00:00", "today, Wed 01-07-2026|1 play (2 in all)", true,
                             "Sat 01-03 and one more are missing"}}) {
    const FixedClock now(row.date, row.time);
    EXPECT_EQ(texts(&now), join("Fri 01-02-2026|", row.nextAndWaiting, wins)) << row.date << row.time;
    const Glance seen = glanceAt(powerBall, scratch.folder(), judge, &now);
    EXPECT_EQ(seen.missing.text, row.missing) << row.date << row.time;
    const std::string& tip = seen.newest.tip;
    EXPECT_EQ(tip.find("Newer draws") != std::string::npos, row.isBehind) << tip;
  }
  EXPECT_EQ(texts(nullptr), "Fri 01-02-2026|Sat 01-03-2026|no plays (2 in all)" + wins);
  write(waiting + "\"01-1", "");
  EXPECT_EQ(texts(nullptr), "Fri 01-02-2026|Sat 01-03-2026|no plays (1 in all)|none yet");
  EXPECT_THAT(glanceAt(powerBall, scratch.folder(), judge, nullptr).wins.tip,
              testing::HasSubstr("QZR6PWR1.Ply, record 2"));
  std::filesystem::remove(scratch.folder().resolve(game("QZRNUM72.Dat")));
  EXPECT_EQ(texts(nullptr), "Fri 01-02-2026|Sat 01-03-2026||");
  scratch.write(game("QZRNUM6.Dat"), "");
  EXPECT_EQ(texts(nullptr), "|||");
  EXPECT_THAT(glanceAt(powerBall, scratch.folder(), judge, nullptr).waiting.tip,
              testing::HasSubstr("QZRNUM72.Dat"));
}

TEST_F(MyPlays, AreJudgedAnewWhereAFileHasChanged) {
  const auto now = std::filesystem::file_time_type::clock::now();
  for (const std::string& file : filesJudged(powerBall)) {
    if (scratch.folder().exists(file))
      std::filesystem::last_write_time(scratch.folder().resolve(file), now - std::chrono::hours(1));
  }
  const std::shared_ptr<const JudgedPlays> before = judge.plays(powerBall);
  EXPECT_EQ(before->judgement, judgement());
  EXPECT_EQ(before->texts, shown());
  EXPECT_EQ(judge.plays(powerBall), before);
  // As long as before, and twice within one step of the clock.
  for (const std::string& play : {newest, movedEarly}) {
    write(join(play, waiting), join(movedEarly, newest, old));
    EXPECT_EQ(judge.plays(powerBall)->texts, shown());
    EXPECT_EQ(judge.plays(powerBall)->judgement, judgement());
  }
}

TEST_F(MyPlays, AChangeIsUndoneToTheByteAndWhatGoesStaysInACopy) {
  scratch.write(game("QZR6PWR1.Sav"), "before");
  const PlayChange removed =
      changes.remove(shown(), std::vector<PlayPlace>{{PlaySlot::committed, 2}, {PlaySlot::played, 1}});
  EXPECT_EQ(removed.what, "2 plays removed");
  expectFiles(leftBehind, newest + old);
  EXPECT_EQ(scratch.read(game("QZR6PWR1 2026-01-03 120000.Ply")), leftBehind + waiting);
  EXPECT_THROW(changes.remove(removed.before, {}), PlaysChangedMeanwhile);

  const std::vector<PlayCopy> copies = changes.copies();
  ASSERT_EQ(copies.size(), 2U);
  EXPECT_EQ(copies[0].missing + copies[1].missing, 2U);
  const PlayChange back = changes.bringBack(shown(), "QZR6PWR2 2026-01-03 120000.Ply");
  // It waits for its draw, so that is where it belongs.
  expectFiles(leftBehind + movedEarly, newest + old);
  changes.undo(back);
  changes.undo(removed);
  EXPECT_EQ(shown(), removed.before);
  EXPECT_EQ(scratch.read(game("QZR6PWR1.Sav")), "before");
  EXPECT_THROW(changes.bringBack(shown(), copies[0].name), std::runtime_error);

  const PlayChange moved = changes.moveToPlayed(shown(), std::vector<std::size_t>{1});
  expectFiles(waiting, movedEarly + newest + leftBehind + old);
  EXPECT_EQ(changes.copies().size(), 3U) << "a play that only moves leaves no copy";
  scratch.write(game("QZR6PWR1.Ply"), "");
  EXPECT_THROW(changes.undo(moved), PlaysChangedMeanwhile);
}

TEST_F(MyPlays, OddFilesKeepWhatCannotBeUnderstood) {
  struct Row {
    const char* file;
    std::string committed;
    std::string after;
  };
  const std::string play = records({"01-09-2026,07,08,09,10,11,12,x"});
  const std::string sentinel = records({"11-11-1111,00,00,00,00,00,00,x"});
  for (const Row& row :
       {Row{"empty", "", play}, Row{"no line end", waiting.substr(0, waiting.size() - 2), play + waiting},
        Row{"no line end, earlier", leftBehind.substr(0, leftBehind.size() - 2), leftBehind + play},
        Row{"a cut record", leftBehind + "\"01-1", leftBehind + play + "\"01-1"},
        Row{"a place holder", sentinel + waiting, join(sentinel, play, waiting)},
        Row{"two in a line", "01-08-2026,1,2,3,4,5,6,\x80,01-10-2026,1,2,3,4,5,6,x\n",
            records({"01-08-2026,1,2,3,4,5,6,\x80"}) + play + records({"01-10-2026,1,2,3,4,5,6,x"})}}) {
    SCOPED_TRACE(row.file);
    write(row.committed, newest);
    const PlayChange added = changes.add(PlaySlot::committed, play);
    expectFiles(row.after, newest);
    changes.undo(added);
    EXPECT_EQ(shown().committed, row.committed);
  }
}

TEST_F(MyPlays, ARecordThatGoesOnInTheNextLineIsNoPlayAndStaysWhereItIs) {
  const std::string torn = "\"01-08-2026\",\"01\",\"02\"\r\n";
  const std::string copy = "QZR6PWR2 2026-01-01 120000.Ply";
  write(leftBehind + torn + torn + waiting, newest);
  scratch.write(game(copy), torn + old);
  const PlayTexts before = shown();
  EXPECT_EQ(judgement().plays.size(), 2U);
  EXPECT_THAT(
      [&] {
        changes.remove(before, std::vector<PlayPlace>{{PlaySlot::committed, 1}});
      },
      testing::ThrowsMessage<std::runtime_error>(testing::HasSubstr("QZR6PWR1.Ply, line 2: ")));
  EXPECT_EQ(shown(), before);
  changes.bringBack(before, copy);
  EXPECT_EQ(shown().committed + shown().played, before.committed + newest + old);
}

TEST_F(MyPlays, ATypedTicketIsJudgedAndKeptOnlyWhenAsked) {
  const auto verdictOn = [&](const TypedTicket& typed) -> std::string {
    try {
      return ticketVerdict(powerBall,
                           judgeTicket(powerBall, scratch.folder(), ticketRecord(powerBall, typed)));
    } catch (const std::invalid_argument& error) {
      return error.what();
    }
  };
  const auto before = scratch.snapshot();
  EXPECT_EQ(verdictOn({"61 30,20, 10 60", "26", "01/02/2026"}),
            "Drawn on Fri 01-02-2026. Matched: 10 20 30. It wins $7. With Double Play: 10 20 30, it wins.");
  EXPECT_EQ(verdictOn({"1 2 3 60 61", "26", "12-27-2025"}),
            "Drawn on Sat 12-27-2025. Matched: the PowerBall. It wins $4.");
  EXPECT_EQ(verdictOn({"10 20 30 40 50", "6", "01-02-2026"}).substr(0, 73),
            "Drawn on Fri 01-02-2026. Matched: 10 20 30 40 50 and the PowerBall. It wi");
  EXPECT_EQ(verdictOn({"1 2 3 4 5", "6", "01-01-2026"}),
            "The record book has no PowerBall draw of Thu 01-01-2026.");
  EXPECT_THAT(verdictOn({"1 2 3 4 5", "6", "01-06-2026"}),
              testing::EndsWith("PowerBall is not drawn on that day."));
  EXPECT_THAT(verdictOn({"1 2 3 4 5", "6", "02-30-2026"}), testing::StartsWith("The date is \"02-30-2026\""));
  EXPECT_THAT(verdictOn({"1 2 3 4 70", "6", "01-02-2026"}), testing::StartsWith("A number is \"70\""));
  EXPECT_THAT(verdictOn({"1 2 3 4 4", "6", "01-02-2026"}), testing::EndsWith("there are 4."));
  EXPECT_THAT(verdictOn({"1 2 3 4 5", "27", "01-02-2026"}), testing::StartsWith("The PowerBall is \"27\""));
  EXPECT_EQ(scratch.snapshot(), before);
  const auto canKeepOn = [this](const char* date) {
    const std::string typed = ticketRecord(powerBall, {"1 2 3 4 5", "6", date});
    return canBeKept(powerBall, judgeTicket(powerBall, scratch.folder(), typed));
  };
  EXPECT_TRUE(canKeepOn("01-02-2026") && canKeepOn("01-07-2026"));
  for (const char* date : {"11-18-2026", " 11/18/2026", "11182026", "2026-11-18"})
    EXPECT_EQ(typedDay(date), dayOf(2026, 11, 18)) << date;
  for (const char* date : {"", "18-11-2026", "2026-11", "111820", "11-18-1820x", "20261118"})
    EXPECT_FALSE(typedDay(date)) << date;
  EXPECT_FALSE(canKeepOn("01-01-2026") || canKeepOn("01-06-2026"));

  const std::string record = ticketRecord(powerBall, {"61 60 30 20 10", "26", "01-02-2026"});
  const JudgedPlay ticket = judgeTicket(powerBall, scratch.folder(), record);
  EXPECT_TRUE(isAmongPlays(judgement(), ticket));
  EXPECT_EQ(fileForTicket(ticket), PlaySlot::played);
}

TEST_F(MyPlays, TheCheckSaysWhereTheJudgingDiffers) {
  Form form("Form1");
  WinningsPage page(form);
  EXPECT_EQ(checkExplained(page, powerBall, judgement()).headline,
            "Nothing was checked: choose Latest draw or Draw of each play's date, then press Check Tickets.");
  const auto explained = [&](OptionButton& option) {
    page.Option1.setValue(&option == &page.Option1);
    page.Option2.setValue(&option == &page.Option2);
    (&option == &page.Option1 ? checkAgainstLatestDraw : checkByDate)(page, scratch.folder(),
                                                                      ticketFilesOf(powerBall));
    const CheckExplained said = checkExplained(page, powerBall, judgement());
    std::string text = said.headline + "\n" + said.verdict + "\n";
    for (const std::string& line : said.more) text += line + "\n";
    return text;
  };
  const std::string sum =
      "3 of 3 drawn PowerBall plays won in the draw of their own date: $18 in all before any multiplier.\n";
  write(leftBehind + waiting, records({"12-26-2025,10,20,30,34,35,01,x"}) + old + newest);
  const std::string left = "Won, and still among the next plays: 1 play. The check does not look there.\n";
  EXPECT_EQ(explained(page.Option1),
            sum +
                "This is the newest draw alone, against every play, whatever date a play is for. What counts "
                "for a ticket is the draw of its own date: see above.\n"
                "Listed, and not won: 1 play. Their numbers match the newest draw, which is not the draw of "
                "their own date.\n"
                "Won, and not listed: 1 play. The check looks at the newest draw alone.\n" +
                left +
                "3 won, 1 of them by Double Play too. The check sets the first play "
                "against the newest Double Play draw.\n");
  EXPECT_EQ(explained(page.Option2),
            sum +
                "The check wrote this for a losing play, and did not take it back for the 2 plays after it "
                "that won.\n" +
                left +
                "3 won, 1 of them by Double Play too. The check by date does not look at Double Play.\n");
  // Two histories have the draw of a play that the main one does not have yet.
  scratch.write(game("QZRNUM62.Dat"), records({"01,07,2026,11,12,13,14,15,16,2"}));
  scratch.write(game("QZRNUM72.Dat"), records({"01,07,2026,91,92,93,94,95,96,2,DP,11,12,13,14,15,16,1"}));
  write("", movedEarly);
  EXPECT_EQ(
      explained(page.Option2),
      "No play of PowerBall has been drawn yet.\n"
      "The check leaves this line empty: by date it writes here only for a losing play before the first one "
      "that won.\n"
      "Listed, and not drawn: 1 play. The check reads the search history, which has a draw that the main "
      "one lacks.\n");
  EXPECT_EQ(
      playsIn(judgement(), PlayFilter::won).size() + totalOf(sumsByYear(judgement(), {})).doublePlayWins, 0U);
  EXPECT_THAT(ticketVerdict(powerBall, judgement().plays.at(0)),
              testing::EndsWith("With Double Play: 11 12 13 14 15 and the PowerBall."));
}

}  // namespace
}  // namespace tallywick
