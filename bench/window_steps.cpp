// SPDX-License-Identifier: GPL-3.0-or-later
#include "window_steps.h"

#include "actions.h"
#include "ui/qt/program/steps.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <QWidget>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace tallywick::bench {

using namespace Qt::StringLiterals;

namespace {

/// In milliseconds: in which what a step changed is laid out and painted.
constexpr int betweenSteps = 50;

struct WindowStep {
  const char* line;
  /// Null where it is not measured.
  const char* name = nullptr;
};

/// A walk that leaves the record book as it was. %1 is the folder.
constexpr WindowStep walk[] = {
    {"press Command7"},
    {"press Draws…", "open Draws…"},
    {"press Type In a Draw…", "Draws…: open Type In a Draw"},
    {"type typed1: 3 14 25 36 47"},
    {"type typed2: 9"},
    {"press Add the Draw", "Draws…: add the draw"},
    {"press Close", "close Draws…"},
    {"press Winnings"},
    {"press My Plays", "open My Plays"},
    {"choose My plays: 3", "My Plays: choose a play"},
    {"press Move to Played", "My Plays: move a drawn play"},
    {"choose My plays: 0"},
    {"press Remove", "My Plays: remove a play"},
    {"press Bring Back…", "My Plays: open Bring Back"},
    {"press OK", "My Plays: bring a play back"},
    {"press Undo", "My Plays: undo"},
    {"press Undo"},
    {"press Undo"},
    {"type Filter: Won", "My Plays: filter"},
    {"type Filter: All plays"},
    {"press Check a Ticket", "open Check a Ticket"},
    {"type Numbers: 15 29 47 53 55"},
    {"type PowerBall: 13"},
    {"type Date of the draw: 11-14-2026"},
    {"press Judge", "Check a Ticket: judge"},
    {"press Keep It", "Check a Ticket: keep"},
    {"press My Plays"},
    {"press Undo"},
    {"press Check"},
    {"press Searches"},
    {"press Two or Three Numbers"},
    {"press Save List…"},
    {"type fileNameEdit: %1.csv"},
    {"press Save", "save the list of all draws as CSV"},
    {"type Combo4: 7 17", "type two numbers to search for"},
    {"press Command37"},
    {"press Command38", "search for the typed numbers"},
    {"press Summary"},
    {"press Show Double Play", "show Double Play"},
    {"press Back to PowerBall", "back to PowerBall"},
    {"press Draws"},
    {"press Number Table", "open Number Table"},
    {"press Sort by Since", "Number Table: sort"},
    {"press Sort by Number"},
    {"press Charts and Newest Draws"},
    {"press Draws…"},
    {"press Remove…", "Draws…: open Remove"},
    {"press OK", "Draws…: remove a typed draw"},
    {"press Close"},
    {"press Backup…", "open Backup…"},
    {"type Backup to write: %1.zip"},
    {"press Back Up", "Backup…: back up"},
    {"press Close"},
    {"press Settings…", "open Settings…"},
    {"press Cancel"},
    {"press Manual", "open the manual"},
    {"type Find in the manual: prize", "search the manual"},
    {"close"},
    {"press Command4"},
    {"press Command48"},
    {"choose Your Next Play(s) Selections: 0"},
    {"press Remove", "selection: remove a play"},
    {"press Bring Play Back", "selection: bring the play back (Ctrl+Z)"},
    {"close"},
};

class Walk {
 public:
  explicit Walk(const QString& folder) : folder_(folder) {}

  void take() {
    for (const char* ending : {".zip", ".csv"}) QFile::remove(folder_ + QLatin1String(ending));
    next_ = 0;
    takeNextSoon();
    loop_.exec();
    ++round_;
  }

  void print() const {
    for (std::size_t i = 0; i < std::size(walk); ++i) {
      if (walk[i].name != nullptr) printTimes(walk[i].name, times_.at(i));
    }
  }

 private:
  void takeNextSoon() {
    QTimer::singleShot(betweenSteps, &loop_, [this] { takeNext(); });
  }

  /// A dialog that a step opens has a loop of its own, in which the next step comes.
  void takeNext() {
    if (next_ > 0) times_.at(next_ - 1).add(std::clock() - began_, round_);
    if (next_ == std::size(walk)) return loop_.quit();
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    const QString line = QString::fromUtf8(walk[next_++].line);
    takeNextSoon();
    began_ = std::clock();
    try {
      takeStep(line.contains(u"%1"_s) ? line.arg(folder_) : line);
    } catch (const std::exception& error) {
      std::fprintf(stderr, "%s: %s\n", qUtf8Printable(line), error.what());
      std::_Exit(1);
    }
  }

  QString folder_;
  QEventLoop loop_;
  std::array<Times, std::size(walk)> times_;
  std::size_t next_ = 0;
  std::clock_t began_ = 0;
  int round_ = 0;
};

}  // namespace

void measureWindowSteps(const QString& folder, int rounds) {
  Walk walked(folder);
  for (int round = 0; round < rounds; ++round) walked.take();
  walked.print();
}

}  // namespace tallywick::bench
