// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/ball.h"

#include "ui/qt/parts/line_ball.h"
#include "ui/qt/parts/painted_once.h"
#include "ui/qt/parts/theme.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>

namespace tallywick {

namespace {

constexpr std::array frequentWords = {"second", "third", "fourth", "fifth", "sixth"};

// All measures of a ball as shares of its diameter.
constexpr double digitHeight = 0.44;
constexpr double ringDiameter = 0.84;
constexpr double ringWidth = 0.06;
constexpr double bandHeight = 0.54;
constexpr double dotDiameter = 0.075;
constexpr double dotLine = 0.79;
constexpr double focusRoom = 3.5;
constexpr double cornerRadius = 0.22;

QRectF centred(const QRectF& ball, double share) {
  const double side = ball.width() * share;
  return {ball.center().x() - side / 2, ball.center().y() - side / 2, side, side};
}

void paintBody(QPainter& painter, const QRectF& ball, const BallLook& look, const BallColors& colors) {
  painter.setRenderHint(QPainter::Antialiasing);
  const double outline = std::max(1.5, ball.width() * (look.hovered ? 0.07 : 0.045));
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.ground);
  painter.drawPath(ballShape(ball, look.isSquare));
  if (look.mark == BallMark::extra) {
    QPainterPath band;
    const double height = ball.height() * bandHeight;
    band.addRect(ball.left(), ball.center().y() - height / 2, ball.width(), height);
    painter.setBrush(colors.caps);
    painter.drawPath(ballShape(ball, look.isSquare).subtracted(band));
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colors.outline, outline));
  painter.drawPath(
      ballShape(ball.adjusted(outline / 2, outline / 2, -outline / 2, -outline / 2), look.isSquare));
  if (look.mark == BallMark::main) {
    painter.setPen(QPen(colors.text, std::max(1.5, ball.width() * ringWidth)));
    painter.drawPath(ballShape(centred(ball, ringDiameter), look.isSquare));
  }
}

void paintNumber(QPainter& painter, const QRectF& ball, const BallLook& look, const BallColors& colors) {
  QFont face = painter.font();
  face.setBold(true);
  face.setPixelSize(std::max(7, static_cast<int>(ball.width() * digitHeight)));
  painter.setFont(face);
  painter.setPen(colors.text);
  const double rise = look.dots > 0 ? ball.height() * 0.06 : 0;
  painter.drawText(ball.adjusted(-2, -rise, 2, -rise), Qt::AlignCenter, look.number);
}

void paintDots(QPainter& painter, const QRectF& ball, const BallLook& look, const BallColors& colors) {
  const double size = ball.width() * dotDiameter;
  const double step = size * 1.6;
  const double first = ball.center().x() - step * (look.dots - 1) / 2;
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.text);
  for (int dot = 0; dot < look.dots; ++dot)
    painter.drawEllipse(QPointF(first + step * dot, ball.top() + ball.height() * dotLine), size / 2,
                        size / 2);
}

void paintFocus(QPainter& painter, const QRectF& ball, const BallLook& look, const QPalette& palette) {
  const QColor ground = theme::outlinedGround(palette);
  const QColor ring =
      theme::standingOutFrom(ground, palette.color(QPalette::Highlight), theme::shapeContrast);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ring, 2));
  painter.drawPath(ballShape(ball.adjusted(-2.5, -2.5, 2.5, 2.5), look.isSquare));
}

}  // namespace

BallMark ballMarkOf(Color color) {
  if (color == colors::cyan) return BallMark::main;
  return color == colors::magenta ? BallMark::extra : BallMark::none;
}

int repeatOf(Color color) {
  const auto* const found = std::find(colors::recurring.begin(), colors::recurring.end(), color);
  return found == colors::recurring.end() ? 0 : static_cast<int>(found - colors::recurring.begin()) + 1;
}

QPainterPath ballShape(const QRectF& area, bool isSquare) {
  QPainterPath shape;
  if (isSquare)
    shape.addRoundedRect(area, area.width() * cornerRadius, area.width() * cornerRadius);
  else
    shape.addEllipse(area);
  return shape;
}

QColor unmarkedFill(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  return theme::isDark(palette) ? theme::mixed(palette.color(QPalette::Window), Qt::white, 0.12) : base;
}

BallColors ballColors(const BallLook& look, const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  QColor fill = look.fill.isValid() ? look.fill : unmarkedFill(palette);
  if (!look.enabled) fill = theme::mixed(fill, window, 0.6);
  if (look.pressed) fill = theme::mixed(fill, theme::readableOn(fill), 0.15);
  BallColors colors;
  colors.ground = fill;
  colors.text = theme::readableOn(fill);
  if (!look.enabled)
    colors.text = theme::standingOutFrom(fill, theme::mixed(colors.text, fill, 0.5), theme::shapeContrast);
  colors.caps = theme::standingOutFrom(fill, theme::mixed(fill, colors.text, 0.5), theme::shapeContrast);
  colors.outline = theme::standingOutFrom(
      theme::outlinedGround(palette),
      look.fill.isValid() ? theme::mixed(fill, window, 0.2) : theme::outline(palette), theme::shapeContrast);
  return colors;
}

void paintBall(QPainter& painter, const QRectF& area, const BallLook& look, const QPalette& palette) {
  const double diameter = std::min(area.width(), area.height()) - 2 * focusRoom;
  if (diameter <= 0) return;
  const QRectF ball(area.center().x() - diameter / 2, area.center().y() - diameter / 2, diameter, diameter);
  const BallColors colors = ballColors(look, palette);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const Looks looks = {'b',
                       static_cast<std::uint32_t>(look.mark),
                       (look.isSquare ? 1U : 0U) + (look.hovered ? 2U : 0U),
                       colors.ground.rgba(),
                       colors.caps.rgba(),
                       colors.outline.rgba(),
                       colors.text.rgba()};
  paintOnce(painter, ball, looks,
            [&](QPainter& to, const QRectF& place) { paintBody(to, place, look, colors); });
  if (look.dots > 0) paintDots(painter, ball, look, colors);
  paintNumber(painter, ball, look, colors);
  if (look.focused) paintFocus(painter, ball, look, palette);
  painter.restore();
}

BallButton::BallButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  updateAccessibleName();
}

void BallButton::setCaption(const QString& number) {
  if (text() == number) return;
  setText(number);
  refresh();
}

void BallButton::setColor(Color color) {
  color_ = color;
  mark_ = ballMarkOf(color);
  refresh();
}

void BallButton::setExtraBallOf(std::function<Game()> game) {
  gameOfExtra_ = std::move(game);
  refresh();
}

void BallButton::refresh() {
  updateAccessibleName();
  update();
}

void BallButton::updateAccessibleName() {
  QString name = text().trimmed().isEmpty() ? tr("No number") : text();
  const int repeat = repeatOf(color_);
  if (gameOfExtra_) name = tr("extra ball %1").arg(name);
  if (mark_ == BallMark::main)
    name = tr("%1, marked").arg(name);
  else if (mark_ == BallMark::extra)
    name = tr("%1, extra ball").arg(name);
  else if (repeat > 0)
    name = tr("%1, also in the %2 newest draw")
               .arg(name, QString::fromLatin1(frequentWords.at(static_cast<std::size_t>(repeat) - 1)));
  setAccessibleName(name);
}

QSize BallButton::sizeHint() const {
  const int side = std::max(40, fontMetrics().height() * 9 / 4);
  return {side, side};
}

QSize BallButton::minimumSizeHint() const {
  const int side = std::max(30, fontMetrics().height() * 7 / 4);
  return {side, side};
}

void BallButton::paintEvent(QPaintEvent*) {
  BallLook look;
  look.number = text();
  if (gameOfExtra_ && !text().trimmed().isEmpty()) {
    const LineBallKind kind = extraBallOf(gameOfExtra_());
    look.isSquare = kind == LineBallKind::squareGold;
    look.fill = fillOf(kind, palette());
  }
  if (color_.kind == Color::Kind::rgb) look.fill = theme::toQColor(color_, palette());
  look.mark = mark_;
  look.dots = repeatOf(color_);
  look.enabled = isEnabled();
  look.focused = hasFocus();
  look.hovered = isEnabled() && underMouse();
  look.pressed = isDown();
  QPainter painter(this);
  paintBall(painter, rect(), look, palette());
}

void BallButton::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) refresh();
}

}  // namespace tallywick
