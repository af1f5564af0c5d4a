// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_list.h"

#include "core/text.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_ball.h"
#include "ui/qt/parts/line_delegate.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_text.h"
#include "ui/qt/parts/theme.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>
#include <algorithm>
#include <utility>

namespace tallywick {

namespace {

constexpr int usualRows = 8;
constexpr int usualColumns = 40;
constexpr int leastColumns = 16;

QString shown(std::string_view line) {
  return QString::fromStdString(asUtf8(line));
}

}  // namespace

LineListModel::LineListModel(const TextLines& lines, QObject* parent)
    : QAbstractListModel(parent), lines_(lines) {
  measure();
}

void LineListModel::reset() {
  beginResetModel();
  measure();
  endResetModel();
}

void LineListModel::measure() {
  rows_ = static_cast<int>(lines_.size());
  longest_ = 0;
  for (std::size_t row = 0; row < lines_.size(); ++row) longest_ = std::max(longest_, lines_[row].size());
}

void LineListModel::setStandOut(StandOut standsOut, const QString& meaning) {
  standsOut_ = std::move(standsOut);
  meaning_ = meaning;
  if (rows_ > 0) Q_EMIT dataChanged(index(0), index(rows_ - 1));
}

LineHighlights LineListModel::highlightsOf(std::string_view line) const {
  return highlight_ ? highlight_(line) : LineHighlights();
}

bool LineListModel::standsOut(std::size_t row) const {
  return standsOut_ && standsOut_(row, lines_[row]);
}

int LineListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

QVariant LineListModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  if (!index.isValid() || row >= lines_.size()) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return shown(lines_[row]);
    case Qt::AccessibleTextRole: {
      QString text = shown(lines_[row]).simplified();
      if (standsOut(row)) text += QStringLiteral(", ") + meaning_;
      const LineHighlights found = highlightsOf(lines_[row]);
      if (!found.matched.empty())
        text += QStringLiteral(", matched ") + QString::fromStdString(found.matched);
      if (!found.prize.empty()) text += QStringLiteral(", prize ") + QString::fromStdString(found.prize);
      return text;
    }
    case StandsOutRole:
      return standsOut(row);
    default:
      return {};
  }
}

LineList::LineList(QWidget* parent) : QListView(parent) {
  setSelectionMode(ExtendedSelection);
  setUniformItemSizes(true);
  setVerticalScrollMode(ScrollPerItem);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideNone);
  setItemDelegate(new LineDelegate(*this));
  new ListFace(this);
}

LineList::LineList(const TextLines& lines, QWidget* parent) : LineList(parent) {
  setModel(new LineListModel(lines, this));
}

LineListModel* LineList::lineModel() const {
  return qobject_cast<LineListModel*>(model());
}

void LineList::showColumns(const LineColumns& columns, Game game) {
  game_ = game;
  if (header_ == nullptr) {
    header_ = new LineHeader(this);
    header_->setVisible(!headerHidden_);
    connect(header_, &QHeaderView::sectionResized, this, [this] { scheduleDelayedItemsLayout(); });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, header_, &QHeaderView::setOffset);
  }
  viewport()->update();
  if (header_->columns() == columns) return;
  header_->setColumns(columns);
  header_->fitTo(font());
  updateGeometry();
  updateGeometries();
}

void LineList::hideHeader() {
  headerHidden_ = true;
  if (header_ != nullptr) header_->hide();
}

const LineColumns& LineList::columns() const {
  static const LineColumns none;
  return header_ != nullptr ? header_->columns() : none;
}

void LineList::setSortable(std::function<void(int column)> sortBy) {
  header_->setSectionsClickable(true);
  header_->setSortIndicatorShown(true);
  header_->fitTo(font());
  connect(header_, &QHeaderView::sectionClicked, this, std::move(sortBy));
}

void LineList::reload() {
  if (beforeReload) beforeReload();
  if (LineListModel* lines = lineModel()) lines->reset();
  fitHeader();
}

void LineList::fitHeader() {
  const LineListModel* lines = lineModel();
  if (header_ == nullptr || lines == nullptr) return;
  // One of the first lines fits where any does.
  constexpr std::size_t looked = 8;
  const std::size_t count = std::min(lines->lines().size(), looked);
  std::size_t first = 0;
  while (first < count && !cellsOf(columns(), lines->lines()[first])) ++first;
  const bool fits = count == 0 || first < count;
  if (std::exchange(headerFits_, fits) == fits) return;
  header_->setVisible(showsHeader());
  updateGeometry();
  updateGeometries();
}

void LineList::setEmphasis(std::vector<std::string> texts) {
  if (emphasis_ == texts) return;
  emphasised_.clear();
  emphasis_ = std::move(texts);
  emphasised_.insert(emphasis_.begin(), emphasis_.end());
  viewport()->update();
}

void LineList::setPlaceholder(const QString& text) {
  placeholder_ = text;
  viewport()->update();
}

QString LineList::selectedText() const {
  const LineListModel* lines = lineModel();
  if (!lines || !selectionModel()) return {};
  QItemSelection ranges = selectionModel()->selection();
  std::sort(ranges.begin(), ranges.end(),
            [](const auto& one, const auto& other) { return one.top() < other.top(); });
  std::string text;
  for (const QItemSelectionRange& range : ranges) {
    for (int row = range.top(); row <= range.bottom(); ++row)
      text.append(asUtf8(lines->lines()[static_cast<std::size_t>(row)])) += '\n';
  }
  if (!text.empty()) text.pop_back();
  return QString::fromStdString(text);
}

void LineList::keyboardSearch(const QString& typed) {
  const LineListModel* lines = lineModel();
  if (!lines) return QListView::keyboardSearch(typed);
  if (lines->rowCount() == 0) return;
  const int pause = QGuiApplication::styleHints()->keyboardInputInterval();
  const bool goesOn = sinceTyped_.isValid() && sinceTyped_.elapsed() < pause && !typed_.isEmpty();
  typed_ = goesOn ? typed_ + typed : typed;
  sinceTyped_.start();
  const int current = currentIndex().row();
  const int start = goesOn ? std::max(current, 0) : current + 1;
  const std::size_t found = findLine(lines->lines(), typed_.toStdString(), static_cast<std::size_t>(start));
  if (found < lines->lines().size()) setCurrentIndex(model()->index(static_cast<int>(found), 0));
}

int LineList::textWidth(int characters) const {
  return static_cast<int>(characters * QFontMetricsF(font()).horizontalAdvance(QLatin1Char('0'))) +
         2 * theme::halfGap + 1;
}

QSize LineList::lineSize() const {
  const LineListModel* lines = lineModel();
  const int text = textWidth(lines ? static_cast<int>(lines->longestLine()) : 0);
  const QFontMetricsF metrics(font());
  const auto hasBalls = [](const LineColumn& column) {
    return column.field == LineField::whites || column.field == LineField::ball;
  };
  int height = static_cast<int>(metrics.height()) + theme::halfGap;
  if (std::ranges::any_of(columns(), hasBalls)) height = std::max(height, lineBallSide(metrics) + 2);
  const bool hasColumns = header_ != nullptr && headerFits_;
  return {hasColumns ? std::max(text, header_->neededWidth()) : text, height};
}

QSize LineList::sizeOf(int width, int rows) const {
  const int frame = 2 * frameWidth();
  const int header = showsHeader() ? header_->sizeHint().height() : 0;
  return {width + frame + verticalScrollBar()->sizeHint().width(),
          rows * lineSize().height() + frame + header};
}

QSize LineList::sizeHint() const {
  return sizeOf(header_ != nullptr ? header_->neededWidth() : textWidth(usualColumns), usualRows);
}

QSize LineList::minimumSizeHint() const {
  return sizeOf(textWidth(leastColumns), leastRows_);
}

void LineList::updateGeometries() {
  const QMargins margins(0, showsHeader() ? header_->sizeHint().height() : 0, 0, 0);
  if (viewportMargins() != margins) setViewportMargins(margins);
  QListView::updateGeometries();
  if (!showsHeader()) return;
  const QRect lines = viewport()->geometry();
  header_->setGeometry(lines.left(), lines.top() - margins.top(), lines.width(), margins.top());
}

void LineList::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (placeholder_.isEmpty() || !model() || model()->rowCount() > 0) return;
  QPainter painter(viewport());
  QFont face = QGuiApplication::font();
  face.setItalic(true);
  painter.setFont(face);
  const QColor ground = palette().color(QPalette::Base);
  painter.setPen(
      theme::standingOutFrom(ground, palette().color(QPalette::PlaceholderText), theme::textContrast));
  painter.drawText(viewport()->rect().adjusted(theme::gap, theme::gap, -theme::gap, -theme::gap),
                   Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, placeholder_);
}

void LineList::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange && header_ != nullptr) header_->fitTo(font());
}

}  // namespace tallywick
