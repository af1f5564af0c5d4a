// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/settings_dialog.h"

#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/wording.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

const QString exportExplanation =
    u"The web address of the game's public export; empty for that of the state of New York's open data."_s;

const QString priceExplanation = u"What a play costs in dollars, for the sums of My Plays; empty for none."_s;

/// A field with its explanation close below it.
void addField(QFormLayout& form, const QString& label, QWidget& field, const QString& explanation) {
  auto* column = new QVBoxLayout;
  column->setSpacing(theme::halfGap);
  column->addWidget(&field);
  auto* text = new QLabel(explanation);
  text->setWordWrap(true);
  column->addWidget(text);
  auto* name = new QLabel(label);
  name->setBuddy(&field);
  form.addRow(name, column);
  field.setAccessibleDescription(explanation);
}

std::string textOr(std::string_view whenEmpty, const QLineEdit& edit) {
  const std::string text = toText(edit.text().trimmed());
  return text.empty() ? std::string(whenEmpty) : text;
}

}  // namespace

SettingsDialog::SettingsDialog(const Settings& settings, QWidget* parent)
    : QDialog(parent), source_(new QComboBox), tls_(new QCheckBox(u"Only with &encryption"_s)) {
  setWindowTitle(u"Settings"_s);
  // On a screen too small for all fields they scroll.
  auto* fields = new QWidget;
  auto* scroller = new QScrollArea;
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setWidgetResizable(true);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidget(fields);
  auto* form = new QFormLayout(fields);
  form->setContentsMargins(0, 0, theme::gap, 0);
  form->setHorizontalSpacing(theme::gap);
  form->setVerticalSpacing(theme::pageMargin);
  source_->addItem(u"Public exports of draws"_s);
  source_->addItem(u"An update server"_s);
  source_->setCurrentIndex(settings.source == Settings::Source::server ? 1 : 0);
  addField(*form, u"Updates &come from:"_s, *source_,
           u"Public exports need the two addresses below; an update server needs the fields after them."_s);
  powerBallDraws_ = addText(*form, u"&PowerBall draws:"_s, settings.powerBallDraws, exportExplanation);
  megaMillionsDraws_ =
      addText(*form, u"&Mega Millions draws:"_s, settings.megaMillionsDraws, exportExplanation);
  server_ = addText(*form, u"&Update server:"_s, settings.server,
                    u"Its name or address, with a colon and a port where that is not 21."_s);
  tls_->setChecked(settings.tls == Settings::Tls::required);
  addField(*form, QString(), *tls_, u"Asks the server for TLS and sends no password without it."_s);
  webSite_ = addText(*form, u"Web &site:"_s, settings.webSite,
                     u"The page about the games that the Help menu opens."_s);
  webHelp_ = addText(*form, u"Web &help:"_s, settings.webHelp, u"The help page that the Help menu opens."_s);
  powerBallPrice_ =
      addText(*form, u"PowerBall p&rice:"_s, priceText(settings.powerBallPrice), priceExplanation);
  megaMillionsPrice_ =
      addText(*form, u"Mega Mi&llions price:"_s, priceText(settings.megaMillionsPrice), priceExplanation);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = columnIn(this, theme::pageMargin);
  column->addWidget(scroller, 1);
  column->addWidget(buttons);
  const int width = sentencesWidth(*this, 80 * theme::gap);
  // Large text has its labels over the fields: nobody scrolls sideways.
  const int scrollBar = scroller->verticalScrollBar()->sizeHint().width();
  if (form->minimumSize().width() > width - 2 * theme::pageMargin - scrollBar)
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
  const int height = form->heightForWidth(width - 2 * theme::pageMargin) + buttons->sizeHint().height() +
                     2 * theme::pageMargin + 2 * theme::gap;
  resize(width, std::min(height, screen()->availableGeometry().height() * 9 / 10));
}

QLineEdit* SettingsDialog::addText(QFormLayout& form, const QString& label, const std::string& value,
                                   const QString& explanation) {
  auto* edit = new QLineEdit(toQString(value));
  edit->setCursorPosition(0);
  // The settings file has a value between quotes.
  edit->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[^\"]*"_s), edit));
  addField(form, label, *edit, explanation);
  return edit;
}

Settings SettingsDialog::settings() const {
  Settings settings;
  settings.source = source_->currentIndex() == 1 ? Settings::Source::server : Settings::Source::publicExports;
  settings.powerBallDraws = textOr(powerBallExport, *powerBallDraws_);
  settings.megaMillionsDraws = textOr(megaMillionsExport, *megaMillionsDraws_);
  settings.server = toText(server_->text().trimmed());
  settings.tls = tls_->isChecked() ? Settings::Tls::required : Settings::Tls::off;
  settings.webSite = toText(webSite_->text().trimmed());
  settings.webHelp = toText(webHelp_->text().trimmed());
  settings.powerBallPrice = priceFrom(toText(powerBallPrice_->text().trimmed()));
  settings.megaMillionsPrice = priceFrom(toText(megaMillionsPrice_->text().trimmed()));
  return settings;
}

}  // namespace tallywick
