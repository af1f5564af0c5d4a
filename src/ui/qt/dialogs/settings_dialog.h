// SPDX-License-Identifier: GPL-3.0-or-later
// The settings, each with a line that explains it.
#pragma once

#include "settings/settings.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;

namespace tallywick {

class SettingsDialog : public QDialog {
 public:
  SettingsDialog(const Settings& settings, QWidget* parent);
  /// What the dialog shows. Raises std::invalid_argument for a price that is none.
  Settings settings() const;

 private:
  QLineEdit* addText(QFormLayout& form, const QString& label, const std::string& value,
                     const QString& explanation);

  QComboBox* source_;
  QLineEdit* powerBallDraws_;
  QLineEdit* megaMillionsDraws_;
  QLineEdit* server_;
  QCheckBox* tls_;
  QLineEdit* webSite_;
  QLineEdit* webHelp_;
  QLineEdit* powerBallPrice_;
  QLineEdit* megaMillionsPrice_;
};

}  // namespace tallywick
