// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/main_window.h"

#include "app/draws_note.h"
#include "app/main_form.h"
#include "ui/qt/pages/draws_view.h"
#include "ui/qt/pages/search_view.h"
#include "ui/qt/pages/summary_print.h"
#include "ui/qt/pages/summary_view.h"
#include "ui/qt/pages/winnings_view.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/later_page.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/windows/file_trouble_strip.h"
#include "ui/qt/windows/glance_strip.h"
#include "ui/qt/windows/layout_memory.h"
#include "ui/qt/windows/list_in_use.h"
#include "ui/qt/windows/menu_bar.h"
#include "ui/qt/windows/navigation_bar.h"
#include "ui/qt/windows/notice_strip.h"
#include "ui/qt/windows/selection_window.h"
#include "ui/qt/windows/text_size.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize = {1080, 800};

/// In milliseconds: that the window comes up is first, and so is what the user does meanwhile.
constexpr int beforeNextPage = 200;

/// The manual's page for each page of the window.
constexpr std::array<const char*, 4> helpPages = {"summary.html", "searches.html", "winnings.html",
                                                  "draws.html"};

}  // namespace

MainWindow::MainWindow(MainForm& form, const Desk& desk)
    : FormWindow(form, desk),
      main_(form),
      bar_(new NavigationBarView(form, *this)),
      madeUp_(madeUpStrip(*this)),
      age_(ageStrip(*this)),
      trouble_(new FileTroubleStrip(form, *this)),
      glance_(new GlanceStrip(form, *this)),
      doublePlayNote_(sentences(this)),
      drawnPlays_(desk.folder, desk.judge),
      pages_(new QTabWidget),
      listInUse_(new ListInUse(*pages_)) {
  addPages();
  addMenusAndStatus();
  addKeys();
  followGlance();
  greyUnset();
  drawFiles_ = stampsOfDraws(desk.folder);
  showNotices();
  binding().afterChanges = [this] {
    bar_->showGame();
    followDraws();
    showNotices();
    trouble_->showFiles();
    followGame();
    glance_->showGame();
    showDoublePlayNote();
    greyUnset();
    showPages();
    placeGameShown();
  };
  binding().onPress = [this, press = binding().onPress](Control& control) {
    if (!mayPress(control)) return;
    // A page notices what a press does from where it is made on.
    finish();
    if (press) {
      press(control);
    } else {
      click(control);
    }
  };
  restoreLayout(*this, usualSize);
  // Not on a button, which a stray press of Space would press.
  findChild<LineList*>(toQString(form.summary.List1.name()))->setFocus();
}

void MainWindow::addPages() {
  pages_->addTab(new SummaryView(main_, *this), u"Summa&ry"_s);
  addLaterPage(u"Sear&ches"_s,
               [this] { return searches_ = new SearchView(main_, desk().folder, binding()); });
  addLaterPage(u"&Winnings"_s, [this] { return winnings_ = new WinningsView(main_, *this); });
  addLaterPage(u"&Draws"_s, [this] { return draws_ = new DrawsView(main_, binding()); });
  gameShown_ = gameShown();
  pages_->setCornerWidget(gameShown_);
  binding().bind(main_.bar.SSTab1, *pages_);

  doublePlayNote_->hide();
  auto* content = new QWidget;
  auto* column = columnIn(content, theme::gap);
  column->addWidget(madeUp_);
  column->addWidget(age_);
  column->addWidget(trouble_);
  column->addWidget(bar_);
  column->addWidget(glance_);
  column->addWidget(doublePlayNote_);
  column->addWidget(pages_, 1);
  // On a screen too small for the pages they scroll.
  setCentralWidget(scrolled(content));
}

void MainWindow::addLaterPage(const QString& title, std::function<QWidget*()> make) {
  binding().awaitPart();
  auto* page = new LaterPage(std::move(make));
  page->onMade = [this, page] {
    binding().partMade();
    restoreSplitters(*this, *page);
    showPages();
    // What is made last is last for the Tab key, but the strip's corner comes behind the pages.
    QWidget* last = previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus) last = last->previousInFocusChain();
    setTabOrder(last, doublePlay_);
  };
  laterPages_.push_back(page);
  pages_->addTab(page, title);
}

void MainWindow::showEvent(QShowEvent* event) {
  FormWindow::showEvent(event);
  QTimer::singleShot(beforeNextPage, this, &MainWindow::makeNextPage);
}

void MainWindow::makeNextPage() {
  const auto next = std::ranges::find_if_not(laterPages_, &LaterPage::isMade);
  if (binding().isReleased() || next == laterPages_.end()) return;
  (*next)->make();
  QTimer::singleShot(beforeNextPage, this, &MainWindow::makeNextPage);
}

void MainWindow::finish() {
  for (LaterPage* page : laterPages_) page->make();
}

void MainWindow::showPages() {
  if (searches_ != nullptr) searches_->showHints();
  if (winnings_ != nullptr) winnings_->showChanges();
  if (draws_ != nullptr) draws_->showChanges();
}

QWidget* MainWindow::gameShown() {
  auto* box = new QWidget;
  auto* line = new Flow(box);
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
  doublePlay_ = new QToolButton;
  doublePlay_->setAutoRaise(true);
  doublePlay_->setFocusPolicy(Qt::TabFocus);
  line->addWidget(doublePlay_);
  connect(doublePlay_, &QToolButton::clicked, this, [this] {
    const bool isShown = main_.frames.Frame6.visible();
    desk().runner.run([this, isShown] { desk().showDoublePlay(!isShown); });
  });
  return box;
}

void MainWindow::placeGameShown() {
  auto& column = static_cast<QBoxLayout&>(*pages_->parentWidget()->layout());
  const int needed = pages_->tabBar()->sizeHint().width() + gameShown_->sizeHint().width();
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const bool fits = needed <= width() - bar - 2 * theme::gap;
  if (fits == (pages_->cornerWidget() != nullptr)) return;
  pages_->setCornerWidget(fits ? gameShown_ : nullptr);
  if (!fits) column.insertWidget(column.indexOf(pages_), gameShown_);
  gameShown_->show();
}

bool MainWindow::event(QEvent* event) {
  const bool isTaken = FormWindow::event(event);
  // The widgets get it after their window.
  if (event->type() == QEvent::Resize || event->type() == QEvent::ApplicationFontChange)
    QTimer::singleShot(0, this, &MainWindow::placeGameShown);
  return isTaken;
}

void MainWindow::addMenusAndStatus() {
  fillMenuBar(*menuBar(), main_, binding());
  addOptionEntries();
  std::vector<QLabel*> panels;
  for (std::size_t i = 0; i < main_.update.StatusBar1.panels().size(); ++i) {
    auto* panel = new QLabel;
    panel->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(panel, i == 0 ? 2 : 1);
    panels.push_back(panel);
  }
  binding().bind(main_.update.StatusBar1, panels);
}

void MainWindow::addOptionEntries() {
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
  options->addSeparator();
  // TextSize answers the keys, in the other windows too.
  connect(options->addAction(u"&Larger Text\tCtrl++"_s), &QAction::triggered, [] { TextSize::change(1); });
  connect(options->addAction(u"S&maller Text\tCtrl+-"_s), &QAction::triggered, [] { TextSize::change(-1); });
  connect(options->addAction(u"Usual &Text Size\tCtrl+0"_s), &QAction::triggered, [] { TextSize::reset(); });
}

void MainWindow::addHelpEntry() {
  QMenu* help = findChild<QAction*>(toQString(main_.menu.mnuHelp2.name()))->menu();
  auto* manual = new QAction(u"&Manual\tF1"_s, this);
  connect(manual, &QAction::triggered, this,
          [this] { desk().runner.attempt([this] { desk().help(helpPage()); }); });
  help->insertAction(help->actions().value(0), manual);
}

void MainWindow::addKeys() {
  answerHelpKey();
  addFileEntries();
  addHelpEntry();
}

void MainWindow::addFileEntries() {
  auto* exit = findChild<QAction*>(toQString(main_.menu.mnuExit.name()));
  auto* file = findChild<QAction*>(toQString(main_.menu.mnuFile.name()))->menu();
  auto* draws = new QAction(u"&Draws Page"_s, this);
  connect(draws, &QAction::triggered, this, [this] { pages_->setCurrentIndex(pages_->count() - 1); });
  auto* print = new QAction(u"Pr&int Summary…"_s, this);
  print->setShortcut(QKeySequence::Print);
  connect(print, &QAction::triggered, this,
          [this] { desk().runner.attempt([this] { printSummary(main_, *this); }); });
  // The buttons have the keys.
  auto* backup = new QAction(u"&Backup…\tCtrl+B"_s, this);
  connect(backup, &QAction::triggered, this, [this] { desk().runner.attempt([this] { desk().backUp(); }); });
  auto* settings = new QAction(u"S&ettings…\tCtrl+,"_s, this);
  connect(settings, &QAction::triggered, this, [this] {
    desk().runner.attempt([this] { desk().editSettings(); });
    binding().showChanges();
  });
  file->insertActions(exit, {draws});
  file->insertSeparator(exit);
  file->insertActions(exit, {print, listInUse_->printEntry(*file), listInUse_->saveEntry(*file)});
  file->insertSeparator(exit);
  file->insertActions(exit, {backup, settings});
  file->insertSeparator(exit);
}

void MainWindow::followGlance() {
  constexpr int summary = 0;
  constexpr int winnings = 2;
  trouble_->onChanged = [this] { glance_->showGame(); };
  glance_->onNewest = [this] { pages_->setCurrentIndex(summary); };
  glance_->onMissing = [this] { desk().runner.attempt([this] { desk().editDraws(); }); };
  const auto showPlays = [this](PlayFilter filter) {
    pages_->setCurrentIndex(winnings);
    finish();
    winnings_->showMyPlays(filter);
  };
  glance_->onWaiting = [showPlays] { showPlays(PlayFilter::waiting); };
  glance_->onWins = [showPlays] { showPlays(PlayFilter::won); };
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (!listInUse_->answers(*event)) FormWindow::keyPressEvent(event);
}

void MainWindow::followGame() {
  if (std::exchange(titled_, gameOnShow(main_.frames)) == gameOnShow(main_.frames)) return;
  // The extra ball is drawn as the game's.
  for (auto* ball : pages_->findChildren<BallButton*>()) ball->update();
  for (auto* list : pages_->findChildren<LineList*>()) {
    if (list->lineModel() != nullptr && list->lineModel()->lines().empty() && list->beforeReload)
      list->beforeReload();
  }
}

void MainWindow::greyUnset() {
  for (const MenuEntry* entry : {&main_.menu.mnuQZRHelp, &main_.menu.mnuGameInfo}) {
    const bool set = !desk().isSet || desk().isSet(*entry);
    findChild<QAction*>(toQString(entry->name()))->setEnabled(entry->enabled() && set);
  }
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
