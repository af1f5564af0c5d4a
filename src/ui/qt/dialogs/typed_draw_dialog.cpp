// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/typed_draw_dialog.h"

#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/wording.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <exception>

namespace tallywick {

using namespace Qt::StringLiterals;
using exports::TypedField;

TypedDrawDialog::TypedDrawDialog(const DataFolder& folder, const GameInfo& game, Day today, Day proposed,
                                 QWidget* parent)
    : QDialog(parent), folder_(folder), game_(game), today_(today), error_(new QLabel) {
  const bool isPowerBall = game.game == Game::powerBall;
  setWindowTitle(u"Type In a Draw of %1"_s.arg(toQString(game.name)));
  auto* fields = new QWidget;
  auto* form = new QGridLayout(fields);
  form->setContentsMargins(0, 0, theme::gap, 0);
  form->setColumnStretch(1, 1);
  form->setHorizontalSpacing(theme::gap);
  form->setVerticalSpacing(theme::gap);
  addField(*form, TypedField::date, u"&Date:"_s, u"Month, day and year: MM-DD-YYYY"_s);
  addField(*form, TypedField::numbers, u"&White balls:"_s,
           u"Five numbers with blanks between, in any order"_s);
  addField(*form, TypedField::extra, isPowerBall ? u"&PowerBall:"_s : u"&Mega Ball:"_s, u"One number"_s);
  addField(*form, TypedField::multiplier, u"M&ultiplier:"_s, u"Empty if there was none"_s);
  if (isPowerBall) {
    addField(*form, TypedField::doublePlay, u"D&ouble Play:"_s,
             u"Five white balls and the PowerBall; empty if not known"_s);
  }
  addField(*form, TypedField::amount, u"&Amount:"_s,
           u"In million dollars, such as 150; empty if not known"_s);
  addField(*form, TypedField::marks, u"Mar&ks:"_s, u"How many tickets won the amount; empty for none"_s);
  fields_.at(TypedField::date).edit->setText(toQString(displayDate(proposed)));

  error_->setTextFormat(Qt::PlainText);
  error_->setWordWrap(true);
  error_->hide();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  auto* accept = buttons->addButton(u"Add &the Draw"_s, QDialogButtonBox::AcceptRole);
  accept->setObjectName(u"addDraw"_s);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { add(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = columnIn(this, theme::pageMargin);
  scroller_ = scrolled(fields);
  column->addWidget(scroller_, 1);
  column->addWidget(error_);
  column->addWidget(buttons);
  const int width = sentencesWidth(*this, 64 * theme::gap);
  const int height = form->heightForWidth(width - 2 * theme::pageMargin) + buttons->sizeHint().height() +
                     2 * theme::pageMargin + 2 * theme::gap;
  resizeOnScreen(*this, {width, height});
  // The date is there already.
  fields_.at(TypedField::numbers).edit->setFocus();
}

void TypedDrawDialog::addField(QGridLayout& form, TypedField field, const QString& label,
                               const QString& hint) {
  const Field made{new QLineEdit, new QLabel, hint};
  auto* explanation = new QLabel(hint);
  explanation->setWordWrap(true);
  made.edit->setAccessibleDescription(hint);
  made.edit->setObjectName(u"typed%1"_s.arg(static_cast<int>(field)));
  made.error->setTextFormat(Qt::PlainText);
  made.error->setWordWrap(true);
  made.error->hide();
  auto* column = new QVBoxLayout;
  column->setSpacing(theme::halfGap);
  column->addWidget(made.edit);
  column->addWidget(explanation);
  column->addWidget(made.error);
  auto* name = new QLabel(label);
  name->setBuddy(made.edit);
  const int line = form.rowCount();
  form.addWidget(name, line, 0, Qt::AlignTop);
  form.addLayout(column, line, 1);
  fields_.emplace(field, made);
}

std::string TypedDrawDialog::text(TypedField field) const {
  const auto found = fields_.find(field);
  return found == fields_.end() ? std::string() : toText(found->second.edit->text());
}

void TypedDrawDialog::showError(TypedField field, const QString& text) {
  const Field& shown = fields_.at(field);
  shown.error->setText(u"⚠ "_s + text);
  shown.error->show();
  shown.edit->setAccessibleDescription(text);
  shown.edit->setFocus();
  shown.edit->selectAll();
  // The error gets its place first.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  scroller_->ensureWidgetVisible(shown.error);
}

void TypedDrawDialog::add() {
  for (const auto& [field, shown] : fields_) {
    shown.error->hide();
    shown.edit->setAccessibleDescription(shown.hint);
  }
  error_->hide();
  try {
    const exports::CheckedDraw draw =
        exports::checkedDraw(game_.game,
                             {text(TypedField::date), text(TypedField::numbers), text(TypedField::extra),
                              text(TypedField::multiplier), text(TypedField::doublePlay),
                              text(TypedField::amount), text(TypedField::marks)},
                             today_);
    if (addChecked(draw, exports::KnownDraw::stays)) accept();
  } catch (const exports::TypingError& error) {
    showError(error.field, toQString(error.what()));
  } catch (const std::exception& error) {
    error_->setText(u"⚠ "_s + toQString(error.what()));
    error_->show();
  }
}

bool TypedDrawDialog::addChecked(const exports::CheckedDraw& draw, exports::KnownDraw known) {
  const QString date = toQString(displayDate(draw.draw.day));
  try {
    const exports::MergeReport report = exports::addDraw(folder_, game_.game, draw, known);
    const QString done = !report.changesFiles  ? u"is known already; nothing was changed."_s
                         : report.newDraws > 0 ? u"was added."_s
                                               : u"was changed."_s;
    report_ = u"%1: the draw of %2 %3"_s.arg(toQString(game_.name), date, done);
    return true;
  } catch (const exports::DrawIsKnown& error) {
    QMessageBox box(QMessageBox::Question, windowTitle(),
                    u"%1.\n\nReplace what is known of the draw of %2?"_s.arg(toQString(error.what()), date),
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes && addChecked(draw, exports::KnownDraw::isReplaced);
  }
}

}  // namespace tallywick
