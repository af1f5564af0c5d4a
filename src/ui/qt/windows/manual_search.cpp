// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/manual_search.h"

#include "ui/qt/parts/layouts.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// How many lines of text the list has room for before it scrolls.
constexpr int mostLines = 7;

/// A list as high as its lines.
class PageList : public QListWidget {
 public:
  using QListWidget::QListWidget;
  QSize sizeHint() const override {
    int height = 2 * frameWidth();
    for (int i = 0; i < count(); ++i) height += sizeHintForRow(i) + 2 * spacing();
    return {QListWidget::sizeHint().width(), std::min(height, mostLines * fontMetrics().lineSpacing())};
  }
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }
};

}  // namespace

ManualSearch::ManualSearch(const QString& folder, QWidget* parent)
    : QWidget(parent),
      index_(folder),
      field_(new QLineEdit(this)),
      count_(sentences(this)),
      list_(new PageList(this)) {
  auto* column = columnIn(this, theme::gap);
  auto* line = row();
  auto* label = new QLabel(u"&Find:"_s, this);
  label->setBuddy(field_);
  line->addWidget(label);
  line->addWidget(field_, 1);
  column->addLayout(line);
  column->addWidget(count_);
  column->addWidget(list_);
  field_->setAccessibleName(u"Find in the manual"_s);
  field_->setPlaceholderText(u"A word, such as prize"_s);
  field_->setClearButtonEnabled(true);
  field_->installEventFilter(this);
  list_->setAccessibleName(u"Pages found"_s);
  list_->setAlternatingRowColors(true);
  list_->setSpacing(theme::halfGap / 2);
  list_->setWordWrap(true);
  list_->setTextElideMode(Qt::ElideNone);
  list_->setResizeMode(QListView::Adjust);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
  connect(field_, &QLineEdit::textChanged, this, &ManualSearch::search);
  connect(field_, &QLineEdit::returnPressed, this, &ManualSearch::goToCurrent);
  connect(list_, &QListWidget::itemClicked, this, &ManualSearch::goToCurrent);
  connect(list_, &QListWidget::itemActivated, this, &ManualSearch::goToCurrent);
  search();
  // Between the player's steps, a page at a time.
  auto* reading = new QTimer(this);
  connect(reading, &QTimer::timeout, this, [this, reading] {
    if (!index_.readNext()) reading->stop();
  });
  reading->start(0);
}

void ManualSearch::begin() {
  field_->setFocus(Qt::ShortcutFocusReason);
  field_->selectAll();
}

bool ManualSearch::end() {
  if (field_->text().isEmpty()) return false;
  field_->clear();
  return true;
}

QRegularExpression ManualSearch::wordsToLight() const {
  return ManualIndex::anyOf(field_->text());
}

bool ManualSearch::eventFilter(QObject* watched, QEvent* event) {
  if (watched == field_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    const int step = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
    const int row = list_->currentRow() + step;
    if (step != 0 && row >= 0 && row < list_->count()) list_->setCurrentRow(row);
    if (step != 0) return true;
  }
  return QWidget::eventFilter(watched, event);
}

void ManualSearch::search() {
  const QString words = field_->text().trimmed();
  while (!words.isEmpty() && index_.readNext()) continue;
  const FoundPlaces found = words.isEmpty() ? FoundPlaces{} : index_.find(words);
  places_ = found.places;
  list_->clear();
  for (const FoundPlace& place : places_) {
    const bool isTitle = place.sentence == place.title;
    list_->addItem(isTitle ? place.title : u"%1\n%2"_s.arg(place.title, place.sentence));
  }
  list_->setCurrentRow(0);
  list_->updateGeometry();
  list_->setVisible(!places_.empty());
  count_->setVisible(!words.isEmpty());
  const QString pages = places_.size() == 1 ? u"1 page"_s : u"%1 pages"_s.arg(places_.size());
  if (words.isEmpty()) {
    say({});
  } else if (places_.empty()) {
    say(u"No page has this. Try another word."_s);
  } else if (!found.areWhole) {
    say(u"No page has all these words; %1 with some of them. Up and Down choose, Enter opens."_s.arg(pages));
  } else {
    say(u"%1. Up and Down choose, Enter opens."_s.arg(pages));
  }
  if (onSearched) onSearched();
}

void ManualSearch::goToCurrent() {
  const int row = list_->currentRow();
  if (row < 0 || !onChosen) return;
  const FoundPlace& place = places_[static_cast<std::size_t>(row)];
  onChosen(place.page, place.position);
}

void ManualSearch::say(const QString& text) {
  if (text == count_->text()) return;
  count_->setText(text);
  count_->setAccessibleName(text);
  QAccessibleEvent alert(count_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace tallywick
