// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/search_view.h"

#include "app/main_form.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"

#include <QButtonGroup>
#include <QPushButton>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

std::vector<Button*> pointersTo(ButtonRow<6>& row) {
  std::vector<Button*> buttons;
  for (Button& button : row) buttons.push_back(&button);
  return buttons;
}

void addSearch(QBoxLayout& row, const SearchPanel::Search& search, Binding& binding, QWidget* parent) {
  auto* button = new QPushButton(parent);
  row.addSpacing(theme::gap);
  if (search.name.isEmpty()) {
    row.addWidget(button);
    binding.bind(search.button, *button, withMnemonic(search.mnemonic));
    return;
  }
  auto* label = new QLabel(withMnemonic(search.mnemonic)(toText(search.name)), parent);
  label->setBuddy(button);
  row.addWidget(label);
  row.addWidget(button);
  binding.bind(search.button, *button);
  button->setAccessibleName(u"Search %1"_s.arg(search.name));
}

SearchPanel twoThreePanel(TwoThreePage& page) {
  return {u"Ta&ke the numbers of:"_s,
          page.Combo4,
          {&page.Command37},
          pointersTo(page.numbers),
          {{page.Command38, u"PowerBall"_s, 'E'},
           {page.Command25, u"Mega Millions"_s, 'G'},
           {page.Command26, u"Double Play"_s, 'B'}},
          page.Combo7,
          page.Label25,
          page.List8};
}

SearchPanel havePlayedPanel(HavePlayedPage& page) {
  return {u"Ta&ke the numbers of:"_s,  page.Combo2, {&page.Command22}, pointersTo(page.numbers),
          {{page.Command21, {}, 'E'}}, page.Combo5, page.Label23,      page.List6};
}

SearchPanel playedPanel(PlayedPage& page) {
  return {u"Ta&ke the number of:"_s,
          page.Combo3,
          {&page.Command24, &page.Command29},
          {&page.Command23},
          {{page.Command30, {}, 'E'}},
          page.Combo6,
          page.Label24,
          page.List7};
}

SearchPanel havePlayedPlaysPanel(HavePlayedPlaysPage& page) {
  return {u"Ta&ke the numbers of the play:"_s, page.Combo8, {&page.Command45}, pointersTo(page.numbers),
          {{page.Command46, {}, 'E'}},         page.Combo9, page.Label26,      page.List9};
}

}  // namespace

SearchPanelView::SearchPanelView(const SearchPanel& panel, Binding& binding) {
  columnIn(this, theme::pageMargin);
  addSource(panel, binding);
  addNumbers(panel, binding);
  addResults(panel, binding);
}

void SearchPanelView::addSource(const SearchPanel& panel, Binding& binding) {
  auto* label = new QLabel(panel.sourceLabel, this);
  auto* picker = new Picker(panel.source.items(), this);
  label->setBuddy(picker);
  auto* line = row();
  line->addWidget(label);
  line->addWidget(picker, 1);
  binding.bind(panel.source, *picker);
  for (Button* display : panel.displays) {
    auto* button = new QPushButton(this);
    line->addWidget(button);
    binding.bind(*display, *button, withMnemonic('Y'));
  }
  line->addStretch(1);
  static_cast<QBoxLayout*>(layout())->addLayout(line);
}

void SearchPanelView::addNumbers(const SearchPanel& panel, Binding& binding) {
  auto* line = row();
  auto* group = new QButtonGroup(this);
  group->setExclusive(false);
  for (Button* number : panel.numbers) {
    auto* ball = new BallButton(this);
    group->addButton(ball);
    line->addWidget(ball);
    binding.bind(*number, *ball);
  }
  for (const SearchPanel::Search& search : panel.searches) addSearch(*line, search, binding, this);
  line->addStretch();
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
  auto* line = row();
  line->addWidget(title);
  line->addWidget(results, 1);
  line->addWidget(tally, 1);
  auto* listTitle = heading(this, u"Draws"_s);
  auto* list = new LineList(panel.list.items(), this);
  list->setAccessibleName(u"Draws"_s);

  auto* column = static_cast<QBoxLayout*>(layout());
  column->addLayout(line);
  column->addWidget(listTitle);
  column->addWidget(list, 1);
  binding.bind(panel.results, *results);
  binding.bind(panel.tally, *tally);
  binding.announceChangesOf(panel.tally);
  binding.bind(panel.list, *list);
}

SearchView::SearchView(MainForm& form, Binding& binding) {
  SearchPages& pages = form.search;
  setDocumentMode(true);
  addTab(new SearchPanelView(twoThreePanel(pages.twoThree), binding), u"&Two or Three Numbers"_s);
  addTab(new SearchPanelView(havePlayedPanel(pages.havePlayed), binding), u"One Number of &a Draw"_s);
  addTab(new SearchPanelView(playedPanel(pages.played), binding), u"F&irst Number of a Draw"_s);
  addTab(new SearchPanelView(havePlayedPlaysPanel(pages.havePlayedPlays), binding),
         u"One Number of a P&lay"_s);
  binding.bind(form.bar.SSTab2, *this);
}

}  // namespace tallywick
