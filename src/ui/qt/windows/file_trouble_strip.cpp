// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/file_trouble_strip.h"

#include "app/main_form.h"
#include "core/outside.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/notice_strip.h"

#include <QAction>
#include <QEvent>
#include <QMessageBox>
#include <exception>

namespace tallywick {

using namespace Qt::StringLiterals;

FileTroubleStrip::FileTroubleStrip(MainForm& form, FormWindow& window)
    : QWidget(&window),
      form_(form),
      window_(window),
      torn_(new NoticeStrip(window, u"What to Do…"_s, u"Shows how the file is mended"_s,
                            [this] { showMending(); })),
      missing_(new NoticeStrip(window, u"Update"_s, u"Fetches the draws of this game"_s,
                               [this] { fetchDraws(); })) {
  missing_->addButton(u"Backup…"_s, u"Brings the record book back from a backup"_s,
                      [&window] { window.desk().backUp(); });
  auto* column = columnIn(this, 0);
  column->setContentsMargins({});
  for (NoticeStrip* strip : {torn_, missing_}) column->addWidget(strip);
  window.installEventFilter(this);
  showFiles();
}

bool FileTroubleStrip::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowActivate && !window_.binding().isReleased()) {
    const bool wasShown = shown_.has_value();
    showFiles();
    if (wasShown != shown_.has_value() && onChanged) onChanged();
  }
  return QWidget::eventFilter(watched, event);
}

void FileTroubleStrip::showFiles() {
  shown_.reset();
  const GameInfo* const onShow = gameOnShow(form_.frames);
  std::vector<const GameInfo*> games(allGames.begin(), allGames.end());
  if (onShow == &megaMillions) games = {&megaMillions, &powerBall};
  for (const GameInfo* game : games) {
    if (shown_) break;
    gameShown_ = game->game;
    try {
      shown_ = troubleNow(*game);
    } catch (const std::exception&) {
      // What cannot be read at all is said by what reads it.
    }
  }
  const auto say = [this](NoticeStrip* strip, bool isShown) {
    strip->say(isShown ? toQString(shown_->heading) : QString(),
               isShown ? toQString(shown_->text) : QString());
  };
  say(torn_, shown_ && shown_->isTorn);
  say(missing_, shown_ && !shown_->isTorn);
  setVisible(shown_.has_value());
}

const std::optional<FileTrouble>& FileTroubleStrip::troubleNow(const GameInfo& game) {
  const DataFolder& folder = window_.desk().folder;
  return remembered_[game.game].of(stampsOf(folder, filesWatched(game)),
                                   [&] { return troubleOf(game, folder); });
}

void FileTroubleStrip::showMending() {
  if (!shown_) return;
  QMessageBox box(QMessageBox::Information, toQString(programTitle),
                  toQString(shown_->heading + " " + shown_->text), QMessageBox::Ok, &window_);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(toQString(shown_->mending));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.exec();
}

void FileTroubleStrip::fetchDraws() {
  const MenuEntry& entry =
      gameShown_ == Game::powerBall ? form_.menu.mnuPowerBall2 : form_.menu.mnuMegaMillions2;
  window_.findChild<QAction*>(toQString(entry.name()))->trigger();
}

}  // namespace tallywick
