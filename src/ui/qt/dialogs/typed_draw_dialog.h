// SPDX-License-Identifier: GPL-3.0-or-later
// Typing in a draw; what is wrong with a field is written beside it.
#pragma once

#include "core/day.h"
#include "core/games.h"
#include "exports/typed_draws.h"

#include <QDialog>
#include <map>

class QGridLayout;
class QLabel;
class QLineEdit;
class QScrollArea;

namespace tallywick {

class TypedDrawDialog : public QDialog {
 public:
  /// `proposed` is the date to begin with. Accepted once the draw is in the folder.
  TypedDrawDialog(const DataFolder& folder, const GameInfo& game, Day today, Day proposed, QWidget* parent);

  /// What has been done, in words.
  const QString& report() const { return report_; }

 private:
  struct Field {
    QLineEdit* edit;
    QLabel* error;
    QString hint;
  };

  void addField(QGridLayout& form, exports::TypedField field, const QString& label, const QString& hint);
  std::string text(exports::TypedField field) const;
  void showError(exports::TypedField field, const QString& text);
  void add();
  /// Whether the draw is in the folder now.
  bool addChecked(const exports::CheckedDraw& draw, exports::KnownDraw known);

  const DataFolder& folder_;
  const GameInfo& game_;
  Day today_;
  std::map<exports::TypedField, Field> fields_;
  QScrollArea* scroller_;
  QLabel* error_;
  QString report_;
};

}  // namespace tallywick
