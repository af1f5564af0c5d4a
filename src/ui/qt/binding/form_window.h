// SPDX-License-Identifier: GPL-3.0-or-later
// A window on the screen: a model's form, its widgets and the binding between them.
#pragma once

#include "core/games.h"
#include "ui/qt/binding/binding.h"

#include <QMainWindow>
#include <functional>
#include <optional>

namespace tallywick {

class Clock;
class PlayJudge;

/// What a window needs of the program.
struct Desk {
  HandlerRunner& runner;
  const DataFolder& folder;
  PlayJudge& judge;
  /// What closing a window by its frame does.
  std::function<void(Form&)> close = {};
  /// Lets the user edit the settings.
  std::function<void()> editSettings = {};
  /// Opens the help at a page of the manual.
  std::function<void(const QString& page)> help = {};
  /// Runs what a press of this control leads to; empty for its click alone.
  std::function<void(Control&)> press = {};
  /// What is known about the draws after an update; empty where the update button is in its place.
  std::function<std::string()> updateNote = {};
  /// Updates once more after an update.
  std::function<void()> updateAgain = {};
  /// Lets the user back the record book up, and restore it.
  std::function<void()> backUp = {};
  /// What a play costs by the settings, in cents.
  std::function<std::optional<std::int64_t>(Game)> priceOf = {};
  /// The committed plays of a game are others now: what the main window shows of them is to be read again.
  std::function<void(const GameInfo&)> playsSaved = {};
  /// Whether the settings have what a press of this control needs.
  std::function<bool(const Control&)> isSet = {};
  /// Whether the draws on show are made up.
  std::function<bool()> showsMadeUpDraws = {};
  /// Lets the user begin a record book with real draws in another folder.
  std::function<void()> startRealBook = {};
  /// Shows the draws of both games and lets the user bring more.
  std::function<void()> editDraws = {};
  /// For which draws there are Double Play numbers; empty where for all.
  std::function<std::string()> doublePlayNote = {};
  /// That the newest draw of the game on show is long past; empty where it is not.
  std::function<std::string()> drawsAge = {};
  /// Shows the Double Play display, or PowerBall's own, without the question.
  std::function<void(bool isShown)> showDoublePlay = {};
  /// The program's clock; null where the time plays no part.
  const Clock* clock = nullptr;
};

class TransferPanel;

class FormWindow : public QMainWindow {
 public:
  FormWindow(Form& form, const Desk& desk);

  Form& form() { return form_; }
  Binding& binding() { return binding_; }
  const Desk& desk() const { return desk_; }

  /// The page of the manual about what is in front.
  virtual QString helpPage() const = 0;
  /// Keeps sizes for the next time; called before the window goes.
  virtual void keepLayout() {}
  /// Makes what the window has left for later.
  virtual void finish() {}
  /// Whether the window may go; asks the user where something would be lost with it.
  virtual bool mayClose() { return true; }
  /// Where a transfer shows how far it is and can be cancelled; null where this window has no such place.
  virtual TransferPanel* transferPanel() const { return nullptr; }

 protected:
  /// F1 opens the help at helpPage().
  void answerHelpKey();
  void closeEvent(QCloseEvent* event) override;

 private:
  Form& form_;
  Desk desk_;
  Binding binding_;
};

}  // namespace tallywick
