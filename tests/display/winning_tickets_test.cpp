// The winning-ticket checks: the score, every line and verdict, and which files they look at.
#include "display/winning_tickets.h"

#include "display/draw_files.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::errorOf;
using test::itemsOf;
using test::records;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(MatchScore, OneAWhiteBallAndFiveTheExtraBall) {
  const auto score = [](const std::array<std::string_view, 5>& main, std::string_view extra) {
    return matchScore({"", main, extra, ""}, {"01", "28", "2026", {"07", "12", "23", "34", "34"}, "06"});
  };
  EXPECT_EQ(score({"01", "02", "03", "04", "06"}, "07"), 0) << "the extra ball is no main number";
  EXPECT_EQ(score({"01", "02", "03", "04", "05"}, "06"), 5);
  EXPECT_EQ(score({"23", "07", "12", "04", "05"}, "01"), 3) << "in any order";
  EXPECT_EQ(score({"7", "12", "23", "04", "05"}, "6"), 2) << "numbers are texts";
  EXPECT_EQ(score({"12", "12", "12", "04", "05"}, "01"), 1) << "a number that the play repeats";
  EXPECT_EQ(score({"34", "01", "02", "04", "05"}, "01"), 2) << "a ball that the draw repeats";
}

constexpr std::string_view noPlays = " No plays were created to search for";

struct Tickets : testing::Test {
  Tickets() {
    folder.write(powerBallTickets.draws,
                 records({"01,28,2026,01,02,03,04,05,06,2", "11,11,1111,01,02,03,04,05,06,2",
                          "01,26,2026,11,12,13,14,15,16,2", "01,26,2026,21,22,23,24,25,26,2"}));
    folder.write(powerBallTickets.doublePlays,
                 records({"01,28,2026,01,02,03,04,05,06,x,y,31,32,33,34,35,36,z"}));
  }
  void plays(std::initializer_list<std::string_view> lines) {
    folder.write(powerBallTickets.plays, records(lines));
  }
  int latest(const TicketFiles& files = powerBallTickets) {
    return errorOf([&] { checkAgainstLatestDraw(page, folder.folder(), files); });
  }
  int byDate(const TicketFiles& files = powerBallTickets) {
    return errorOf([&] { checkByDate(page, folder.folder(), files); });
  }
  test::ScratchFolder folder;
  Form form{"Form1"};
  WinningsPage page{form};
  GameFrames frames{form};
};

TEST_F(Tickets, LatestDrawListsEveryWinner) {
  plays({"11-11-1111,01,02,03,04,05,06,0", "01-01-2020,01,02,03,44,45,46,0", "01-28-2026,01,02,33,34,35,36,0",
         "01-02-2020,41,42,43,44,45,06,0"});
  ASSERT_EQ(latest(), 0);
  EXPECT_THAT(
      itemsOf(page.List11),
      ElementsAre(" 01-01-2020   Winning Ticket... Play Number 2", " 01-01-2020   01 02 03 44 45   46", " ",
                  " 01-02-2020   Winning Ticket... Play Number 4", " 01-02-2020   41 42 43 44 45   06", " "));
  EXPECT_THAT(itemsOf(page.Combo10),
              ElementsAre(" 01-01-2020   01 02 03 44 45   46", " 01-02-2020   41 42 43 44 45   06"));
  EXPECT_EQ(page.Combo10.text(), "Winning Ticket(s)");
  EXPECT_THAT(itemsOf(page.List10), IsEmpty()) << "only the first play meets Double Play, and it is none";
  EXPECT_THAT(page.List14.emphasis(), ElementsAre("  01-01-2020      01  02  03  44  45  46",
                                                  "  01-02-2020      41  42  43  44  45  06"));

  plays({"01-28-2026,01,02,33,34,35,36,0", "01-28-2026,41,42,43,44,45,46,0"});
  ASSERT_EQ(latest(), 0);
  EXPECT_EQ(page.Combo10.text(), " No Current Play is a Winning Ticket");
  EXPECT_THAT(itemsOf(page.Combo10), IsEmpty());
  EXPECT_THAT(itemsOf(page.List11), IsEmpty());
  EXPECT_THAT(page.List14.emphasis(), IsEmpty());
  EXPECT_THAT(itemsOf(page.List10), ElementsAre(" Winning Ticket for PowerBall Double Play"));
}

TEST_F(Tickets, ByDateTakesTheFirstDrawOfThePlaysDate) {
  plays({"01-26-2026,11,12,13,44,45,46,0", "01-26-2026,21,22,23,24,25,26,0", "1-28-2026,01,02,03,04,05,06,0",
         "01-27-2026,01,02,03,04,05,06,0", "01-28-2026,41,42,43,44,45,06,0"});
  ASSERT_EQ(byDate(), 0);
  EXPECT_THAT(itemsOf(page.List11),
              ElementsAre(" 01-26-2026   Winning Ticket... ", " 01-28-2026   Winning Ticket... "));
  EXPECT_THAT(itemsOf(page.List10), ElementsAre(" 01-26-2026   11 12 13 44 45   46     ",
                                                " 01-28-2026   41 42 43 44 45   06     "));
  EXPECT_EQ(page.Combo10.text(), "") << "an early winner leaves the verdict empty";
}

TEST_F(Tickets, ByDateAnEarlyLosersVerdictStays) {
  for (const char* loser : {"01-28-2026,41,42,43,44,45,46,0", "01-27-2026,01,02,03,04,05,06,0",
                            "11-11-1111,01,02,03,04,05,06,0"}) {
    plays({loser, "01-28-2026,01,02,03,04,05,06,0"});
    ASSERT_EQ(byDate(), 0);
    EXPECT_EQ(page.Combo10.text(), " No Play(s) were a Winning Ticket") << loser;
    EXPECT_THAT(itemsOf(page.List11), ElementsAre(" 01-28-2026   Winning Ticket... ")) << loser;
  }
}

TEST_F(Tickets, MissingAndEmptyFiles) {
  page.List10.add("left over");
  page.List11.add("left over");
  for (const auto check : {&Tickets::latest, &Tickets::byDate}) {
    ASSERT_EQ((this->*check)(powerBallTickets), 0) << "no play file";
    EXPECT_EQ(page.Combo10.text(), noPlays);
    EXPECT_THAT(itemsOf(page.List10), IsEmpty());
    EXPECT_THAT(itemsOf(page.List11), IsEmpty());
  }
  EXPECT_EQ(latest(megaMillionsTickets), 53) << "the latest-draw check opens the draws first";
  EXPECT_EQ(byDate(megaMillionsTickets), 0);
  EXPECT_EQ(page.Combo10.text(), noPlays);
  EXPECT_EQ(byDate(hoosierTickets), 0) << "not even the folder";
  EXPECT_EQ(latest(hoosierTickets), 53) << "not even the folder";

  const std::string winner = records({"01-28-2026,01,02,03,04,05,06,0"});
  folder.write(megaMillionsTickets.plays, winner);
  EXPECT_EQ(byDate(megaMillionsTickets), 53);
  folder.write(megaMillionsTickets.draws, "");
  EXPECT_EQ(latest(megaMillionsTickets), 62);
  EXPECT_EQ(byDate(megaMillionsTickets), 0);
  EXPECT_EQ(page.Combo10.text(), " No Play(s) were a Winning Ticket");

  folder.write(powerBallTickets.plays, winner);
  std::filesystem::remove(folder.folder().resolve(powerBallTickets.doublePlays));
  EXPECT_EQ(latest(), 53);
  EXPECT_EQ(page.Combo10.text(), "Winning Ticket(s)") << "Double Play comes last";
}

TEST_F(Tickets, TheLeftoverGameIsCheckedLikeTheOthers) {
  folder.write(hoosierTickets.draws, records({"01,28,2026,01,02,03,04,05,06,2"}));
  folder.write(hoosierTickets.plays, records({"01-28-2026,01,02,03,34,35,36,0"}));
  ASSERT_EQ(byDate(hoosierTickets), 0);
  EXPECT_THAT(itemsOf(page.List10), ElementsAre(" 01-28-2026   01 02 03 34 35   36     "));
  ASSERT_EQ(latest(hoosierTickets), 0);
  EXPECT_THAT(itemsOf(page.Combo10), ElementsAre(" 01-28-2026   01 02 03 34 35   36"));
}

TEST_F(Tickets, TheFrameAndTheOptionChooseTheCheck) {
  plays({"01-28-2026,01,02,03,04,05,06,0"});
  folder.write(megaMillionsTickets.draws, records({"01,27,2026,51,52,53,54,55,56,2"}));
  folder.write(megaMillionsTickets.plays, records({"01-27-2026,51,52,53,54,55,56,0"}));
  struct Case {
    Frame* frame;
    bool latest, byDate;
    std::string firstLine;
  };
  for (const Case& c : std::vector<Case>{
           {&frames.Frame4, true, false, " 01-28-2026   Winning Ticket... Play Number 1"},
           {&frames.Frame6, false, true, " 01-28-2026   Winning Ticket... "},
           {&frames.Frame11, true, false, " 01-27-2026   Winning Ticket... Play Number 1"},
           {&frames.Frame11, false, true, " 01-27-2026   Winning Ticket... "},
           {&frames.Frame4, false, false, "nothing runs"},
           {&frames.Frame12, true, false, "nothing runs"},
       }) {
    for (Frame* frame : {&frames.Frame4, &frames.Frame6, &frames.Frame11})
      frame->setVisible(frame == c.frame);
    page.Option1.setValue(c.latest);
    page.Option2.setValue(c.byDate);
    page.List11.clear();
    page.List11.add("nothing runs");
    Command47_Click(page, frames, folder.folder());
    EXPECT_EQ(page.List11.items()[0], c.firstLine) << c.frame->name();
  }
}

TEST_F(Tickets, PlayListsPassOverRecordsThatAreNoPlays) {
  plays({"11-11-1111,01,02,03,04,05,06,0", "01-28-2026,01,02,03,04,05,06,0"});
  folder.write(R"(QzrNumbers\QZR6PWR\QZR6PWR1.Ply)",
               records({"01-31-2026,11,12,13,14,15,16,0", "11-11-1111,01,02,03,04,05,06,0"}) + "\"02-02");
  fillPlayedPlays(page, folder.folder(), powerBall);
  EXPECT_THROW(fillCommittedPlays(page, folder.folder(), powerBall), RuntimeError);
  EXPECT_THAT(itemsOf(page.List14), ElementsAre("  01-28-2026      01  02  03  04  05  06"));
  EXPECT_THAT(itemsOf(page.List17), ElementsAre("  01-31-2026      11  12  13  14  15  16"));
}

}  // namespace
}  // namespace tallywick
