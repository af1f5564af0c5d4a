// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/draws_view.h"

#include "app/main_form.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/pages/number_table_view.h"
#include "ui/qt/parts/ball_picture.h"
#include "ui/qt/parts/chart_view.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/layouts.h"

#include <QGridLayout>
#include <QPushButton>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

void addPictures(QGridLayout& grid, const QString& title, Game game, ImageRow& images, Binding& binding) {
  const int line = grid.rowCount();
  auto* label = new QLabel(title);
  grid.addWidget(label, line, 0);
  for (std::size_t i = 0; i < images.size(); ++i) {
    auto* picture = new BallPicture(game);
    grid.addWidget(picture, line, static_cast<int>(i) + 1);
    binding.bind(images[i], *picture);
  }
}

std::string picturedNumbers(const DrawsPage& page) {
  std::string numbers;
  for (const ImageRow* row : {&page.powerBallImages, &page.doublePlayImages, &page.megaMillionsImages}) {
    for (const Image& image : *row) numbers += image.number() + " ";
  }
  return numbers;
}

/// Behind a press of `button`, `isOld` is false.
void renewedBy(Button& button, bool& isOld) {
  button.onClick = [&isOld, act = button.onClick] {
    act();
    isOld = false;
  };
}

}  // namespace

DrawsView::DrawsView(MainForm& form, Binding& binding)
    : form_(form), numbers_(new NumberTableView(form, binding)), pictured_(picturedNumbers(form.draws)) {
  auto* newest = new QWidget;
  auto* column = columnIn(newest, theme::pageMargin);
  column->addWidget(chart(form.draws, binding), 1);
  column->addWidget(pictures(form.draws, binding));
  setDocumentMode(true);
  addTab(newest, u"Char&ts and Newest Draws"_s);
  addTab(numbers_, u"Number Tabl&e"_s);
  renewedBy(form.draws.Command52, isChartOld_);
  renewedBy(form.draws.Command27, isChartOld_);
  renewedBy(form.draws.Command3, arePicturesOld_);
  showNotes();
}

void DrawsView::showChanges() {
  numbers_->showChanges();
  pictured_ = picturedNumbers(form_.draws);
  showNotes();
}

void DrawsView::drawsChanged() {
  isChartOld_ = !form_.draws.Draw1.bars().empty();
  // An update shows the new pictures itself.
  arePicturesOld_ =
      !form_.draws.powerBallImages.front().number().empty() && pictured_ == picturedNumbers(form_.draws);
}

void DrawsView::showNotes() {
  QStringList chart;
  const bool isMegaMillions = form_.frames.Frame11.visible();
  if (isMegaMillions) {
    chart +=
        u"Mega Millions has no chart: here PowerBall draws are counted. How often each Mega Millions number "
        u"came "
        "is in the Number Table."_s;
  }
  toNumbers_->setVisible(isMegaMillions);
  if (isChartOld_) chart += u"The draws have changed since: press its button for a new one."_s;
  chartNote_->setText(chart.join(u'\n'));
  chartNote_->setVisible(!chart.isEmpty());
  const bool areEmpty = form_.draws.powerBallImages.front().number().empty();
  picturesNote_->setText(areEmpty ? u"Press Show Newest Draws to see their numbers here."_s
                                  : u"The draws have changed since: press the button for the newest."_s);
  picturesNote_->setVisible(areEmpty || arePicturesOld_);
}

QWidget* DrawsView::chart(DrawsPage& page, Binding& binding) {
  auto* box = new QWidget;
  auto* view = new ChartView(binding.runner(), box);
  auto* lastHundred = new QPushButton(box);
  auto* doublePlay = new QPushButton(box);
  auto* buttons = new Flow;
  buttons->addWidget(lastHundred);
  buttons->addWidget(doublePlay);
  chartNote_ = sentences(box);
  chartNote_->setFont(theme::headingFont(chartNote_->font()));
  toNumbers_ = new QPushButton(u"Show the Nu&mber Table"_s, box);
  connect(toNumbers_, &QPushButton::clicked, this, [this] { setCurrentWidget(numbers_); });
  auto* note = row();
  note->addWidget(chartNote_, 1);
  note->addWidget(toNumbers_, 0, Qt::AlignTop);
  auto* column = columnIn(box);
  column->addLayout(note);
  column->addWidget(view, 1);
  column->addLayout(buttons);
  view->setWords([](const Chart& chart) { return toQString(chartInWords(chart)); },
                 [](Color color, bool isExtraBall) { return toQString(barMeaning(color, isExtraBall)); });
  binding.bind(page.Draw1, *view);
  binding.bind(page.Command52, *lastHundred, withMnemonic('L'));
  binding.bind(page.Command27, *doublePlay, withMnemonic('B'));
  return box;
}

QWidget* DrawsView::pictures(DrawsPage& page, Binding& binding) {
  auto* box = new QWidget;
  auto* grid = new QGridLayout;
  grid->setSpacing(theme::gap);
  addPictures(*grid, u"PowerBall"_s, Game::powerBall, page.powerBallImages, binding);
  addPictures(*grid, u"PowerBall Double Play"_s, Game::powerBall, page.doublePlayImages, binding);
  addPictures(*grid, u"Mega Millions"_s, Game::megaMillions, page.megaMillionsImages, binding);
  grid->setColumnStretch(7, 1);
  auto* show = new QPushButton(box);
  auto* title = new Flow;
  title->addWidget(heading(box, u"Newest Draws"_s));
  title->addStretch();
  title->addWidget(show);
  auto* column = columnIn(box);
  picturesNote_ = sentences(box);
  picturesNote_->setFont(theme::headingFont(picturesNote_->font()));
  column->addLayout(title);
  column->addWidget(picturesNote_);
  column->addLayout(grid);
  binding.bind(page.Command3, *show, withMnemonic('A'));
  return box;
}

}  // namespace tallywick
