// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/selection_window.h"

#include "core/text.h"
#include "core/words.h"
#include "selection/play_lists.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/hint_panel.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/layout_memory.h"
#include "ui/qt/windows/selection_questions.h"
#include "ui/qt/windows/slip.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize = {960, 760};

HintPanel::Kind kindOf(MarksHint::Kind kind) {
  if (kind == MarksHint::Kind::ready) return HintPanel::Kind::ready;
  return kind == MarksHint::Kind::warning ? HintPanel::Kind::warning : HintPanel::Kind::advice;
}

}  // namespace

SelectionWindow::SelectionWindow(SelectionForm& form, const Desk& desk)
    : FormWindow(form, desk), selection_(form), removedPlays_(form) {
  sides_ = new Sides(u"sides"_s, Sides::Room::least);
  sides_->addWidget(slipSide());
  sides_->addWidget(listSide());
  sides_->setStretchFactor(1, 1);
  sides_->setHandleWidth(theme::pageMargin);
  auto* scrolling = new QWidget;
  columnIn(scrolling, theme::gap)->addWidget(sides_);
  auto* content = new QWidget;
  auto* column = columnIn(content);
  column->addWidget(scrolled(scrolling), 1);
  column->addLayout(hintPlace_ = new QVBoxLayout);
  hintPlace_->setContentsMargins(theme::gap, 0, theme::gap, 0);
  column->addLayout(actions_ = actions());
  setCentralWidget(content);
  QWidget* before = slip_->findChildren<QWidget*>().back();
  for (auto* button : content->findChildren<QPushButton*>(Qt::FindDirectChildrenOnly)) {
    setTabOrder(before, button);
    before = button;
  }
  addStatus();
  answerHelpKey();
  surroundActions();
  binding().afterChanges = [this] { showState(); };
  showState();
  restoreLayout(*this, usualSize);
  slip_->setFocus();
}

void SelectionWindow::markFrom(LineList& list, const TextLines& items) {
  const auto mark = [this, &items](const QModelIndex& index) {
    const auto line = static_cast<std::size_t>(index.row());
    if (!index.isValid() || binding().isReleased() || line >= items.size()) return;
    desk().runner.run([this, &items, line] {
      std::string left;
      if (removed_.watch(selection_, [&] { left = markLine(selection_, items[line]); }))
        undo_.push_back(Undo::marks);
      note(toQString(left));
    });
  };
  connect(&list, &QAbstractItemView::doubleClicked, this, mark);
  auto* action = new QAction(u"&Mark These Numbers"_s, &list);
  action->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
  action->setShortcutContext(Qt::WidgetShortcut);
  connect(action, &QAction::triggered, &list, [&list, mark] { mark(list.currentIndex()); });
  list.addAction(action);
}

void SelectionWindow::showStatusLabels() {
  const std::vector<std::string>& panels = selection_.StatusBar1.panels();
  for (std::size_t i = 0; i < panels.size(); ++i) {
    // After Done the first panel names itself.
    const bool named = i == 0 ? panels[i].starts_with(':') : !panels[i].empty();
    statusLabels_[i]->setVisible(named);
  }
}

void SelectionWindow::surroundActions() {
  const auto watch = [this](Button& button, const std::function<QString(bool tookOff)>& says) {
    button.onClick = [this, says, act = button.onClick] {
      const bool tookOff = removed_.watch(selection_, act);
      if (tookOff) undo_.push_back(Undo::marks);
      note(says(tookOff));
    };
  };
  const auto bringsBack = [](const QString& name) {
    return [name](bool tookOff) {
      return tookOff ? u"%1 took marks off; Ctrl+Z brings them back."_s.arg(name) : QString();
    };
  };
  watch(selection_.Command59, bringsBack(u"Select"_s));
  watch(selection_.Command84, bringsBack(u"Clear"_s));
  watch(selection_.Command9, [](bool) { return QString(); });
  watch(selection_.Command60, [this](bool) {
    replayed_ = selection_.Combo7.text();
    return toQString(replayHint(selection_));
  });
  selection_.Command59.onClick = [this, select = selection_.Command59.onClick] {
    if (confirmReplayed(selection_, replayed_)) select();
  };
  selection_.Command1.onClick = [this, draw = selection_.Command1.onClick] {
    const int before = drawCountOf(selection_.Label1.caption());
    draw();
    note(toQString(countLostHint(selection_, before)));
  };
  selection_.Command5.onClick = [this, done = selection_.Command5.onClick] {
    if (!confirmDone(selection_, this)) return;
    done();
    if (!selection_.Command5.enabled()) afterDone();
  };
}

void SelectionWindow::afterDone() {
  saved_ = true;
  undo_.clear();
  desk().runner.attempt([this] {
    note(toQString(committedHint(selection_)));
    showNextPlays(selection_);
    showCommittedElsewhere();
  });
}

void SelectionWindow::showCommittedElsewhere() {
  if (desk().playsSaved) desk().playsSaved(selection_.game);
}

void SelectionWindow::removeFrom(const LineList& list, Remove act) {
  if (binding().isReleased()) return;
  const QModelIndex chosen = list.currentIndex();
  desk().runner.run([this, chosen, act] {
    if (!chosen.isValid()) return note(u"Choose a play in the list first, then Remove."_s);
    desk().runner.attempt([this, line = static_cast<std::size_t>(chosen.row()), act] {
      const std::string done = (removedPlays_.*act)(line);
      undo_.push_back(Undo::play);
      note(u"%1. Ctrl+Z brings it back."_s.arg(toQString(done)));
      showCommittedElsewhere();
    });
  });
}

void SelectionWindow::bringBack() {
  if (binding().isReleased() || !bringBack_->isEnabled()) return;
  desk().runner.run([this] {
    note({});
    const Undo last = undo_.back();
    undo_.pop_back();
    if (last == Undo::marks) {
      removed_.bringBack(selection_);
      return;
    }
    desk().runner.attempt([this] {
      if (removedPlays_.bringBack()) showCommittedElsewhere();
    });
  });
}

void SelectionWindow::note(const QString& text) {
  note_ = text;
  notedMarks_ = marksHint(selection_).marks;
}

void SelectionWindow::showState() {
  const MarksHint hint = marksHint(selection_);
  if (!saved_ && hint.marks != notedMarks_) note_.clear();
  const bool open = selection_.Command84.enabled();
  if (saved_) {
    hint_->show(HintPanel::Kind::ready, note_, u"Open the play selection again to select more plays."_s);
  } else if (!note_.isEmpty()) {
    const QString marks = toQString(hint.marks);
    hint_->show(HintPanel::Kind::warning, marks,
                note_ + (marks.isEmpty() ? u""_s : u"\n"_s + toQString(hint.text)));
  } else {
    hint_->show(kindOf(hint.kind), toQString(hint.marks), toQString(hint.text));
  }
  waitingSelect_->setVisible(!selection_.Command59.visible());
  bringBack_->setEnabled(!undo_.empty());
  const bool isPlay = !undo_.empty() && undo_.back() == Undo::play;
  bringBack_->setText(isPlay ? u"Bring Play Bac&k"_s : u"Bring Marks Bac&k"_s);
  removeCurrent_->setEnabled(open && !selection_.Combo1.items().empty());
  removeNext_->setEnabled(!selection_.Combo8.items().empty());
  const QString draws = toQString(sentence(drawCountHint(selection_)));
  drawCount_->setText(draws.isEmpty() && open ? u"Select a play first, then Draw."_s
                                              : draws + (draws.isEmpty() ? u""_s : u". "_s) +
                                                    toQString(countStepHint(selection_)));
  showStatusLabels();
}

bool SelectionWindow::mayClose() {
  return binding().isReleased() || settleUnsavedPlays(selection_, this);
}

QString SelectionWindow::helpPage() const {
  return u"plays.html"_s;
}

void SelectionWindow::keepLayout() {
  saveLayout(*this);
}

void SelectionWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
    close();
    return;
  }
  const int digit = event->key() - Qt::Key_0;
  if (event->modifiers() & ~Qt::KeypadModifier || digit < 0 || digit > 9) {
    FormWindow::keyPressEvent(event);
    return;
  }
  slip_->typeDigit(digit);
}

bool maySelectionsClose(const GameInfo* game) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* window = dynamic_cast<SelectionWindow*>(widget);
    if (window == nullptr || window->binding().isReleased()) continue;
    if ((game == nullptr || &window->game() == game) && !window->mayClose()) return false;
  }
  return true;
}

}  // namespace tallywick
