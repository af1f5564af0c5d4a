// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/made_up_strip.h"

#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/windows/form_window.h"

#include <QPainter>
#include <QPushButton>

namespace tallywick {

using namespace Qt::StringLiterals;

MadeUpStrip::MadeUpStrip(FormWindow& window) : window_(window) {
  setFrameShape(QFrame::StyledPanel);
  auto* text = new QLabel(
      u"<b>Sample draws.</b> They never took place; an update brings the real ones into this folder."_s);
  text->setWordWrap(true);
  QSizePolicy policy = text->sizePolicy();
  policy.setHeightForWidth(false);
  text->setSizePolicy(policy);
  auto* start = new QPushButton(u"Start a Real Record Book…"_s);
  start->setToolTip(u"Makes a record book with the real draws in a folder of your own"_s);
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(theme::gap, theme::halfGap, theme::halfGap, theme::halfGap);
  line->setSpacing(theme::gap);
  line->addWidget(text, 1);
  line->addWidget(start);
  connect(start, &QPushButton::clicked, &window_,
          [this] { window_.desk().runner.attempt([this] { window_.desk().startRealBook(); }); });
  showGame();
}

void MadeUpStrip::paintEvent(QPaintEvent* event) {
  const QColor amber(255, 190, 0);
  QPainter(this).fillRect(rect(), theme::mixed(palette().color(QPalette::Window), amber, 0.2));
  QFrame::paintEvent(event);
}

void MadeUpStrip::showGame() {
  setVisible(window_.desk().showsMadeUpDraws && window_.desk().showsMadeUpDraws());
}

}  // namespace tallywick
