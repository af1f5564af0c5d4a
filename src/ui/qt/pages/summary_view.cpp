// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/summary_view.h"

#include "app/main_form.h"
#include "core/text.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/pages/drawn_lists.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"

#include <QFrame>
#include <QPainter>
#include <algorithm>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// A list under its heading, with the names of its columns between them where the model has any.
struct HeadedList {
  Label& label;
  char mnemonic;
  ListBox& list;
  LineFields fields;
  Label* columnNames = nullptr;
  /// What the star beside an amount means; null where no line has one.
  const StarMeaning* star = nullptr;
};

/// A text that is not shown where there is too little room for the whole of it.
class YieldingLabel : public DimmedLabel {
 public:
  YieldingLabel(const QString& text, QWidget* parent) : DimmedLabel(parent), whole_(text) { setText(text); }
  QSize sizeHint() const override {
    return {fontMetrics().horizontalAdvance(whole_) + theme::halfGap, DimmedLabel::sizeHint().height()};
  }
  QSize minimumSizeHint() const override { return {0, DimmedLabel::minimumSizeHint().height()}; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    DimmedLabel::resizeEvent(event);
    setText(width() < sizeHint().width() ? QString() : whole_);
  }

 private:
  QString whole_;
};

void explainStar(LineList& list, QBoxLayout& headingLine, const StarMeaning& meaning, QWidget* parent) {
  const QString text = u"★ %1"_s.arg(QString::fromLatin1(meaning.full));
  auto* note = new YieldingLabel(u"★ %1"_s.arg(QString::fromLatin1(meaning.brief)), parent);
  note->setToolTip(text);
  headingLine.addStretch();
  headingLine.addWidget(note);
  list.header()->setToolTip(text);
  list.setAccessibleDescription(text);
}

/// Whether the list has draws and of none an amount.
bool lacksAmounts(const TextLines& lines) {
  bool hasDraws = false;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const ListedLine line = readLine(lines[i]);
    if (!trimmed(line.amount).empty()) return false;
    hasDraws |= line.kind == LineKind::draw || line.kind == LineKind::amount;
  }
  return hasDraws;
}

void explainNoAmounts(LineList& list, QBoxLayout& column, QWidget* parent) {
  auto* note = sentences(parent);
  note->setText(u"The public exports have no amounts: type them in with Draws…"_s);
  column.addWidget(note);
  list.beforeReload = [&list, note, show = list.beforeReload] {
    show();
    note->setVisible(lacksAmounts(list.lineModel()->lines()));
  };
  list.beforeReload();
}

LineList* addHeadedList(QBoxLayout& column, const HeadedList& headed, const MainForm& form, Binding& binding,
                        QWidget* parent) {
  auto* label = heading(parent);
  auto* list = new LineList(headed.list.items(), parent);
  label->setBuddy(list);
  auto* headingLine = row();
  headingLine->addWidget(label);
  column.addLayout(headingLine);
  column.addWidget(list, 1);
  showInColumns(*list, headed.fields, gameOnShowOf(form.frames));
  if (headed.star != nullptr) explainStar(*list, *headingLine, *headed.star, parent);
  if (std::ranges::count(headed.fields, LineField::amount) > 0) explainNoAmounts(*list, column, parent);
  if (headed.columnNames != nullptr) binding.bind(*headed.columnNames, *list);
  binding.bind(headed.list, *list);
  binding.bind(headed.label, *label, asLabelOfControl(headed.mnemonic));
  return list;
}

QWidget* headedList(const HeadedList& headed, const MainForm& form, Binding& binding) {
  auto* box = new QWidget;
  addHeadedList(*columnIn(box), headed, form, binding, box);
  return box;
}

/// The winning plays, or in their place the Double Play draws, which match nothing.
QWidget* winningPlays(MainForm& form, FormWindow& window) {
  SummaryPage& page = form.summary;
  auto* box = new QWidget;
  LineList* list = addHeadedList(*columnIn(box), {page.Label16, 'Y', page.List2, playFieldsShown}, form,
                                 window.binding(), box);
  highlightMatches(*list, window.desk().judge);
  list->beforeReload = [list, &form, showPlays = list->beforeReload] {
    showPlays();
    if (form.frames.Frame6.visible())
      list->showColumns(columnsFor(drawFieldsShown, Game::powerBall), Game::powerBall);
  };
  return box;
}

/// The newest draw's numbers in the draws before it.
void highlightFrequentNumbers(LineList& list, const SummaryPage& page) {
  list.lineModel()->setHighlight([&page](std::string_view line) {
    LineHighlights found;
    for (std::size_t i = 0; i < 5; ++i) {
      found.whites.push_back(page.frequent[i].caption());
      found.extra |= readLine(line).extra == page.frequent[i].caption();
    }
    return found;
  });
}

}  // namespace

SummaryView::SummaryView(MainForm& form, FormWindow& window) {
  auto* sides = new Sides(u"summary"_s);
  sides->addWidget(drawsSide(form, window.binding()));
  sides->addWidget(playsSide(form, window));
  sides->setStretchFactor(0, 1);
  sides->setStretchFactor(1, 1);
  // By their size hints the plays' side would be too narrow for what they matched.
  sides->setSizes({1000, 1000});
  auto* column = columnIn(this, theme::gap);
  column->addWidget(sides, 1);
  column->addWidget(luckyFive(form, window.binding()));
}

QWidget* SummaryView::drawsSide(MainForm& form, Binding& binding) {
  SummaryPage& page = form.summary;
  auto* side = splitter(Qt::Vertical, u"summary-draws"_s);
  side->addWidget(headedList({page.Label15,
                              'L',
                              page.List1,
                              {LineField::date, LineField::whites, LineField::extra, LineField::amount},
                              nullptr,
                              &newestStar},
                             form, binding));
  side->addWidget(frequentNumbers(form, binding));
  side->setStretchFactor(0, 3);
  side->setStretchFactor(1, 2);
  binding.bind(form.frames.Frame1, *side);
  return side;
}

QWidget* SummaryView::frequentNumbers(MainForm& form, Binding& binding) {
  SummaryPage& page = form.summary;
  auto* box = new QWidget;
  auto* column = columnIn(box);
  auto* title = heading(box);
  auto* subtitle = new QLabel(box);
  std::vector<Button*> numbers;
  for (Button& number : page.frequent) numbers.push_back(&number);
  QHBoxLayout* balls = ballRow(numbers, gameOnShowOf(form.frames), binding, box);
  balls->addStretch();
  auto* list = new LineList(page.List5.items(), box);
  list->setPlaceholder(
      u"Numbers of the newest draw that came up in the five draws before it are listed here. There is none now."_s);
  showInColumns(*list, drawFieldsShown, gameOnShowOf(form.frames));
  highlightFrequentNumbers(*list, page);
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

QWidget* SummaryView::playsSide(MainForm& form, FormWindow& window) {
  SummaryPage& page = form.summary;
  Binding& binding = window.binding();
  auto* side = splitter(Qt::Vertical, u"summary-plays"_s);
  side->addWidget(winningPlays(form, window));
  side->addWidget(amounts(form, binding));
  side->addWidget(headedList({page.Label19, 'V', page.List4, drawFieldsShown, &page.Label20}, form, binding));
  binding.bind(form.frames.Frame9, *side);
  return side;
}

QWidget* SummaryView::amounts(MainForm& form, Binding& binding) {
  SummaryPage& page = form.summary;
  auto* box = new QWidget;
  auto* column = columnIn(box);
  addHeadedList(
      *column,
      {page.Label17, 'A', page.List3, {LineField::date, LineField::amount}, &page.Label18, &amountStar}, form,
      binding, box);
  return box;
}

/// Below the lists, whose splitters would not make room for what comes with a game.
QWidget* SummaryView::luckyFive(MainForm& form, Binding& binding) {
  SummaryPage& page = form.summary;
  auto* box = new QWidget(this);
  auto* parts = columnIn(box);
  parts->setSpacing(theme::halfGap);
  auto* meaning = sentences(box);
  meaning->setText(u"Left over from another game, as the last three prizes among the amounts:"_s);
  parts->addWidget(meaning);
  auto* headings = new Flow;
  parts->addLayout(headings);
  for (Label* label : {&page.Label27, &page.Label28, &page.Label29, &page.Label30, &page.Label31}) {
    auto* line = new DimmedLabel(box);
    headings->addWidget(line);
    binding.bind(*label, *line, [](std::string_view caption) { return asLabel()(caption).simplified(); });
  }
  binding.bind(form.frames.Frame12, *box);
  return box;
}

}  // namespace tallywick
