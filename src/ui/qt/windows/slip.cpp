// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/slip.h"

#include "selection/selection_form.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/layouts.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <algorithm>

namespace tallywick {

namespace {

constexpr int numbersInRow = 10;
constexpr qint64 typingMilliseconds = 1500;

}  // namespace

Slip::Slip(SelectionForm& form, Binding& binding) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(theme::halfGap / 2);
  for (int number = 1; number <= form.game.lastNumber; ++number) {
    auto* button = new BallButton(this);
    button->setFocusPolicy(Qt::ClickFocus);
    button->installEventFilter(this);
    grid->addWidget(button, number / numbersInRow, number % numbersInRow);
    binding.bind(form.button(number), *button);
    buttons_.push_back(button);
  }
  buttons_.front()->setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(buttons_.front());
}

void Slip::typeDigit(int digit) {
  const bool second = typed_ > 0 && sinceTyped_.isValid() && sinceTyped_.elapsed() < typingMilliseconds;
  const bool zeroFirst = typed_ == -1 && sinceTyped_.elapsed() < typingMilliseconds;
  const int number = second ? typed_ * numbersInRow + digit : digit;
  if ((second || zeroFirst) && contains(number)) {
    typed_ = 0;
    goTo(number);
    return;
  }
  typed_ = digit == 0 ? -1 : digit;
  sinceTyped_.start();
  if (contains(digit)) goTo(digit);
}

bool Slip::eventFilter(QObject* watched, QEvent* event) {
  const int number = numberOf(watched);
  if (number == 0) return false;
  if (event->type() == QEvent::FocusIn) {
    // The Tab key comes back to where the arrows left.
    for (BallButton* button : buttons_)
      button->setFocusPolicy(button == watched ? Qt::StrongFocus : Qt::ClickFocus);
    setFocusProxy(buttons_[static_cast<std::size_t>(number - 1)]);
  }
  if (event->type() == QEvent::KeyPress) {
    const int next = neighbour(number, static_cast<QKeyEvent*>(event)->key());
    if (next != 0) {
      goTo(next);
      return true;
    }
  }
  return false;
}

void Slip::goTo(int number) {
  buttons_[static_cast<std::size_t>(number - 1)]->setFocus(Qt::TabFocusReason);
}

int Slip::neighbour(int number, int key) const {
  int next = 0;
  if (key == Qt::Key_Left) next = number - 1;
  if (key == Qt::Key_Right) next = number + 1;
  if (key == Qt::Key_Up) next = number - numbersInRow;
  if (key == Qt::Key_Down) next = number + numbersInRow;
  return contains(next) ? next : 0;
}

int Slip::numberOf(const QObject* button) const {
  const auto found = std::find(buttons_.begin(), buttons_.end(), button);
  return found == buttons_.end() ? 0 : static_cast<int>(found - buttons_.begin()) + 1;
}

bool Slip::contains(int number) const {
  return number >= 1 && number <= static_cast<int>(buttons_.size());
}

}  // namespace tallywick
