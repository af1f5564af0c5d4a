// SPDX-License-Identifier: GPL-3.0-or-later
// The selection window of a game: the slip with its actions on the left, the lists of plays on the right.
// What it says beside the model is computed in selection/hints.h.
#pragma once

#include "selection/hints.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/windows/play_removal.h"

class QBoxLayout;
class QLayout;
class QPushButton;
class QToolButton;

namespace tallywick {

class Flow;
class HintPanel;
class Sides;
class LineList;
class Slip;

class SelectionWindow : public FormWindow {
 public:
  SelectionWindow(SelectionForm& form, const Desk& desk);

  QString helpPage() const override;
  void keepLayout() override;
  /// Asks where selected plays would be dropped.
  bool mayClose() override;

  const GameInfo& game() const { return selection_.game; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QWidget* slipSide();
  QWidget* listSide();
  QWidget* headedChoice(Label& label, char mnemonic, ComboBox& combo);
  using Remove = std::string (PlayRemoval::*)(std::size_t line);
  /// A list whose plays can be taken away.
  QWidget* removableChoice(Label& label, char mnemonic, ComboBox& combo, QToolButton* button, Remove act);
  QWidget* savedTexts();
  /// Always in sight, however far the rest is scrolled.
  QLayout* actions();
  /// Beside the slip, or over the actions where the slip scrolls, so that Select never surprises.
  void placeHint();
  void addDrawCount(QBoxLayout& column, QWidget* parent);
  void addBringBack(Flow& line, QWidget* parent);
  void addStatus();
  /// Lets a double click, and the Enter key, mark the play of a line.
  void markFrom(LineList& list, const TextLines& items);
  /// Lets the actions ask before and say afterwards what they did.
  void surroundActions();
  void afterDone();
  void removeFrom(const LineList& list, Remove act);
  /// The main window shows committed plays too.
  void showCommittedElsewhere();
  /// Undoes the last action that took marks or a play away.
  void bringBack();
  /// Says `text` over the sentence about the marks until these change.
  void note(const QString& text);
  void showState();
  void showStatusLabels();

  SelectionForm& selection_;
  Slip* slip_ = nullptr;
  HintPanel* hint_ = nullptr;
  Sides* sides_ = nullptr;
  QBoxLayout* slipColumn_ = nullptr;
  QBoxLayout* hintPlace_ = nullptr;
  QLayout* actions_ = nullptr;
  QPushButton* waitingSelect_ = nullptr;
  QPushButton* bringBack_ = nullptr;
  QToolButton* removeCurrent_ = nullptr;
  QToolButton* removeNext_ = nullptr;
  QLabel* drawCount_ = nullptr;
  std::vector<QLabel*> statusLabels_;
  RemovedMarks removed_;
  PlayRemoval removedPlays_;
  enum class Undo { marks, play };
  /// What can be brought back, the last one at the end.
  std::vector<Undo> undo_;
  QString note_;
  /// The marks to which the note belongs.
  std::string notedMarks_;
  /// What Replay has marked last.
  std::string replayed_;
  bool saved_ = false;
};

/// Whether the open selection windows, all or those of `game`, may go: each asks where plays would be
/// dropped.
bool maySelectionsClose(const GameInfo* game = nullptr);

}  // namespace tallywick
