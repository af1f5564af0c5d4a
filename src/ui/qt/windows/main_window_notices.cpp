// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window says over its pages of the draws on show.
#include "app/draws_note.h"
#include "app/main_form.h"
#include "core/clock.h"
#include "ui/qt/pages/draws_view.h"
#include "ui/qt/pages/search_view.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/main_window.h"
#include "ui/qt/windows/notice_strip.h"

#include <QLabel>
#include <QToolButton>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

void MainWindow::followDraws() {
  std::vector<os::FileStamp> files = stampsOfDraws(desk().folder);
  if (files == drawFiles_) return;
  drawFiles_ = std::move(files);
  drawnPlays_.look();
  drawnPlaysSeen_ = false;
  finish();
  searches_->drawsChanged();
  draws_->drawsChanged();
}

void MainWindow::showNotices() {
  const bool isMadeUp = desk().showsMadeUpDraws && desk().showsMadeUpDraws();
  madeUp_->say(isMadeUp ? u"Sample draws."_s : QString(),
               u"They never took place; an update brings the real ones into this folder."_s);
  const GameInfo* const game = gameOnShow(main_.frames);
  const std::tuple asked = {drawFiles_,
                            game != nullptr && !isMadeUp ? std::string(game->name) : std::string(),
                            desk().clock != nullptr ? desk().clock->date() : std::string()};
  if (std::exchange(ageAsked_, asked) != asked)
    age_->say(desk().drawsAge ? toQString(desk().drawsAge()) : QString(),
              u"Update, or the button here, brings the newer ones."_s);
  const bool isDoublePlay = main_.frames.Frame6.visible();
  doublePlay_->setVisible(desk().showDoublePlay && (isDoublePlay || main_.frames.Frame4.visible()));
  doublePlay_->setText(isDoublePlay ? u"Back to PowerBall"_s : u"Show Double Play"_s);
}

/// Double Play is what its display shows, and a part of the searches and of the page of draws.
void MainWindow::showDoublePlayNote() {
  constexpr int searches = 1;
  constexpr int draws = 3;
  const int page = main_.bar.SSTab1.tab();
  const bool isDoublePlay = main_.frames.Frame6.visible();
  const bool isShown = isDoublePlay || page == searches || page == draws;
  QStringList notes;
  if (const QString drawn = drawnPlaysNote(); !drawn.isEmpty()) notes += drawn;
  // The heading is the last filled summary's.
  if (isDoublePlay && main_.summary.Label19.caption().find(megaMillions.name) != std::string::npos) {
    notes +=
        u"The lists that Double Play does not fill are still those of Mega Millions; Back to PowerBall "
        "shows PowerBall's. The play selection that opens is PowerBall's."_s;
  }
  if (const QString note = isShown && desk().doublePlayNote ? toQString(desk().doublePlayNote()) : QString();
      !note.isEmpty())
    notes += note;
  doublePlayNote_->setText(notes.join(u'\n'));
  doublePlayNote_->setVisible(!notes.isEmpty());
}

QString MainWindow::drawnPlaysNote() {
  constexpr int winnings = 2;
  const bool isThere = main_.bar.SSTab1.tab() == winnings;
  if (drawnPlaysSeen_ && !isThere) drawnPlays_.forget();
  drawnPlaysSeen_ = isThere;
  return toQString(drawnPlays_.note());
}

}  // namespace tallywick
