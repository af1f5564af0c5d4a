// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/summary_view.h"

#include "app/main_form.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"

#include <QButtonGroup>
#include <QFrame>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// Where the fields of the lists' lines begin.
constexpr std::initializer_list<int> amountColumns = {1, 15};
constexpr std::initializer_list<int> drawColumns = {0, 15, 34};

/// A list under its heading, with the names of its columns between them where it has any.
struct HeadedList {
  Label& label;
  char mnemonic;
  ListBox& list;
  Label* columnNames = nullptr;
  std::initializer_list<int> columns = {};
};

void addHeadedList(QBoxLayout& column, const HeadedList& headed, Binding& binding, QWidget* parent) {
  auto* label = heading(parent);
  auto* list = new LineList(headed.list.items(), parent);
  label->setBuddy(list);
  column.addWidget(label);
  if (headed.columnNames != nullptr) {
    auto* names = columnHeading(parent);
    column.addWidget(names);
    binding.bind(*headed.columnNames, *names, overColumns(headed.columns));
  }
  column.addWidget(list, 1);
  binding.bind(headed.list, *list);
  binding.bind(headed.label, *label, asLabelOfControl(headed.mnemonic));
}

QWidget* headedList(const HeadedList& headed, Binding& binding) {
  auto* box = new QWidget;
  addHeadedList(*columnIn(box), headed, binding, box);
  return box;
}

}  // namespace

SummaryView::SummaryView(MainForm& form, Binding& binding) {
  auto* sides = splitter(Qt::Horizontal, u"summary"_s);
  sides->addWidget(drawsSide(form, binding));
  sides->addWidget(playsSide(form, binding));
  sides->setStretchFactor(0, 1);
  sides->setStretchFactor(1, 1);
  columnIn(this, theme::pageMargin)->addWidget(sides);
}

QWidget* SummaryView::drawsSide(MainForm& form, Binding& binding) {
  SummaryPage& page = form.summary;
  auto* side = splitter(Qt::Vertical, u"summary-draws"_s);
  side->addWidget(headedList({page.Label15, 'L', page.List1}, binding));
  side->addWidget(frequentNumbers(page, binding));
  side->setStretchFactor(0, 3);
  side->setStretchFactor(1, 2);
  binding.bind(form.frames.Frame1, *side);
  return side;
}

QWidget* SummaryView::frequentNumbers(SummaryPage& page, Binding& binding) {
  auto* box = new QWidget;
  auto* column = columnIn(box);
  auto* title = heading(box);
  auto* subtitle = new QLabel(box);
  auto* balls = row();
  auto* group = new QButtonGroup(box);
  group->setExclusive(false);
  for (Button& number : page.frequent) {
    auto* ball = new BallButton(box);
    group->addButton(ball);
    balls->addWidget(ball);
    binding.bind(number, *ball);
  }
  balls->addStretch();
  auto* list = new LineList(page.List5.items(), box);
  list->setPlaceholder(u"No number of the newest draw came up in the five draws before it."_s);
  title->setBuddy(list);

  column->addWidget(title);
  column->addWidget(subtitle);
  column->addLayout(balls);
  column->addWidget(list, 1);
  binding.bind(page.List5, *list);
  binding.bind(page.Label21, *title, asLabelOfControl('Q'));
  binding.bind(page.Label22, *subtitle);
  return box;
}

QWidget* SummaryView::playsSide(MainForm& form, Binding& binding) {
  SummaryPage& page = form.summary;
  auto* side = splitter(Qt::Vertical, u"summary-plays"_s);
  side->addWidget(headedList({page.Label16, 'Y', page.List2}, binding));
  side->addWidget(amounts(form, binding));
  side->addWidget(headedList({page.Label19, 'V', page.List4, &page.Label20, drawColumns}, binding));
  binding.bind(form.frames.Frame9, *side);
  return side;
}

QWidget* SummaryView::amounts(MainForm& form, Binding& binding) {
  SummaryPage& page = form.summary;
  auto* box = new QWidget;
  auto* column = columnIn(box);
  addHeadedList(*column, {page.Label17, 'A', page.List3, &page.Label18, amountColumns}, binding, box);

  auto* luckyFive = new QWidget(box);
  auto* headings = columnIn(luckyFive);
  headings->setSpacing(theme::halfGap);
  for (Label* label : {&page.Label27, &page.Label28, &page.Label29, &page.Label30, &page.Label31}) {
    auto* line = new QLabel(luckyFive);
    headings->addWidget(line);
    binding.bind(*label, *line, [](std::string_view caption) { return asLabel()(caption).simplified(); });
  }
  column->addWidget(luckyFive);
  binding.bind(form.frames.Frame12, *luckyFive);
  return box;
}

}  // namespace tallywick
