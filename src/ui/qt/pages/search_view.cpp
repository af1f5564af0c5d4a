// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/search_view.h"

#include "app/main_form.h"
#include "search/double_play_draws.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/pages/drawn_lists.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/hint_panel.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_actions.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"

#include <QLineEdit>
#include <QPushButton>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// The window's own list beside a model's.
const QString foundName = u"Draws that were found"_s;
/// The same beside the model's list of the Double Play search, which mixes in other draws.
const QString doublePlayName = u"Double Play draws found"_s;

/// What a press will search, in two lines, and whose result is shown.
constexpr int hintLines = 3;

std::vector<Button*> pointersTo(ButtonRow<6>& row) {
  std::vector<Button*> buttons;
  for (Button& button : row) buttons.push_back(&button);
  return buttons;
}

void addSearch(Flow& row, const SearchPanel::Search& search, Binding& binding, QWidget* parent) {
  auto* button = new QPushButton(parent);
  if (search.name.isEmpty()) {
    row.addWidget(button);
    binding.bind(search.button, *button, withMnemonic(search.mnemonic));
    return;
  }
  auto* label = new QLabel(withMnemonic(search.mnemonic)(toText(search.name)), parent);
  label->setBuddy(button);
  auto* both = tallywick::row();
  both->addSpacing(theme::gap);
  both->addWidget(label);
  both->addWidget(button);
  row.addLayout(both);
  binding.bind(search.button, *button);
  button->setAccessibleName(u"Search %1"_s.arg(search.name));
}

/// The two/three-number search has a button for each game.
SearchPanel twoThreePanel(TwoThreePage& page, const DataFolder& folder) {
  auto memory = std::make_shared<SearchMemory>(page.Combo7.items(), &page.List8.items());
  const auto searchOf = [&page](const char* game) {
    return [&page, game] { return searchedNow(page, game); };
  };
  memory->watch(page.Command38, searchOf("PowerBall"));
  memory->watch(page.Command25, searchOf("Mega Millions"));
  memory->watch(page.Command26, searchOf("Double Play"), [&page, &folder](TextLines& lines) {
    return listDoublePlayDraws(page.numbers, folder, lines);
  });
  return {u"Ta&ke the numbers of:"_s,
          page.Combo4,
          {&page.Command37},
          pointersTo(page.numbers),
          {{page.Command38, u"PowerBall"_s, 'E'},
           {page.Command25, u"Mega Millions"_s, 'G'},
           {page.Command26, u"Double Play"_s, 'B'}},
          page.Combo7,
          page.Label25,
          page.List8,
          u"All draws, until a search lists those found"_s,
          [&page] { return searchHint(page); },
          [&page] { return searchedNow(page, {}); },
          memory,
          3};
}

/// Each of the three searches has a game of its own; before them the lists show the game on show.
GameOfLines gameOfTwoThree(TwoThreePage& page, const GameOfLines& shownGame) {
  struct Found {
    Game game = Game::powerBall;
    std::size_t revision = static_cast<std::size_t>(-1);
  };
  const auto found = std::make_shared<Found>();
  for (Button* search : {&page.Command38, &page.Command25, &page.Command26}) {
    const Game game = search == &page.Command25 ? Game::megaMillions : Game::powerBall;
    search->onClick = [&page, found, game, run = search->onClick] {
      const std::size_t before = page.List8.items().revision();
      run();
      if (page.List8.items().revision() != before) *found = {game, page.List8.items().revision()};
    };
  }
  return [&page, found, shownGame] {
    return found->revision == page.List8.items().revision() ? found->game : shownGame();
  };
}

/// The lists and drop-downs of draws and plays; those of multipliers stay text.
void showInColumns(const SearchView& view, const char* name, const GameOfLines& gameOf) {
  const QString named = QString::fromLatin1(name);
  if (auto* list = view.findChild<LineList*>(named)) showInColumns(*list, drawFieldsShown, gameOf);
  for (auto* picker : view.findChildren<QComboBox*>(named))
    showInColumns(static_cast<Picker&>(*picker), drawFieldsShown, gameOf);
}

void showDrawsInColumns(const SearchView& view, MainForm& form) {
  const GameOfLines shownGame = gameOnShowOf(form.frames);
  for (const char* name :
       {"Combo4", "Combo2", "Combo5", "List6", "Combo6", "List7", "Combo8", "Combo9", "List9"})
    showInColumns(view, name, shownGame);
  for (auto* list : view.findChildren<LineList*>()) {
    if (list->accessibleName() == foundName) showInColumns(*list, drawFieldsShown, shownGame);
    if (list->accessibleName() == doublePlayName)
      showInColumns(*list, drawFieldsShown, [] { return Game::powerBall; });
  }
  const GameOfLines found = gameOfTwoThree(form.search.twoThree, shownGame);
  for (const char* name : {"Combo7", "List8"}) showInColumns(view, name, found);
}

/// What a panel with one search shows beside its controls.
template <typename Page>
void addHints(SearchPanel& panel, const Page& page, const GameFrames& frames, const TextLines* listed) {
  panel.hint = [&page, &frames] { return searchHint(page, frames); };
  panel.now = [&page, &frames] { return searchedNow(page, frames); };
  panel.memory = std::make_shared<SearchMemory>(panel.results.items(), listed);
  panel.memory->watch(panel.searches.front().button, panel.now);
}

SearchPanel havePlayedPanel(HavePlayedPage& page, const GameFrames& frames) {
  SearchPanel panel = {u"Ta&ke the numbers of:"_s,
                       page.Combo2,
                       {&page.Command22},
                       pointersTo(page.numbers),
                       {{page.Command21, {}, 'E'}},
                       page.Combo5,
                       page.Label23,
                       page.List6,
                       u"All draws, until a count empties this list"_s};
  addHints(panel, page, frames, nullptr);
  return panel;
}

SearchPanel playedPanel(PlayedPage& page, const GameFrames& frames) {
  SearchPanel panel = {u"Ta&ke the multiplier of, or type:"_s,
                       page.Combo3,
                       {&page.Command24, &page.Command29},
                       {&page.Command23},
                       {{page.Command30, {}, 'E'}},
                       page.Combo6,
                       page.Label24,
                       page.List7,
                       u"All draws, until a count lists those found"_s};
  addHints(panel, page, frames, &page.List7.items());
  return panel;
}

SearchPanel havePlayedPlaysPanel(HavePlayedPlaysPage& page, const GameFrames& frames) {
  SearchPanel panel = {
      u"Ta&ke the numbers of the play:"_s, page.Combo8, {&page.Command45}, pointersTo(page.numbers),
      {{page.Command46, {}, 'E'}},         page.Combo9, page.Label26,      page.List9,
      u"All draws of the game"_s};
  addHints(panel, page, frames, nullptr);
  return panel;
}

}  // namespace

SearchPanelView::SearchPanelView(const SearchPanel& panel, Binding& binding) : panel_(panel) {
  columnIn(this, theme::pageMargin);
  addSource(panel, binding);
  addNumbers(panel, binding);
  hint_ = new HintPanel(hintLines, this);
  layout()->addWidget(hint_);
  addResults(panel, binding);
}

void SearchPanelView::addSource(const SearchPanel& panel, Binding& binding) {
  auto* label = new QLabel(panel.sourceLabel, this);
  auto* picker = new Picker(panel.source.items(), this);
  label->setBuddy(picker);
  auto* line = new Flow;
  line->addWidget(label);
  line->addWidget(picker, true);
  picker->lineEdit()->setPlaceholderText(u"a draw, or numbers such as 7 17 20"_s);
  binding.bind(panel.source, *picker);
  for (Button* display : panel.displays) {
    takeTypedNumbers(*display, panel.source, panel.numbers, panel.mostMarked);
    auto* button = new QPushButton(this);
    connect(picker->lineEdit(), &QLineEdit::returnPressed, button, &QPushButton::click);
    line->addWidget(button);
    binding.bind(*display, *button, withMnemonic('Y'));
  }
  line->addStretch();
  static_cast<QBoxLayout*>(layout())->addLayout(line);
}

void SearchPanelView::addNumbers(const SearchPanel& panel, Binding& binding) {
  auto* line = new Flow;
  line->addLayout(ballRow(panel.numbers, panel.gameOf, binding, this));
  for (const SearchPanel::Search& search : panel.searches) addSearch(*line, search, binding, this);
  static_cast<QBoxLayout*>(layout())->addLayout(line);
}

void SearchPanelView::addResults(const SearchPanel& panel, Binding& binding) {
  auto* title = new QLabel(u"Draws found:"_s, this);
  auto* results = new Picker(panel.results.items(), this);
  results->setResultsOnly();
  title->setBuddy(results);
  results->setAccessibleName(u"Draws found"_s);
  auto* tally = heading(this);
  tally->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* line = new Flow;
  line->addWidget(title);
  line->addWidget(results, true);
  line->addWidget(tally, true);
  found_ = sentences(this);
  auto* column = static_cast<QBoxLayout*>(layout());
  column->addLayout(line);
  column->addWidget(found_);
  column->addWidget(lists(panel, binding), 1);
  binding.bind(panel.results, *results);
  binding.bind(panel.tally, *tally);
  binding.announceChangesOf(panel.tally);
}

QWidget* SearchPanelView::lists(const SearchPanel& panel, Binding& binding) {
  auto* both = new QWidget;
  auto* line = new QHBoxLayout(both);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(theme::pageMargin);
  const auto add = [line](QWidget* box, QLabel* title, LineList* list, const QString& name) {
    auto* column = columnIn(box);
    column->addWidget(title);
    column->addWidget(list, 1);
    list->setAccessibleName(name);
    line->addWidget(box, 1);
  };
  foundLines_ = new QWidget;
  const TextLines& foundElsewhere = panel.memory->foundElsewhere();
  const bool isOfResults = &foundElsewhere == &panel.results.items();
  auto* found = new LineList(foundElsewhere, foundLines_);
  add(foundLines_, heading(foundLines_, isOfResults ? u"Draws found"_s : doublePlayName), found,
      isOfResults ? foundName : doublePlayName);
  addLineActions(*found, binding.runner());
  foundLines_->hide();
  listed_ = new QWidget;
  listTitle_ = heading(listed_, panel.listTitle);
  auto* list = new LineList(panel.list.items(), listed_);
  add(listed_, listTitle_, list, u"Draws"_s);
  list->setPlaceholder(u"No draw is listed. PowerBall or Mega Millions at the top lists all draws again."_s);
  binding.bind(panel.list, *list);
  return both;
}

void SearchPanelView::showHints() {
  SearchHint hint = panel_.hint();
  if (const std::string typed = typedHint(*panel_.displays.back(), panel_.source, panel_.numbers);
      !typed.empty() && panel_.numbers.size() > 1)
    hint = {false, false, typed};
  const QString shown = toQString(panel_.memory->hint(panel_.now()));
  const auto kind = hint.surprises ? HintPanel::Kind::warning
                    : hint.ready   ? HintPanel::Kind::ready
                                   : HintPanel::Kind::advice;
  hint_->show(kind, {}, shown.isEmpty() ? toQString(hint.text) : toQString(hint.text) + u'\n' + shown);
  const QString listed = panel_.memory->isMixed() ? u"What old record books expect"_s : u"Draws found"_s;
  listTitle_->setText(panel_.memory->isListed() ? listed : panel_.listTitle);
  showFound();
}

void SearchPanelView::showFound() {
  const QString text = toQString(panel_.memory->foundText());
  found_->setText(text);
  found_->setVisible(!text.isEmpty());
  const bool isElsewhere = panel_.memory->isFoundElsewhere();
  foundLines_->setVisible(isElsewhere);
  // A count empties some of the model's lists.
  listed_->setVisible(!isElsewhere || !panel_.list.items().empty());
  auto& lines = *foundLines_->findChild<LineList*>();
  lines.setEmphasis(panel_.memory->isMixed() ? panel_.list.emphasis()
                                             : std::vector<std::string>{panel_.memory->searched().numbers});
  const std::size_t revision = panel_.memory->foundElsewhere().revision();
  if (std::exchange(foundRevision_, revision) != revision) lines.reload();
}

SearchView::SearchView(MainForm& form, const DataFolder& folder, Binding& binding) {
  SearchPages& pages = form.search;
  const GameOfLines shownGame = gameOnShowOf(form.frames);
  setDocumentMode(true);
  add(twoThreePanel(pages.twoThree, folder), u"&Two or Three Numbers"_s, shownGame, binding);
  add(havePlayedPanel(pages.havePlayed, form.frames), u"One Number of &a Draw"_s, shownGame, binding);
  add(playedPanel(pages.played, form.frames), u"Mult&iplier or Any Number"_s, shownGame, binding);
  add(havePlayedPlaysPanel(pages.havePlayedPlays, form.frames), u"One Number of a P&lay"_s, shownGame,
      binding);
  binding.bind(form.bar.SSTab2, *this);
  showDrawsInColumns(*this, form);
  showHints();
}

void SearchView::add(SearchPanel panel, const QString& title, const GameOfLines& gameOf, Binding& binding) {
  panel.gameOf = gameOf;
  panels_.push_back(new SearchPanelView(panel, binding));
  addTab(panels_.back(), title);
}

void SearchView::showHints() {
  for (SearchPanelView* panel : panels_) panel->showHints();
}

void SearchView::drawsChanged() {
  for (SearchPanelView* panel : panels_) panel->drawsChanged();
}

}  // namespace tallywick
