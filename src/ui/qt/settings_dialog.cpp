#include "ui/qt/settings_dialog.h"

#include "ui/qt/layouts.h"
#include "ui/qt/wording.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

void addExplanation(QFormLayout& form, const QString& text, QWidget& field) {
  auto* label = new QLabel(text);
  label->setWordWrap(true);
  form.addRow(QString(), label);
  field.setAccessibleDescription(text);
}

}  // namespace

SettingsDialog::SettingsDialog(const Settings& settings, QWidget* parent)
    : QDialog(parent), tls_(new QCheckBox(u"Only with &encryption"_s)) {
  setWindowTitle(u"Settings"_s);
  auto* form = new QFormLayout;
  form->setSpacing(theme::gap);
  server_ = addText(*form, u"&Update server:"_s, settings.server,
                    u"Its name or address, with a colon and a port where that is not 21."_s);
  tls_->setChecked(settings.tls == Settings::Tls::required);
  form->addRow(QString(), tls_);
  addExplanation(*form, u"Asks the server for TLS and sends no password without it."_s, *tls_);
  webSite_ = addText(*form, u"Web &site:"_s, settings.webSite,
                     u"The page about the games that the Help menu opens."_s);
  webHelp_ = addText(*form, u"Web &help:"_s, settings.webHelp, u"The help page that the Help menu opens."_s);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = columnIn(this, theme::pageMargin);
  column->addLayout(form);
  column->addStretch();
  column->addWidget(buttons);
  resize(60 * theme::gap, sizeHint().height());
}

QLineEdit* SettingsDialog::addText(QFormLayout& form, const QString& label, const std::string& value,
                                   const QString& explanation) {
  auto* edit = new QLineEdit(toQString(value));
  // The settings file holds a value between quotes.
  edit->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[^\"]*"_s), edit));
  form.addRow(label, edit);
  addExplanation(form, explanation, *edit);
  return edit;
}

Settings SettingsDialog::settings() const {
  Settings settings;
  settings.server = toText(server_->text().trimmed());
  settings.tls = tls_->isChecked() ? Settings::Tls::required : Settings::Tls::off;
  settings.webSite = toText(webSite_->text().trimmed());
  settings.webHelp = toText(webHelp_->text().trimmed());
  return settings;
}

}  // namespace tallywick
