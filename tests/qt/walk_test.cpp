// SPDX-License-Identifier: GPL-3.0-or-later
// A walk through every window and dialog on a small screen, in usual and large text, light and dark.
#include "app/main_form.h"
#include "qt/desk_fixture.h"
#include "support/record_book.h"
#include "ui/qt/dialogs/backup_dialog.h"
#include "ui/qt/dialogs/draws_dialog.h"
#include "ui/qt/dialogs/settings_dialog.h"
#include "ui/qt/dialogs/typed_draw_dialog.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/theme.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <map>

namespace tallywick::test {
namespace {

constexpr QSize smallScreen = {1024, 768};

struct Setting {
  const char* name;
  int points;
  bool dark;
};

std::string textOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text().toStdString();
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  return button != nullptr ? button->text().toStdString() : widget.objectName().toStdString();
}

/// The mnemonics of what can be seen in the window, each with its texts.
std::map<QString, QStringList> mnemonics(const QWidget& window) {
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
  for (const auto* tabs : window.findChildren<QTabWidget*>()) {
    for (int i = 0; tabs->isVisible() && i < tabs->count(); ++i) add(tabs->tabText(i));
  }
  for (const auto* bar : window.findChildren<QMenuBar*>()) {
    for (const QAction* action : bar->actions()) add(action->text());
  }
  return found;
}

void expectName(QWidget& widget, const QWidget& window) {
  const bool inner = qobject_cast<QComboBox*>(widget.parentWidget()) != nullptr || widget.window() != &window;
  if (inner || widget.focusProxy() != nullptr || !(widget.focusPolicy() & Qt::TabFocus)) return;
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  EXPECT_FALSE(spoken != nullptr && spoken->text(QAccessible::Name).isEmpty())
      << "no name: " << widget.metaObject()->className() << ' ' << widget.objectName().toStdString();
}

void expectWholeText(const QWidget& widget) {
  const auto* label = qobject_cast<const QLabel*>(&widget);
  const QString text = QString::fromStdString(textOf(widget)).remove(u'&');
  const QRect room = widget.contentsRect();
  const int flags = label != nullptr && label->wordWrap() ? Qt::TextWordWrap : 0;
  const QSize needed = widget.fontMetrics().boundingRect(room, flags, text).size();
  EXPECT_TRUE(needed.width() <= room.width() && needed.height() <= room.height())
      << "cut: \"" << textOf(widget) << "\" needs " << needed.width() << 'x' << needed.height() << " of "
      << room.width() << 'x' << room.height();
}

void expectContrast(const QWidget& widget) {
  const QWidget* ground = &widget;
  while (!ground->isWindow() && !ground->autoFillBackground() &&
         qobject_cast<const QAbstractButton*>(ground) == nullptr)
    ground = ground->parentWidget();
  const QColor text = widget.palette().color(widget.foregroundRole());
  const QColor under = ground->palette().color(ground->backgroundRole());
  EXPECT_GE(theme::contrast(text, under), theme::textContrast)
      << textOf(widget) << ": " << text.name().toStdString() << " on " << under.name().toStdString();
}

class Walk : public Desktop, public testing::WithParamInterface<Setting> {
 protected:
  Walk() {
    QFont font = font_;
    font.setPointSize(GetParam().points);
    QApplication::setFont(font);
    if (!GetParam().dark) return;
    QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(35, 35, 35)));
  }
  ~Walk() override {
    QApplication::setFont(font_);
    QApplication::setPalette(palette_);
  }

  static void look(QWidget& window) {
    window.show();
    window.resize(smallScreen.boundedTo(window.size()));
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.width() <= smallScreen.width() && window.height() <= smallScreen.height())
        << "larger than the screen: " << window.width() << 'x' << window.height();
    for (const auto& [key, texts] : mnemonics(window))
      EXPECT_EQ(texts.size(), 1) << key.toStdString() << ": "
                                 << texts.join(QStringLiteral(" | ")).toStdString();
    for (auto* widget : window.findChildren<QWidget*>()) {
      expectName(*widget, window);
      const auto* label = qobject_cast<QLabel*>(widget);
      const bool isPlain = label != nullptr && !Qt::mightBeRichText(label->text());
      const bool isButton =
          qobject_cast<QAbstractButton*>(widget) != nullptr && qobject_cast<BallButton*>(widget) == nullptr;
      if (!widget->isVisible() || !(isPlain || isButton) || textOf(*widget).empty()) continue;
      expectWholeText(*widget);
      if (widget->isEnabled()) expectContrast(*widget);
    }
  }

 private:
  const QFont font_ = QApplication::font();
  const QPalette palette_ = QApplication::palette();
};

INSTANTIATE_TEST_SUITE_P(Settings, Walk,
                         testing::Values(Setting{"UsualLight", 10, false}, Setting{"UsualDark", 10, true},
                                         Setting{"LargeLight", 24, false}, Setting{"LargeDark", 24, true}),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_P(Walk, EveryPageOfTheMainWindow) {
  writeRecordBook(scratch);
  FormWindow& main = open("Form1");
  for (const QMenu* menu : main.menuBar()->findChildren<QMenu*>()) {
    std::map<QString, int> keys;
    for (const QAction* entry : menu->actions()) {
      if (!entry->isSeparator()) ++keys[QKeySequence::mnemonic(entry->text()).toString()];
    }
    for (const auto& [key, count] : keys)
      EXPECT_TRUE(count == 1 && !key.isEmpty()) << menu->title().toStdString() << key.toStdString();
  }
  auto* pages = main.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
  for (int page = 0; page < pages->count(); ++page) {
    pages->setCurrentIndex(page);
    auto* panels = pages->widget(page)->findChild<QTabWidget*>();
    auto* strip = panels != nullptr ? panels : qobject_cast<QTabWidget*>(pages->widget(page));
    for (int panel = 0; panel < (strip != nullptr ? strip->count() : 1); ++panel) {
      if (strip != nullptr) strip->setCurrentIndex(panel);
      SCOPED_TRACE("page " + std::to_string(page) + " panel " + std::to_string(panel));
      look(main);
    }
  }
}

TEST_P(Walk, EveryOtherWindowAndDialog) {
  writeRecordBook(scratch);
  for (const char* name : {"Form3", "Form5", "frmAbout", "frmSplash"}) {
    SCOPED_TRACE(name);
    look(open(name));
  }
  BackupDialog backup(scratch.root(), platform, nullptr);
  DrawsDialog draws(scratch.folder(), clock, {}, powerBall, nullptr);
  SettingsDialog settings(application.settings(), nullptr);
  TypedDrawDialog typed(scratch.folder(), powerBall, *parseDay(clock.date()), *parseDay(clock.date()),
                        nullptr);
  for (QDialog* dialog : {static_cast<QDialog*>(&backup), static_cast<QDialog*>(&draws),
                          static_cast<QDialog*>(&settings), static_cast<QDialog*>(&typed)}) {
    SCOPED_TRACE(dialog->windowTitle().toStdString());
    look(*dialog);
  }
}

}  // namespace
}  // namespace tallywick::test
