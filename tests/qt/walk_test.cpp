// SPDX-License-Identifier: GPL-3.0-or-later
// A walk through every window and dialog: usual and large text, light, dark and high contrast, before and
// after use, on the screen that the surroundings give (CMakeLists.txt has them).
#include "app/main_form.h"
#include "core/runtime_error.h"
#include "qt/desk_fixture.h"
#include "qt/look.h"
#include "support/record_book.h"
#include "ui/qt/dialogs/backup_dialog.h"
#include "ui/qt/dialogs/draws_dialog.h"
#include "ui/qt/dialogs/fetch_dialog.h"
#include "ui/qt/dialogs/first_start.h"
#include "ui/qt/dialogs/settings_dialog.h"
#include "ui/qt/dialogs/typed_draw_dialog.h"
#include "ui/qt/windows/help_window.h"
#include "ui/qt/windows/qt_transfer_window.h"

#include <QComboBox>
#include <QLineEdit>
#include <QProgressDialog>
#include <QTabWidget>
#include <regex>

namespace tallywick::test {
namespace {

struct Setting {
  const char* name;
  int points;
  QPalette palette;
  /// Marks are set and searches and checks made before the pages are looked at.
  bool isUsed;
};

/// The classes of windows that the sources declare, each as it is within the compiler's names.
std::set<std::string> declaredWindows() {
  std::set<std::string> windows = {"QDialog", "QMainWindow", "QMessageBox", "QProgressDialog", "QWidget*"};
  std::map<std::string, std::string> bases;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(TALLYWICK_WINDOW_SOURCES)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path());
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::regex declared(R"(class (\w+)(?: final)? : public (\w+))");
    for (std::sregex_iterator each(text.begin(), text.end(), declared), end; each != end; ++each)
      bases[(*each)[1]] = (*each)[2];
  }
  std::set<std::string> found;
  for (const auto& [name, base] : bases) {
    std::string root = base;
    while (bases.contains(root)) root = bases[root];
    if (windows.contains(root) && name != "FormWindow") found.insert(std::to_string(name.size()) + name);
  }
  return found;
}

class Walk : public Desktop, public testing::WithParamInterface<Setting> {
 protected:
  Walk() {
    QFont font = font_;
    font.setPointSize(GetParam().points);
    QApplication::setFont(font);
    QApplication::setPalette(GetParam().palette);
    writeRecordBook(scratch);
  }
  ~Walk() override {
    QApplication::setFont(font_);
    QApplication::setPalette(palette_);
  }

  static void lookAt(QWidget& window) {
    window.show();
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    lookAndTab(window);
  }

  /// Every tab of the window, with the tabs in it.
  static void lookAtTabs(QWidget& window, QTabWidget& tabs) {
    for (int i = 0; i < tabs.count(); ++i) {
      tabs.setCurrentIndex(i);
      SCOPED_TRACE(tabs.tabText(i).toStdString());
      auto* inner = qobject_cast<QTabWidget*>(tabs.widget(i));
      if (inner == nullptr) inner = tabs.widget(i)->findChild<QTabWidget*>();
      if (inner != nullptr)
        lookAtTabs(window, *inner);
      else
        lookAt(window);
    }
  }

  /// The window that `open` shows until it is closed.
  static void lookAtModal(const std::function<void()>& open) {
    QTimer::singleShot(0, [] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      lookAt(*dialog);
      dialog->reject();
    });
    open();
  }

  /// The toolkit's windows without a class of the program's own.
  static void lookAtProgress() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (qobject_cast<QProgressDialog*>(widget) != nullptr) lookAt(*widget);
    }
  }

  void press(const char* window, std::initializer_list<const char*> buttons) {
    for (const char* name : buttons) widget<QAbstractButton>(window, name).click();
  }
  /// The lists get results, numbers are marked, verdicts given and pictures shown.
  void usePages(FormWindow& main);
  void lookAtDialogs();
  void lookAtBoxes();

 private:
  const QFont font_ = QApplication::font();
  const QPalette palette_ = QApplication::palette();
};

INSTANTIATE_TEST_SUITE_P(Settings, Walk,
                         testing::Values(Setting{"Usual", 10, lightPalette(), false},
                                         Setting{"Dark", 10, darkPalette(), false},
                                         Setting{"HighContrast", 10, highContrastPalette(), true},
                                         Setting{"Large", 24, darkPalette(), true}),
                         [](const auto& instance) { return std::string(instance.param.name); });

void Walk::usePages(FormWindow& main) {
  auto& pages = *main.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
  main.show();
  for (int i = pages.count() - 1; i >= 0; --i) pages.setCurrentIndex(i);
  widget<QComboBox>("Form1", "Combo4").lineEdit()->selectAll();
  QTest::keyClicks(widget<QComboBox>("Form1", "Combo4").lineEdit(), QStringLiteral("2 3"));
  press("Form1", {"Command37", "Command38", "Option2", "Command47", "Command52", "Command3"});
}

void Walk::lookAtDialogs() {
  const Day today = *parseDay(clock.date());
  BackupDialog backup(scratch.root(), platform, nullptr);
  DrawsDialog draws(scratch.folder(), clock, {}, megaMillions, nullptr);
  SettingsDialog settings(application.settings(), nullptr);
  TypedDrawDialog typed(scratch.folder(), powerBall, today, today, nullptr);
  for (QDialog* dialog : {static_cast<QDialog*>(&backup), static_cast<QDialog*>(&draws),
                          static_cast<QDialog*>(&settings), static_cast<QDialog*>(&typed)})
    lookAt(*dialog);
  typed.findChild<QPushButton*>(QStringLiteral("addDraw"))->click();
  lookAt(typed);
  lookAtModal([&] { backup.askToRestore(QStringLiteral("/a.zip")); });
  {
    const FetchDialog fetch(nullptr);
    lookAtProgress();
  }
  QtTransferWindow transfer;
  transfer.show({"QZRNUM6.Dat", 500, 1000});
  lookAtProgress();
}

void Walk::lookAtBoxes() {
  lookAtModal([this] { findDataFolder((scratch.root() / "none").string(), Offer::yes); });
  lookAtModal([] { showWarning(QStringLiteral("The record book could not be made.")); });
  lookAtModal([this] {
    platform.show({"Go on?", "A question", MessageBox::Icon::question, MessageBox::Buttons::yesNo});
  });
  lookAtModal([this] { platform.run([] { throw RuntimeError(ErrorNumber::fileNotFound, "a file"); }); });
}

TEST_P(Walk, ThroughEveryWindow) {
  bool isAllShown = false;
  platform.desk.clock = &clock;
  platform.desk.showsMadeUpDraws = [&] { return isAllShown; };
  platform.desk.updateNote = [&] { return isAllShown ? "The newest draws are not there yet." : ""; };
  FormWindow& main = open("Form1");
  if (GetParam().isUsed) usePages(main);
  lookAtTabs(main, *main.findChild<QTabWidget*>(QStringLiteral("SSTab1")));
  if (GetParam().isUsed) {
    press("Form1", {"Command4"});
    lookAt(main);
  }
  isAllShown = true;
  platform.run([] {});
  lookAt(main);
  platform.run([&] {
    platform.progress({2048, 1, 3});
    lookAt(main);
  });
  for (const char* name : {"Form3", "Form5", "frmAbout", "frmSplash"}) {
    FormWindow& window = open(name);
    auto* selection = dynamic_cast<SelectionForm*>(&window.form());
    for (const int number : {1, 2, 3, 4, 5, 5, 6}) {
      if (GetParam().isUsed && selection != nullptr) press(name, {selection->button(number).name().c_str()});
    }
    lookAt(window);
  }
  HelpWindow::showPage(QStringLiteral("index.html"));
  for (QWidget* each : QApplication::topLevelWidgets()) {
    auto* help = dynamic_cast<HelpWindow*>(each);
    if (help == nullptr) continue;
    lookAt(*help);
    help->close();
  }
  lookAtDialogs();
  lookAtBoxes();
  for (const std::string& name : declaredWindows()) {
    const bool isSeen = std::ranges::any_of(
        seenWindows(), [&](const std::string& seen) { return seen.find(name) != std::string::npos; });
    EXPECT_TRUE(isSeen) << name << " is a window, and the walk does not come to it";
  }
}

}  // namespace
}  // namespace tallywick::test
