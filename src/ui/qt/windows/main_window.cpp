// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/main_window.h"

#include "app/main_form.h"
#include "ui/qt/pages/draws_view.h"
#include "ui/qt/pages/search_view.h"
#include "ui/qt/pages/summary_print.h"
#include "ui/qt/pages/summary_view.h"
#include "ui/qt/pages/winnings_view.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/windows/layout_memory.h"
#include "ui/qt/windows/made_up_strip.h"
#include "ui/qt/windows/menu_bar.h"
#include "ui/qt/windows/navigation_bar.h"
#include "ui/qt/windows/selection_window.h"

#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusBar>
#include <QTabWidget>
#include <array>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize = {1080, 800};

/// The manual's page for each page of the window.
constexpr std::array<const char*, 4> helpPages = {"summary.html", "searches.html", "winnings.html",
                                                  "draws.html"};

}  // namespace

MainWindow::MainWindow(MainForm& form, const Desk& desk)
    : FormWindow(form, desk),
      main_(form),
      bar_(new NavigationBarView(form, *this)),
      madeUp_(new MadeUpStrip(*this)),
      pages_(new QTabWidget) {
  addPages();
  addMenusAndStatus();
  addKeys();
  binding().afterChanges = [this] {
    bar_->showGame();
    madeUp_->showGame();
    searches_->showHints();
    winnings_->showChanges();
  };
  binding().onPress = [this, press = binding().onPress](Control& control) {
    if (!mayPress(control)) return;
    if (press) {
      press(control);
    } else {
      click(control);
    }
  };
  restoreLayout(*this, usualSize);
}

void MainWindow::addPages() {
  pages_->addTab(new SummaryView(main_, binding()), u"Summa&ry"_s);
  searches_ = new SearchView(main_, binding());
  pages_->addTab(searches_, u"Sear&ches"_s);
  winnings_ = new WinningsView(main_, *this);
  pages_->addTab(winnings_, u"&Winnings"_s);
  pages_->addTab(new DrawsView(main_.draws, binding()), u"&Draws"_s);
  pages_->setCornerWidget(gameShown());
  binding().bind(main_.bar.SSTab1, *pages_);

  auto* content = new QWidget;
  auto* column = columnIn(content, theme::gap);
  column->addWidget(madeUp_);
  column->addWidget(bar_);
  column->addWidget(pages_, 1);
  // On a screen too small for the pages they scroll.
  auto* scroller = new QScrollArea;
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setWidgetResizable(true);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidget(content);
  setCentralWidget(scroller);
}

QWidget* MainWindow::gameShown() {
  auto* box = new QWidget;
  auto* line = new QHBoxLayout(box);
  line->setContentsMargins(theme::gap, 0, theme::gap, theme::gap);
  const std::array<std::pair<Frame*, QString>, 4> games = {
      {{&main_.frames.Frame4, u"PowerBall"_s},
       {&main_.frames.Frame5, u"Hoosier Lottery"_s},
       {&main_.frames.Frame6, u"PowerBall Double Play"_s},
       {&main_.frames.Frame11, u"Mega Millions"_s}}};
  for (const auto& [frame, name] : games) {
    auto* label = heading(box, name);
    line->addWidget(label);
    binding().bind(*frame, *label);
  }
  return box;
}

void MainWindow::addMenusAndStatus() {
  fillMenuBar(*menuBar(), main_, binding());
  addDrawsEntry();
  std::vector<QLabel*> panels;
  for (std::size_t i = 0; i < main_.update.StatusBar1.panels().size(); ++i) {
    auto* panel = new QLabel;
    panel->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(panel, i == 0 ? 2 : 1);
    panels.push_back(panel);
  }
  binding().bind(main_.update.StatusBar1, panels);
}

void MainWindow::addDrawsEntry() {
  QMenu* options = nullptr;
  for (QAction* each : menuBar()->actions()) {
    if (each->objectName() == u"mnuOption"_s) options = each->menu();
  }
  if (options == nullptr) return;
  options->addSeparator();
  QAction* draws = options->addAction(u"&Draws…"_s);
  draws->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
  connect(draws, &QAction::triggered, this,
          [this] { desk().runner.attempt([this] { desk().editDraws(); }); });
}

void MainWindow::addKeys() {
  answerHelpKey();
  auto* print = new QShortcut(QKeySequence::Print, this);
  connect(print, &QShortcut::activated, this,
          [this] { desk().runner.attempt([this] { printSummary(main_, *this); }); });
}

QString MainWindow::helpPage() const {
  return QString::fromLatin1(helpPages.at(static_cast<std::size_t>(pages_->currentIndex())));
}

TransferPanel* MainWindow::transferPanel() const {
  return bar_->transferPanel();
}

void MainWindow::keepLayout() {
  saveLayout(*this);
}

bool MainWindow::mayClose() {
  return maySelectionsClose();
}

bool MainWindow::mayPress(const Control& control) {
  if (&control == &main_.menu.mnuExit) return mayClose();
  // Opening a selection window begins anew.
  if (&control == &main_.menu.mnuPowerBall3) return maySelectionsClose(&powerBall);
  if (&control == &main_.menu.mnuMegaMillions3) return maySelectionsClose(&megaMillions);
  const GameInfo* const game = &control == &main_.bar.Command48 ? gameOnShow(main_.frames) : nullptr;
  return game == nullptr || maySelectionsClose(game);
}

}  // namespace tallywick
