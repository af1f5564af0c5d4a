// SPDX-License-Identifier: GPL-3.0-or-later
// A strip over the pages that says what the player should know of the files and draws on show, with buttons
// for what can be done.
#pragma once

#include <QFrame>
#include <functional>

class QLabel;

namespace tallywick {

class FormWindow;

class NoticeStrip : public QFrame {
 public:
  NoticeStrip(FormWindow& window, const QString& action, const QString& tip,
              const std::function<void()>& act);

  void addButton(const QString& action, const QString& tip, const std::function<void()>& act);

  /// `heading` is in bold. Without one the strip goes.
  void say(const QString& heading, const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  FormWindow& window_;
  QLabel* text_;
};

/// That the draws on show are made up, as long as they are.
NoticeStrip* madeUpStrip(FormWindow& window);
/// That the newest draw is long past.
NoticeStrip* ageStrip(FormWindow& window);

}  // namespace tallywick
