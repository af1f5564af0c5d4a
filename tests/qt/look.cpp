// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/look.h"

#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/theme.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTextEdit>
#include <gtest/gtest.h>
#include <map>
#include <typeinfo>

namespace tallywick::test {
namespace {

std::set<std::string> seen;

/// The property of a widget whose mark of the keyboard was looked at.
constexpr const char* tabbed = "tabbed";
/// The contrast of a mark that can be seen.
constexpr double leastChange = 1.5;

/// The frame that a desktop puts around a window.
constexpr QMargins frame = {8, 31, 8, 8};

std::string nameOf(const QWidget& widget) {
  const QString texts[] = {widget.property("text").toString(), widget.accessibleName(), widget.objectName()};
  std::string name = widget.metaObject()->className();
  for (const QString& text : texts) {
    if (!text.isEmpty()) return name + " \"" + text.toStdString() + '"';
  }
  return name;
}

QRect inWindow(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

/// What of the widget can be seen, in its window's coordinates.
QRect seenPart(const QWidget& widget) {
  QRect part = inWindow(widget);
  for (const QWidget* around = &widget; !around->isWindow(); around = around->parentWidget())
    part &= inWindow(*around->parentWidget());
  return part;
}

template <typename... Kinds>
bool isOneOf(const QWidget* widget) {
  return (... || (qobject_cast<const Kinds*>(widget) != nullptr));
}

/// Widgets that show something of their own, and no other one within.
bool isLeaf(const QWidget* widget) {
  const auto* label = qobject_cast<const QLabel*>(widget);
  if (label != nullptr) return !label->text().isEmpty() || !label->pixmap().isNull();
  return isOneOf<QAbstractButton, QLineEdit, QComboBox, QAbstractItemView, QTabBar, QProgressBar, QTextEdit>(
      widget);
}

/// The toolkit's own widgets within a leaf.
bool isInner(const QWidget* widget, const QWidget& window) {
  if (widget->window() != &window) return true;
  for (const QWidget* around = widget->parentWidget(); around != &window; around = around->parentWidget()) {
    if (isLeaf(around)) return true;
  }
  return false;
}

std::vector<QWidget*> leavesOf(const QWidget& window) {
  std::vector<QWidget*> leaves;
  for (auto* widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && isLeaf(widget) && !isInner(widget, window)) leaves.push_back(widget);
  }
  return leaves;
}

void expectOnScreen(const QWidget& window) {
  const QRect screen = window.screen()->availableGeometry();
  const QSize whole = window.size().grownBy(window.windowType() == Qt::SplashScreen ? QMargins() : frame);
  EXPECT_TRUE(whole.width() <= screen.width() && whole.height() <= screen.height())
      << "larger than the screen with its frame: " << whole.width() << 'x' << whole.height();
  EXPECT_TRUE(window.minimumSizeHint().boundedTo(window.size()) == window.minimumSizeHint())
      << "smaller than its parts: " << window.minimumSizeHint().width() << 'x'
      << window.minimumSizeHint().height();
  // The toolkit centres dialogs by the frames that it has met.
  if (isOneOf<QDialog>(&window)) return;
  const QRect around(window.pos(), whole);
  EXPECT_TRUE(screen.contains(around)) << "beyond the edge of the screen: " << around.x() << ',' << around.y()
                                       << " to " << around.right() << ',' << around.bottom();
}

/// Pages may be higher than the window, and never wider.
void expectNoSidewaysScrolling(const QWidget& window) {
  for (const auto* area : window.findChildren<QScrollArea*>()) {
    EXPECT_TRUE(!area->isVisible() || area->horizontalScrollBar()->maximum() == 0)
        << "wider than the window by " << area->horizontalScrollBar()->maximum();
  }
}

/// Each text with a mnemonic leads there alone.
void expectOwnMnemonics(const QWidget& window) {
  std::map<QString, QStringList> found;
  const auto add = [&](const QString& text) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (!key.isEmpty()) found[key.toString()] += text;
  };
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible()) add(button->text());
  }
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() != nullptr) add(label->text());
  }
  for (const auto* tabs : window.findChildren<QTabBar*>()) {
    for (int i = 0; tabs->isVisible() && i < tabs->count(); ++i) add(tabs->tabText(i));
  }
  for (const auto* bar : window.findChildren<QMenuBar*>()) {
    for (const QAction* action : bar->actions()) add(action->text());
  }
  for (const auto& [key, texts] : found)
    EXPECT_EQ(texts.size(), 1) << key.toStdString() << ": "
                               << texts.join(QStringLiteral(" | ")).toStdString();
  for (const QMenu* menu : window.findChildren<QMenu*>()) {
    std::map<QString, int> keys;
    for (const QAction* entry : menu->actions()) {
      if (!entry->isSeparator()) ++keys[QKeySequence::mnemonic(entry->text()).toString()];
    }
    for (const auto& [key, count] : keys)
      EXPECT_TRUE(count == 1 && !key.isEmpty()) << menu->title().toStdString() << key.toStdString();
  }
}

void expectRoom(const std::string& what, QSize needed, QSize room) {
  EXPECT_TRUE(needed.width() <= room.width() && needed.height() <= room.height())
      << "cut: " << what << " needs " << needed.width() << 'x' << needed.height() << " of " << room.width()
      << 'x' << room.height();
}

QSize sizeOf(const QString& text, const QWidget& widget) {
  return widget.fontMetrics().boundingRect(QRect(), 0, QString(text).remove(u'&')).size();
}

void expectWholeText(const QWidget& widget) {
  const QSize room = widget.contentsRect().size();
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->text().isEmpty() || Qt::mightBeRichText(label->text())) return;
    const int flags = label->wordWrap() ? Qt::TextWordWrap : 0;
    const QString text = label->buddy() != nullptr ? label->text().remove(u'&') : label->text();
    expectRoom(nameOf(widget), label->fontMetrics().boundingRect(label->contentsRect(), flags, text).size(),
               room);
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    if (qobject_cast<const BallButton*>(button) == nullptr)
      expectRoom(nameOf(widget), sizeOf(button->text(), widget), room);
  } else if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) {
    QStyleOptionComboBox option;
    option.initFrom(choice);
    option.editable = choice->isEditable();
    const QRect field =
        choice->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, choice);
    expectRoom(nameOf(widget), sizeOf(choice->currentText(), widget), field.size());
  } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
    if (edit->text().isEmpty())
      expectRoom("hint " + edit->placeholderText().toStdString(), sizeOf(edit->placeholderText(), widget),
                 room);
  } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
    for (int i = 0; i < tabs->count(); ++i)
      expectRoom(tabs->tabText(i).toStdString(), sizeOf(tabs->tabText(i), widget), tabs->tabRect(i).size());
  }
}

/// Beyond its surroundings there is only what can be scrolled there.
void expectInside(const QWidget& widget) {
  const QRect whole = inWindow(widget);
  EXPECT_FALSE(whole.isEmpty()) << nameOf(widget) << " has no size";
  for (const QWidget* around = &widget; !around->isWindow();) {
    around = around->parentWidget();
    if (isOneOf<QAbstractScrollArea>(around->parentWidget())) return;
    if (inWindow(*around).contains(whole)) continue;
    ADD_FAILURE() << nameOf(widget) << " is cut by the edge of " << nameOf(*around);
    return;
  }
}

void expectNoOverlap(const std::vector<QWidget*>& leaves) {
  for (std::size_t i = 0; i < leaves.size(); ++i) {
    const QRect one = seenPart(*leaves[i]);
    for (std::size_t k = i + 1; k < leaves.size(); ++k) {
      const QRect both = one & seenPart(*leaves[k]);
      EXPECT_TRUE(both.isEmpty()) << nameOf(*leaves[i]) << " and " << nameOf(*leaves[k]) << " overlap";
    }
  }
}

void expectContrast(const QWidget& widget) {
  const QWidget* ground = &widget;
  while (!ground->isWindow() && !ground->autoFillBackground() &&
         !isOneOf<QAbstractButton, QLineEdit, QComboBox>(ground))
    ground = ground->parentWidget();
  const QColor text = widget.palette().color(widget.foregroundRole());
  const QColor under = ground->palette().color(ground->backgroundRole());
  EXPECT_GE(theme::contrast(text, under), theme::textContrast)
      << nameOf(widget) << ": " << text.name().toStdString() << " on " << under.name().toStdString();
}

/// A window as it is painted.
class Painted {
 public:
  explicit Painted(QWidget& window) : image_(window.grab().toImage()), scale_(image_.devicePixelRatio()) {}

  /// The strongest contrast in a part of the window with what most of it is.
  double ofInk(const QRect& area) const {
    const QHash<QRgb, int> counts = colorsIn(area);
    const auto ground = std::max_element(counts.cbegin(), counts.cend());
    double strongest = 1;
    for (const QRgb color : counts.keys())
      strongest = std::max(strongest, theme::contrast(QColor(color), QColor(ground.key())));
    return strongest;
  }

  /// Of the lightest and the darkest colour.
  double ofRange(const QRect& area) const {
    double strongest = 1;
    for (const QRgb one : colorsIn(area).keys())
      for (const QRgb other : colorsIn(area).keys())
        strongest = std::max(strongest, theme::contrast(QColor(one), QColor(other)));
    return strongest;
  }

  /// The weakest of the strongest contrasts on the ways over the middles of the sides that are in sight.
  double ofEdge(const QRect& area, const QRect& sight) const {
    const QPoint middle = area.center();
    double weakest = theme::contrast(Qt::black, Qt::white);
    for (const QRect& way :
         {QRect(area.left() - 2, middle.y(), 6, 1), QRect(area.right() - 3, middle.y(), 6, 1),
          QRect(middle.x(), area.top() - 2, 1, 6), QRect(middle.x(), area.bottom() - 3, 1, 6)}) {
      if (sight.contains(way)) weakest = std::min(weakest, ofRange(way));
    }
    return weakest;
  }

 private:
  QHash<QRgb, int> colorsIn(const QRect& area) const {
    const QRectF part(QPointF(area.topLeft()) * scale_, QSizeF(area.size()) * scale_);
    const QRect pixels = part.toRect() & image_.rect();
    QHash<QRgb, int> counts;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
      for (int x = pixels.left(); x <= pixels.right(); ++x) ++counts[image_.pixel(x, y)];
    return counts;
  }

  QImage image_;
  double scale_;
};

/// `area` of a widget, where all of it is in sight.
void expectInk(const Painted& painted, const QWidget& widget, const QRect& area, const QString& what) {
  const QRect part = area.translated(inWindow(widget).topLeft());
  if (what.trimmed().isEmpty() || area.isEmpty() || !seenPart(widget).contains(part)) return;
  EXPECT_GE(painted.ofInk(part), theme::textContrast) << nameOf(widget) << ": " << what.toStdString();
}

void expectEdge(const Painted& painted, const QWidget& widget, const QRect& area) {
  QRect sight = widget.window()->rect();
  for (const QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget())
    sight &= inWindow(*around);
  EXPECT_GE(painted.ofEdge(area.translated(inWindow(widget).topLeft()), sight), theme::shapeContrast)
      << nameOf(widget) << " has no outline";
}

/// Something stands out on the way, where all of it is in sight.
void expectWay(const Painted& painted, const QWidget& widget, const QRect& way) {
  const QRect part = way.translated(inWindow(widget).topLeft());
  EXPECT_TRUE(!seenPart(widget).contains(part) || painted.ofRange(part) >= theme::shapeContrast)
      << nameOf(widget);
}

void expectPaintedCells(const Painted& painted, const QAbstractItemView& view) {
  const auto* list = dynamic_cast<const LineList*>(&view);
  const bool hasColumns = list != nullptr && list->header() != nullptr;
  for (const auto* header : view.findChildren<QHeaderView*>()) {
    for (int i = 0; header->isVisible() && i < header->count(); ++i)
      expectInk(painted, *header->viewport(),
                {header->sectionViewportPosition(i), 0, header->sectionSize(i), header->height()},
                header->model()->headerData(i, header->orientation()).toString());
  }
  for (int row = 0; view.model() != nullptr && row < view.model()->rowCount(); ++row) {
    for (int column = 0; column < view.model()->columnCount(); ++column) {
      const QModelIndex cell = view.model()->index(row, column);
      const QRect area = view.visualRect(cell);
      if (area.top() > view.viewport()->height()) return;
      expectInk(painted, *view.viewport(), area, cell.data().toString());
      // The picture of a chart's colour.
      if (!cell.data(Qt::DecorationRole).isNull())
        expectWay(painted, *view.viewport(), QRect(area.left(), area.center().y(), 2 * theme::gap, 1));
    }
    for (std::size_t i = 0; hasColumns && i < list->columns().size(); ++i) {
      const QModelIndex line = view.model()->index(row, 0);
      const auto cells = cellsOf(list->columns(), line.data().toString().toStdString(), "matched");
      if (cells && list->columns()[i].field <= LineField::extra)
        expectInk(painted, *view.viewport(), list->header()->cell(static_cast<int>(i), view.visualRect(line)),
                  QStringLiteral("a cell"));
    }
  }
}

/// What the program or its style paints by hand.
void expectPainted(const Painted& painted, const QWidget& leaf) {
  const QRect area = leaf.rect();
  const auto* button = qobject_cast<const QAbstractButton*>(&leaf);
  if (const auto* view = qobject_cast<const QAbstractItemView*>(&leaf)) expectPaintedCells(painted, *view);
  if (const auto* label = qobject_cast<const QLabel*>(&leaf)) {
    if (Qt::mightBeRichText(label->text())) expectInk(painted, leaf, area, label->text());
    return;
  }
  if (!leaf.isEnabled()) {
    const QPalette& colors = leaf.palette();
    EXPECT_GE(theme::contrast(colors.color(QPalette::Active, leaf.foregroundRole()),
                              colors.color(QPalette::Disabled, leaf.foregroundRole())),
              theme::changeContrast)
        << nameOf(leaf) << " looks as if it could be used";
  } else if (qobject_cast<const BallButton*>(button) != nullptr) {
    const int side = std::min(area.width(), area.height());
    const QRect ball((area.width() - side) / 2 + 3, (area.height() - side) / 2 + 3, side - 7, side - 7);
    expectEdge(painted, leaf, ball);
    expectInk(painted, leaf, ball.adjusted(side / 4, side / 4, -side / 4, -side / 4), button->text());
  } else if (qobject_cast<const QRadioButton*>(button) != nullptr) {
    QStyleOptionButton option;
    option.initFrom(button);
    expectEdge(painted, leaf, leaf.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, &leaf));
  } else if (isOneOf<QAbstractSpinBox>(leaf.parentWidget())) {
    expectEdge(painted, *leaf.parentWidget(), leaf.parentWidget()->rect());
  } else if (isOneOf<QPushButton, QLineEdit, QComboBox, QAbstractItemView, QTextEdit>(&leaf)) {
    expectEdge(painted, leaf, area);
  }
}

bool takesTab(const QWidget& widget) {
  return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
}

/// What is read aloud: what can be reached has a name, and what cannot be seen is not there.
void expectSpoken(QWidget& window) {
  for (auto* widget : window.findChildren<QWidget*>()) {
    if (isInner(widget, window) || !takesTab(*widget)) continue;
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    EXPECT_FALSE(spoken != nullptr && spoken->text(QAccessible::Name).isEmpty())
        << "no name: " << nameOf(*widget);
  }
}

/// How many pixels say where the keyboard is: their colour changes so that it can be seen.
int changedPixels(const QImage& before, const QImage& after) {
  int changed = 0;
  for (int y = 0; y < before.height(); ++y) {
    for (int x = 0; x < before.width(); ++x) {
      if (before.pixel(x, y) == after.pixel(x, y)) continue;
      if (theme::contrast(before.pixelColor(x, y), after.pixelColor(x, y)) >= leastChange) ++changed;
    }
  }
  return changed;
}

/// What the Tab key reaches does something and shows that it has the keyboard.
void expectVisibleFocus(QWidget& window) {
  QApplication::setActiveWindow(&window);
  // As a press of the Tab key does.
  window.setAttribute(Qt::WA_KeyboardFocusChange);
  for (auto* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || !widget->isEnabled() || isInner(widget, window) || !takesTab(*widget))
      continue;
    if (widget->property(tabbed).toBool()) continue;
    widget->setProperty(tabbed, true);
    EXPECT_TRUE(isLeaf(widget) || isOneOf<QAbstractSpinBox>(widget) || !widget->actions().isEmpty())
        << "no use for the keyboard: " << nameOf(*widget);
    if (QWidget* other = QApplication::focusWidget()) other->clearFocus();
    // The toolkit marks the button that the Enter key presses as it does the one with the keyboard.
    const auto* button = qobject_cast<QPushButton*>(widget);
    if (button != nullptr && button->isDefault() && !button->isFlat()) continue;
    const QImage before = widget->grab().toImage();
    widget->setFocus(Qt::TabFocusReason);
    EXPECT_GE(changedPixels(before, widget->grab().toImage()), widget->height())
        << "has the keyboard and does not show it: " << nameOf(*widget);
  }
}

}  // namespace

QPalette lightPalette() {
  return {QColor(239, 239, 239)};
}

QPalette darkPalette() {
  QPalette colors(QColor(53, 53, 53), QColor(35, 35, 35));
  colors.setColor(QPalette::Highlight, QColor(48, 140, 198));
  colors.setColor(QPalette::Link, QColor(48, 140, 198));
  return colors;
}

QPalette highContrastPalette() {
  QPalette colors(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white, Qt::black,
                  Qt::black);
  colors.setColor(QPalette::Highlight, Qt::yellow);
  colors.setColor(QPalette::HighlightedText, Qt::black);
  colors.setColor(QPalette::Link, Qt::yellow);
  colors.setColor(QPalette::PlaceholderText, Qt::white);
  return colors;
}

void look(QWidget& window) {
  seen.insert(typeid(window).name());
  static int pictures = 0;
  const QString folder = qEnvironmentVariable("TALLYWICK_TEST_PICTURES");
  if (!folder.isEmpty())
    window.grab().save(QStringLiteral("%1/%2.png").arg(folder).arg(++pictures, 3, 10, QLatin1Char('0')));
  SCOPED_TRACE(window.windowTitle().toStdString());
  expectOnScreen(window);
  expectNoSidewaysScrolling(window);
  expectOwnMnemonics(window);
  expectSpoken(window);
  const std::vector<QWidget*> leaves = leavesOf(window);
  expectNoOverlap(leaves);
  const Painted painted(window);
  for (const QWidget* leaf : leaves) {
    expectPainted(painted, *leaf);
    expectInside(*leaf);
    expectWholeText(*leaf);
    if (leaf->isEnabled() && !isOneOf<BallButton>(leaf)) expectContrast(*leaf);
  }
}

void lookAndTab(QWidget& window) {
  look(window);
  expectVisibleFocus(window);
}

const std::set<std::string>& seenWindows() {
  return seen;
}

}  // namespace tallywick::test
