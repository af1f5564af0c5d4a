// SPDX-License-Identifier: GPL-3.0-or-later
// A page of a tab strip that costs nothing until it is looked at.
#pragma once

#include "ui/qt/parts/layouts.h"

#include <QWidget>
#include <functional>
#include <utility>

namespace tallywick {

/// Makes its content when it is first shown, or when somebody asks for it.
class LaterPage : public QWidget {
 public:
  explicit LaterPage(std::function<QWidget*()> make) : make_(std::move(make)) { columnIn(this); }

  bool isMade() const { return !make_; }
  void make() {
    if (isMade()) return;
    QWidget* const content = std::exchange(make_, {})();
    layout()->addWidget(content);
    content->show();
    // As if the content were the page: the focus leaves both in the same way.
    setFocusProxy(content);
    if (onMade) onMade();
  }
  std::function<void()> onMade;

 protected:
  void showEvent(QShowEvent* event) override {
    make();
    QWidget::showEvent(event);
  }

 private:
  std::function<QWidget*()> make_;
};

}  // namespace tallywick
