// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/chart_view.h"

#include "core/text.h"
#include "ui/qt/parts/focus_style.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_actions.h"
#include "ui/qt/parts/wording.h"

#include <QAction>
#include <QFileDialog>
#include <QHeaderView>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QTableWidget>
#include <algorithm>
#include <cmath>
#include <qcustomplot.h>
#include <stdexcept>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr double barWidth = 0.6;
/// Room over the tallest bar for its count.
constexpr double headroom = 1.15;
constexpr double leastHeight = 5;
constexpr int wantedTicks = 5;
/// The plot beside the table is at least so wide, and so high under its heading; the table below it so high.
constexpr int plotLetters = 40;
constexpr int plotLines = 10;
constexpr int tableLines = 5;

/// The text with line ends where its words pass `width`.
QString wrapped(const QString& text, const QFont& face, int width) {
  const QFontMetrics metrics(face);
  QString lines;
  int used = 0;
  for (const QString& word : QString(text).replace(u'\n', u" \n"_s).split(u' ')) {
    const int own = metrics.horizontalAdvance(word + u' ');
    const bool breaks = !word.startsWith(u'\n') && used > 0 && used + own > width;
    lines += (breaks ? u"\n"_s : lines.isEmpty() || word.startsWith(u'\n') ? QString() : u" "_s) + word;
    used = breaks || word.startsWith(u'\n') ? own : used + own;
  }
  return lines;
}

/// Of the colour, with an outline, for colours as light as the ground.
QIcon swatch(const QColor& color, const QPalette& palette) {
  QPixmap picture(2 * theme::gap, 2 * theme::gap);
  picture.fill(theme::standingOutFrom(palette.base().color(), color, theme::shapeContrast));
  QPainter(&picture).fillRect(picture.rect().adjusted(1, 1, -1, -1), color);
  return picture;
}

}  // namespace

ChartView::ChartView(HandlerRunner& runner, QWidget* parent)
    : QWidget(parent),
      parts_(new QHBoxLayout(this)),
      plot_(new QCustomPlot(this)),
      heading_(new QCPTextElement(plot_)),
      table_(new QTableWidget(this)) {
  // Room for the mark of the keyboard.
  parts_->setContentsMargins(1, 1, 1, 1);
  parts_->setSpacing(theme::gap);
  parts_->addWidget(plot_, 1);
  parts_->addWidget(table_);
  setFocusPolicy(Qt::StrongFocus);
  plot_->setAttribute(Qt::WA_TransparentForMouseEvents);
  plot_->setFocusPolicy(Qt::NoFocus);
  plot_->plotLayout()->insertRow(0);
  plot_->plotLayout()->addElement(0, 0, heading_);
  // It is wrapped by hand.
  heading_->setMinimumSize(1, 0);
  plot_->xAxis->grid()->setVisible(false);
  plot_->xAxis->setSubTicks(false);
  plot_->yAxis->setSubTicks(false);
  table_->setColumnCount(3);
  table_->setHorizontalHeaderLabels({u"Number"_s, u"Draws"_s, u"Colour"_s});
  table_->setAccessibleName(u"Values of the chart"_s);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setStretchLastSection(true);
  addActions(runner);
  addViewActions(*table_, runner, tableTexts(*table_));
  draw();
}

void ChartView::setWords(std::function<QString(const Chart&)> explain,
                         std::function<QString(Color, bool isLast)> meaningOf) {
  explain_ = std::move(explain);
  meaningOf_ = std::move(meaningOf);
}

void ChartView::show(const Chart& chart) {
  title_ = toQString(chart.title());
  explanation_ = explain_ ? explain_(chart) : QString();
  bars_ = chart.bars();
  setAccessibleName(explanation_.isEmpty() ? title_ : explanation_);
  setAccessibleDescription(inWords(title_, bars_));
  draw();
}

QString ChartView::inWords(const QString& title, const std::vector<Chart::Bar>& bars) {
  QString text = title;
  for (const Chart::Bar& bar : bars) {
    text += u"%1 %2: %3"_s.arg(&bar == &bars.front() ? u"."_s : u","_s, toQString(bar.label),
                               QString::number(bar.value));
  }
  return text;
}

void ChartView::draw() {
  plot_->clearPlottables();
  plot_->clearItems();
  double tallest = leastHeight;
  auto names = QSharedPointer<QCPAxisTickerText>::create();
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    const int place = static_cast<int>(i);
    names->addTick(place, toQString(bars_[i].label));
    addBar(place, bars_[i]);
    tallest = std::max(tallest, bars_[i].value);
  }
  plot_->xAxis->setTicker(names);
  plot_->xAxis->setRange(-1, std::max(1, static_cast<int>(bars_.size())));
  plot_->yAxis->setRange(0, tallest * headroom);
  // Counts are whole numbers.
  auto counts = QSharedPointer<QCPAxisTickerFixed>::create();
  counts->setTickStep(std::max(1.0, std::ceil(tallest / wantedTicks)));
  plot_->yAxis->setTicker(counts);
  fillTable();
  colorAxes();
  arrange();
  plot_->replot();
}

void ChartView::arrange() {
  const QAbstractItemView& table = *table_;
  const QHeaderView& titles = *table_->horizontalHeader();
  int needed = 2 * table_->frameWidth() + table_->verticalScrollBar()->sizeHint().width();
  for (int column = 0; column < table_->columnCount(); ++column)
    needed += std::max(titles.sectionSizeHint(column), table.sizeHintForColumn(column));
  // On a page that was not shown yet it has no width of its own.
  const int whole = testAttribute(Qt::WA_Resized) ? width() : QWIDGETSIZE_MAX;
  const bool isNarrow = whole < needed + plotLetters * fontMetrics().averageCharWidth();
  parts_->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  table_->setMinimumWidth(isNarrow ? 0 : needed);
  const int room = isNarrow ? whole : whole - needed;
  const QString text = explanation_.isEmpty() ? title_ : title_ + u'\n' + explanation_;
  heading_->setText(wrapped(text, heading_->font(), room - 4 * theme::gap));
  const int line = fontMetrics().lineSpacing();
  plot_->setMinimumHeight((plotLines + static_cast<int>(heading_->text().count(u'\n'))) * line);
  table_->setMinimumHeight(isNarrow ? tableLines * line : 0);
}

void ChartView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

void ChartView::addBar(int place, const Chart::Bar& bar) {
  const QColor ground = palette().base().color();
  auto* bars = new QCPBars(plot_->xAxis, plot_->yAxis);
  bars->setWidth(barWidth);
  bars->setBrush(theme::toQColor(bar.color, palette()));
  bars->setPen(theme::standingOutFrom(ground, palette().text().color(), theme::shapeContrast));
  bars->addData(place, bar.value);
  auto* count = new QCPItemText(plot_);
  count->position->setCoords(place, bar.value);
  count->setPositionAlignment(Qt::AlignHCenter | Qt::AlignBottom);
  count->setText(QString::number(bar.value));
  count->setFont(theme::headingFont(font()));
  count->setColor(palette().text().color());
}

void ChartView::fillTable() {
  table_->setRowCount(static_cast<int>(bars_.size()));
  for (int row = 0; row < table_->rowCount(); ++row) {
    const Chart::Bar& bar = bars_[static_cast<std::size_t>(row)];
    auto* meaning =
        new QTableWidgetItem(swatch(theme::toQColor(bar.color, palette()), palette()),
                             meaningOf_ ? meaningOf_(bar.color, row + 1 == table_->rowCount()) : QString());
    auto* count = new QTableWidgetItem(QString::number(bar.value));
    count->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table_->setItem(row, 0, new QTableWidgetItem(toQString(bar.label)));
    table_->setItem(row, 1, count);
    table_->setItem(row, 2, meaning);
  }
}

void ChartView::colorAxes() {
  const QColor text = palette().text().color();
  const QColor ground = palette().base().color();
  plot_->setBackground(ground);
  heading_->setTextColor(text);
  heading_->setFont(theme::headingFont(font()));
  for (QCPAxis* axis : {plot_->xAxis, plot_->yAxis}) {
    axis->setBasePen(text);
    axis->setTickPen(text);
    axis->setTickLabelColor(text);
    axis->setTickLabelFont(font());
    axis->grid()->setPen(QPen(theme::mixed(ground, text, 0.25), 0, Qt::DotLine));
  }
}

void ChartView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) draw();
  QWidget::changeEvent(event);
}

void ChartView::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  FocusStyle::drawRing(painter, plot_->geometry().adjusted(-1, -1, 1, 1), palette());
}

void ChartView::addActions(HandlerRunner& runner) {
  auto* save = new QAction(u"&Save as Picture…"_s, this);
  save->setShortcut(QKeySequence::Save);
  connect(save, &QAction::triggered, this, [this, &runner] { runner.attempt([this] { saveAsPicture(); }); });
  auto* paper = new QAction(u"&Print…"_s, this);
  paper->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_P);
  connect(paper, &QAction::triggered, this, [this, &runner] { runner.attempt([this] { print(); }); });
  for (QAction* action : {save, paper}) {
    action->setShortcutContext(Qt::WidgetShortcut);
    addAction(action);
  }
  setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ChartView::saveAsPicture() {
  const QString file =
      QFileDialog::getSaveFileName(this, u"Save the Chart"_s, u"chart.png"_s, u"Pictures (*.png)"_s);
  if (file.isEmpty() || plot_->savePng(file, 0, 0, devicePixelRatioF())) return;
  throw std::runtime_error(join(toText(file), " could not be written"));
}

void ChartView::print() {
  QPrinter printer;
  printer.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) return;
  QCPPainter painter(&printer);
  const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
  const double scale =
      std::min(page.width() / double(plot_->width()), page.height() / double(plot_->height()));
  painter.scale(scale, scale);
  plot_->toPainter(&painter);
}

}  // namespace tallywick
