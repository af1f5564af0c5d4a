// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <cmath>
#include <utility>

namespace tallywick::theme {

namespace {

/// Black and white, or nearly so.
constexpr double highContrast = 20;

double linear(float part) {
  const double value = part;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The system's face of one width, and on Windows the one that its own programs prefer. Where neither is
/// installed, any such face that is.
QString listFamily() {
  QStringList wanted = {QFontDatabase::systemFont(QFontDatabase::FixedFont).family()};
#ifdef Q_OS_WIN
  wanted.prepend(QStringLiteral("Consolas"));
#endif
  for (const QString& family : wanted) {
    const QFontInfo found((QFont(family)));
    if (found.fixedPitch() && (found.family() == family || family == wanted.back())) return family;
  }
  for (const QString& family : QFontDatabase::families(QFontDatabase::Latin)) {
    if (QFontDatabase::isFixedPitch(family) && QFontDatabase::isSmoothlyScalable(family)) return family;
  }
  return wanted.back();
}

}  // namespace

void nameOtherFaces() {
#ifdef Q_OS_WIN
  QFont::insertSubstitutions(QApplication::font().family(),
                             {QStringLiteral("Segoe UI"), QStringLiteral("Tahoma"), QStringLiteral("Arial"),
                              QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans")});
#endif
}

QFont headingFont(const QFont& base) {
  QFont font = base;
  font.setBold(true);
  return font;
}

QFont listFont(const QFont& base) {
  static const QString family = listFamily();
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setFamily(family);
  if (base.pointSizeF() > 0)
    font.setPointSizeF(base.pointSizeF());
  else
    font.setPixelSize(base.pixelSize());
  return font;
}

double contrast(const QColor& one, const QColor& other) {
  const double first = luminance(one) + 0.05;
  const double second = luminance(other) + 0.05;
  return first > second ? first / second : second / first;
}

QColor readableOn(const QColor& ground) {
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  return contrast(black, ground) >= contrast(white, ground) ? black : white;
}

QColor mixed(const QColor& under, const QColor& over, double share) {
  const auto part = [share](float from, float to) {
    return static_cast<float>(from + (static_cast<double>(to) - from) * share);
  };
  return QColor::fromRgbF(part(under.redF(), over.redF()), part(under.greenF(), over.greenF()),
                          part(under.blueF(), over.blueF()));
}

QColor standingOutFrom(const QColor& ground, const QColor& wanted, double leastContrast) {
  constexpr int steps = 20;
  const QColor target = readableOn(ground);
  for (int step = 0; step < steps; ++step) {
    const QColor color = mixed(wanted, target, static_cast<double>(step) / steps);
    if (contrast(color, ground) >= leastContrast) return color;
  }
  return target;
}

namespace {

void makeHintsReadable(QPalette& colors) {
  const QColor ground = colors.color(QPalette::Base);
  QColor wanted = colors.color(QPalette::PlaceholderText);
  wanted = mixed(ground, QColor::fromRgb(wanted.rgb()), static_cast<double>(wanted.alphaF()));
  const QColor readable = standingOutFrom(ground, wanted, textContrast);
  if (colors.color(QPalette::PlaceholderText) != readable)
    colors.setColor(QPalette::PlaceholderText, readable);
}

/// The toolkit's own white on blue is not.
void makeSelectionReadable(QPalette& colors) {
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    const QColor text = colors.color(group, QPalette::HighlightedText);
    const QColor ground = colors.color(group, QPalette::Highlight);
    if (contrast(text, ground) < textContrast)
      colors.setColor(group, QPalette::Highlight, standingOutFrom(text, ground, textContrast));
  }
}

/// Some desktops of high contrast have one colour for both.
void tellDisabledApart(QPalette& colors) {
  for (const auto& [text, ground] :
       {std::pair(QPalette::WindowText, QPalette::Window), std::pair(QPalette::Text, QPalette::Base),
        std::pair(QPalette::ButtonText, QPalette::Button)}) {
    const QColor usual = colors.color(QPalette::Active, text);
    if (contrast(usual, colors.color(QPalette::Disabled, text)) >= changeContrast) continue;
    const QColor under = colors.color(QPalette::Disabled, ground);
    colors.setColor(QPalette::Disabled, text,
                    standingOutFrom(under, mixed(usual, under, 0.5), shapeContrast));
  }
}

}  // namespace

void makeReadable() {
  const QPalette now = QGuiApplication::palette();
  QPalette colors = now;
  makeHintsReadable(colors);
  makeSelectionReadable(colors);
  tellDisabledApart(colors);
  if (colors != now) QApplication::setPalette(colors);
}

QColor outlinedGround(const QPalette& palette) {
  constexpr int pageShare = 150;
  if (!isDark(palette)) return palette.color(QPalette::Window);
  return palette.color(QPalette::Button).lighter(pageShare);
}

QColor outline(const QPalette& palette, bool isEnabled) {
  const QColor ground = outlinedGround(palette);
  const QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
  // On a desktop of high contrast the lines have it too.
  const double share = contrast(ground, ink) > highContrast ? 0.7 : 0.4;
  return isEnabled ? standingOutFrom(ground, mixed(ground, ink, share), shapeContrast)
                   : mixed(ground, ink, share / 2);
}

bool isDark(const QPalette& palette) {
  return luminance(palette.color(QPalette::Window)) < luminance(palette.color(QPalette::WindowText));
}

QColor toQColor(Color color, const QPalette& palette) {
  switch (color.kind) {
    case Color::Kind::buttonFace:
      return palette.color(QPalette::Button);
    case Color::Kind::threeDLight:
      return palette.color(QPalette::Midlight);
    case Color::Kind::rgb:
      break;
  }
  return {color.red, color.green, color.blue};
}

}  // namespace tallywick::theme
