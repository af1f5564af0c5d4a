// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/ticket_view.h"

#include "core/eras.h"
#include "plays/play_table.h"
#include "plays/ticket.h"
#include "ui/qt/pages/play_actions.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/wording.h"

#include <QAccessible>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace tallywick {

using namespace Qt::StringLiterals;

TicketView::TicketView(PlayActions& actions, QWidget* parent)
    : QWidget(parent),
      actions_(actions),
      numbers_(new QLineEdit(this)),
      extra_(new QLineEdit(this)),
      date_(new QLineEdit(this)),
      dateError_(sentences(this)),
      extraLabel_(new QLabel(this)),
      verdict_(sentences(this)),
      keep_(new QPushButton(u"K&eep It"_s, this)) {
  auto* column = columnIn(this, theme::pageMargin);
  QLabel* about = sentences(this);
  about->setFont(theme::headingFont(about->font()));
  about->setText(u"A ticket is judged by the draw of its date. It is kept only if you ask for it."_s);
  column->addWidget(about);
  auto* form = new QFormLayout;
  form->setHorizontalSpacing(theme::gap);
  form->setVerticalSpacing(theme::gap);
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  numbers_->setPlaceholderText(u"as 5 11 23 42 60"_s);
  date_->setPlaceholderText(u"as 11-18-2026"_s);
  form->addRow(u"Five num&bers:"_s, numbers_);
  extraLabel_->setBuddy(extra_);
  form->addRow(extraLabel_, extra_);
  form->addRow(u"Da&te of the draw:"_s, date_);
  dateError_->hide();
  form->addRow(QString(), dateError_);
  column->addLayout(form);
  auto* judgeButton = new QPushButton(u"&Judge"_s, this);
  auto* line = row();
  line->addWidget(judgeButton);
  line->addWidget(keep_);
  line->addStretch();
  column->addLayout(line);
  verdict_->setFont(theme::headingFont(verdict_->font()));
  column->addWidget(verdict_);
  column->addStretch();
  keep_->setEnabled(false);
  keep_->setToolTip(
      u"Adds the ticket to your played plays, or to the next plays where its draw is to come"_s);
  connect(judgeButton, &QPushButton::clicked, this, &TicketView::judge);
  for (const QLineEdit* edit : {numbers_, extra_, date_}) {
    connect(edit, &QLineEdit::returnPressed, this, &TicketView::judge);
    connect(edit, &QLineEdit::textEdited, this, &TicketView::forget);
  }
  connect(date_, &QLineEdit::textEdited, dateError_, &QLabel::hide);
  connect(date_, &QLineEdit::editingFinished, this, &TicketView::checkDate);
  connect(keep_, &QPushButton::clicked, this, &TicketView::keep);
  numbers_->setAccessibleName(u"Numbers"_s);
  date_->setAccessibleName(u"Date of the draw"_s);
  refresh();
}

void TicketView::refresh() {
  const QString name = toQString(extraBallName(actions_.game().game));
  const QString label = QString(name).replace(u"all"_s, u"&all:"_s);
  if (extraLabel_->text() == label) return;
  extraLabel_->setText(label);
  extra_->setAccessibleName(name);
  forget();
  proposed_ = date_->text();
  proposeDate();
}

void TicketView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  proposeDate();
}

void TicketView::proposeDate() {
  if (date_->text() != proposed_) return;
  const std::optional<Day> newest = newestDrawDay(actions_.game(), actions_.folder());
  const QString date = newest ? toQString(displayDate(*newest)) : QString();
  if (date == proposed_) return;
  forget();
  proposed_ = date;
  date_->setText(date);
  dateError_->hide();
}

bool TicketView::checkDate() {
  const bool isDay = typedDay(toText(date_->text())).has_value();
  const QString error = isDay ? QString() : u"⚠ This is no day: type month, day and year, as 11-18-2026."_s;
  dateError_->setText(error);
  dateError_->setVisible(!isDay);
  date_->setAccessibleDescription(error);
  return isDay;
}

void TicketView::judge() {
  forget();
  if (!checkDate()) return date_->setFocus();
  try {
    const GameInfo& game = actions_.game();
    const std::string numbers = toText(numbers_->text());
    const std::string extra = toText(extra_->text());
    const std::string date = toText(date_->text());
    record_ = ticketRecord(game, {numbers, extra, date});
    const JudgedPlay ticket = judgeTicket(game, actions_.folder(), record_);
    const bool isKept = isAmongPlays(actions_.plays()->judgement, ticket);
    keep_->setEnabled(canBeKept(game, ticket));
    say(toQString(ticketVerdict(game, ticket)) +
        (isKept ? u" It is among your plays already."_s : QString()));
  } catch (const std::exception& error) {
    forget();
    say(QString::fromUtf8(error.what()));
  }
}

void TicketView::keep() {
  PlaySlot file = PlaySlot::committed;
  const std::string record = record_;
  const bool isKept = actions_.make([&](const PlayChanges& changes) {
    file = fileForTicket(judgeTicket(actions_.game(), actions_.folder(), record));
    return changes.add(file, record);
  });
  if (!isKept) return;
  forget();
  say(file == PlaySlot::played ? u"Kept among your played plays. My Plays can undo it."_s
                               : u"Kept among your next plays. My Plays can undo it."_s);
}

void TicketView::say(const QString& text) {
  verdict_->setText(text);
  QAccessibleEvent alert(verdict_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void TicketView::forget() {
  record_.clear();
  keep_->setEnabled(false);
  verdict_->clear();
}

}  // namespace tallywick
