// SPDX-License-Identifier: GPL-3.0-or-later
// The strip over the pages that says which file of the record book is damaged or missing, with what helps.
#pragma once

#include "app/file_trouble.h"
#include "core/remembered.h"

#include <QWidget>
#include <functional>
#include <map>

namespace tallywick {

class FormWindow;
class MainForm;
class NoticeStrip;

class FileTroubleStrip : public QWidget {
 public:
  FileTroubleStrip(MainForm& form, FormWindow& window);
  /// Reads the files anew where they have changed. The game on show comes first.
  void showFiles();
  /// Called where another program has damaged or mended a file.
  std::function<void()> onChanged;

 protected:
  /// A file may have been mended while another program was in front.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const std::optional<FileTrouble>& troubleNow(const GameInfo& game);
  void showMending();
  void fetchDraws();

  MainForm& form_;
  FormWindow& window_;
  NoticeStrip* torn_;
  NoticeStrip* missing_;
  std::map<Game, Remembered<std::optional<FileTrouble>>> remembered_;
  std::optional<FileTrouble> shown_;
  Game gameShown_ = Game::powerBall;
};

}  // namespace tallywick
