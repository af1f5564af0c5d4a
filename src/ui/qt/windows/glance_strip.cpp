// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/glance_strip.h"

#include "app/main_form.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/wording.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr double captionShare = 0.85;
constexpr double ballShare = 1.7;
/// Room for the focus frame.
constexpr int edge = theme::halfGap;
const QString blank = u"—"_s;

std::vector<LineBall> ballsOf(const Glance& glance, Game game) {
  std::vector<LineBall> balls;
  if (!glance.balls) return balls;
  for (const std::string& number : glance.balls->white) balls.push_back({.number = toQString(number)});
  balls.push_back({.number = toQString(glance.balls->extra), .kind = extraBallOf(game)});
  return balls;
}

QFrame* line(QWidget* parent) {
  auto* made = new QFrame(parent);
  made->setFrameShape(QFrame::VLine);
  made->setFrameShadow(QFrame::Sunken);
  return made;
}

}  // namespace

GlancePart::GlancePart(Look look, QWidget* parent) : QAbstractButton(parent), look_(look) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void GlancePart::showPart(const QString& caption, const Glance::Part& part, const QString& where,
                          std::vector<LineBall> balls) {
  const QString text = part.text.empty() ? blank : toQString(part.text);
  const QString tip = u"%1 %2"_s.arg(toQString(part.tip), where);
  // The strip is asked after every press, and most of them change nothing of it.
  if (caption == caption_ && text == text_ && tip == toolTip() && balls == balls_) return;
  caption_ = caption;
  text_ = text;
  balls_ = std::move(balls);
  QString numbers;
  for (const LineBall& ball : balls_)
    numbers += (&ball == &balls_.back() ? u" and "_s : u" "_s) + ball.number;
  setAccessibleName(u"%1: %2%3"_s.arg(caption_, part.text.empty() ? u"not known"_s : text_, numbers));
  setToolTip(tip);
  setAccessibleDescription(tip);
  updateGeometry();
  update();
}

QFont GlancePart::captionFont() const {
  QFont face = font();
  if (face.pointSizeF() > 0)
    face.setPointSizeF(face.pointSizeF() * captionShare);
  else
    face.setPixelSize(static_cast<int>(face.pixelSize() * captionShare));
  return face;
}

int GlancePart::textWidth() const {
  const QFontMetrics captions(captionFont());
  const QFontMetrics texts(theme::headingFont(font()));
  return std::max(captions.horizontalAdvance(caption_), texts.horizontalAdvance(text_));
}

int GlancePart::textHeight() const {
  return QFontMetrics(captionFont()).height() + QFontMetrics(theme::headingFont(font())).height();
}

int GlancePart::ballSide() const {
  return static_cast<int>(fontMetrics().height() * ballShare);
}

QSize GlancePart::sizeHint() const {
  const int count = static_cast<int>(balls_.size());
  const int balls = count == 0 ? 0 : theme::gap + count * (ballSide() + betweenLineBalls) + betweenLineBalls;
  return {textWidth() + balls + 2 * edge, std::max(textHeight(), ballSide()) + 2 * edge};
}

void GlancePart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor ground = palette().color(QPalette::Window);
  const QColor ink = palette().color(QPalette::WindowText);
  const QRect inner = rect().adjusted(edge, edge, -edge, -edge);
  const int captionHeight = QFontMetrics(captionFont()).height();
  const int top = inner.top() + (inner.height() - textHeight()) / 2;
  painter.setFont(captionFont());
  painter.setPen(theme::standingOutFrom(ground, theme::mixed(ink, ground, 0.3), theme::textContrast));
  painter.drawText(QRect(inner.left(), top, textWidth(), captionHeight), Qt::AlignLeft, caption_);
  QFont face = theme::headingFont(font());
  face.setUnderline(look_ == Look::link || underMouse());
  painter.setFont(face);
  painter.setPen(look_ == Look::plain
                     ? ink
                     : theme::standingOutFrom(ground, palette().color(QPalette::Link), theme::textContrast));
  painter.drawText(QRect(inner.left(), top + captionHeight, textWidth(), textHeight() - captionHeight),
                   Qt::AlignLeft, text_);
  int left = inner.left() + textWidth() + theme::gap;
  for (const LineBall& ball : balls_) {
    if (&ball == &balls_.back()) left += betweenLineBalls;
    const QRect area(left, inner.top() + (inner.height() - ballSide()) / 2, ballSide(), ballSide());
    paintLineBall(painter, area, ball, lineBallColors(ball.kind, ground, palette()));
    left += ballSide() + betweenLineBalls;
  }
  if (!hasFocus()) return;
  painter.setPen(
      QPen(theme::standingOutFrom(ground, palette().color(QPalette::Highlight), theme::shapeContrast), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void GlancePart::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else
    QAbstractButton::keyPressEvent(event);
}

GlanceStrip::GlanceStrip(MainForm& form, FormWindow& window)
    : QFrame(&window),
      form_(form),
      window_(window),
      newest_(new GlancePart(GlancePart::Look::plain, this)),
      missing_(new GlancePart(GlancePart::Look::link, this)),
      next_(new GlancePart(GlancePart::Look::plain, this)),
      waiting_(new GlancePart(GlancePart::Look::link, this)),
      wins_(new GlancePart(GlancePart::Look::link, this)) {
  setFrameShape(QFrame::StyledPanel);
  auto* parts = new Flow(this);
  parts->setContentsMargins(theme::halfGap, 0, theme::halfGap, 0);
  parts->addWidget(newest_);
  parts->addWidget(missing_);
  parts->addWidget(line(this));
  parts->addWidget(next_);
  parts->addWidget(waiting_);
  parts->addWidget(line(this));
  parts->addWidget(wins_);
  connect(newest_, &GlancePart::clicked, this, [this] { onNewest(); });
  connect(missing_, &GlancePart::clicked, this, [this] { onMissing(); });
  connect(next_, &GlancePart::clicked, this, [this] { onWaiting(); });
  connect(waiting_, &GlancePart::clicked, this, [this] { onWaiting(); });
  connect(wins_, &GlancePart::clicked, this, [this] { onWins(); });
  showGame();
}

void GlanceStrip::showGame() {
  const GameInfo* const game = gameOnShow(form_.frames);
  setVisible(game != nullptr);
  if (game == nullptr) return;
  const Glance glance = glanceAt(*game, window_.desk().folder, window_.desk().judge, window_.desk().clock);
  const QString name = toQString(game->name);
  newest_->showPart(u"Newest %1 draw"_s.arg(name), glance.newest, u"A press shows the summary."_s,
                    ballsOf(glance, game->game));
  const Desk& desk = window_.desk();
  const bool isMadeUp = desk.showsMadeUpDraws && desk.showsMadeUpDraws();
  missing_->setVisible(!glance.missing.text.empty() && !isMadeUp);
  missing_->showPart(u"Since then"_s, glance.missing, u"A press opens Draws…, which brings them."_s);
  const QString toWaiting = u"A press shows the plays that wait."_s;
  next_->showPart(u"Next draw"_s, glance.next, toWaiting);
  waiting_->showPart(u"Waiting for it"_s, glance.waiting, toWaiting);
  wins_->showPart(u"Drawn plays"_s, glance.wins, u"A press shows those that won."_s);
}

}  // namespace tallywick
