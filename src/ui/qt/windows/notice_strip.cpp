// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/notice_strip.h"

#include "ui/qt/binding/form_window.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/layouts.h"

#include <QPainter>
#include <QPushButton>

namespace tallywick {

using namespace Qt::StringLiterals;

NoticeStrip::NoticeStrip(FormWindow& window, const QString& action, const QString& tip,
                         const std::function<void()>& act)
    : window_(window), text_(sentences(this)) {
  setFrameShape(QFrame::StyledPanel);
  text_->setTextFormat(Qt::RichText);
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(theme::gap, theme::halfGap, theme::halfGap, theme::halfGap);
  line->setSpacing(theme::gap);
  line->addWidget(text_, 1);
  addButton(action, tip, act);
  hide();
}

void NoticeStrip::addButton(const QString& action, const QString& tip, const std::function<void()>& act) {
  auto* button = new QPushButton(action);
  button->setToolTip(tip);
  layout()->addWidget(button);
  connect(button, &QPushButton::clicked, &window_, [this, act] { window_.desk().runner.attempt(act); });
}

void NoticeStrip::say(const QString& heading, const QString& text) {
  text_->setText(u"<b>%1</b> %2"_s.arg(heading.toHtmlEscaped(), text.toHtmlEscaped()));
  setVisible(!heading.isEmpty());
}

void NoticeStrip::paintEvent(QPaintEvent* event) {
  const QColor amber(255, 190, 0);
  QPainter(this).fillRect(rect(), theme::mixed(palette().color(QPalette::Window), amber, 0.2));
  QFrame::paintEvent(event);
}

NoticeStrip* madeUpStrip(FormWindow& window) {
  return new NoticeStrip(window, u"Start a Real Record Book…"_s,
                         u"Makes a record book with the real draws in a folder of your own"_s,
                         [&window] { window.desk().startRealBook(); });
}

NoticeStrip* ageStrip(FormWindow& window) {
  return new NoticeStrip(
      window, u"Bring Newer Draws…"_s,
      u"Fetches the draws that are missing, takes them from a file or lets you type them in"_s,
      [&window] { window.desk().editDraws(); });
}

}  // namespace tallywick
