// SPDX-License-Identifier: GPL-3.0-or-later
// The draws of both games: what there is and what is missing, and every way to bring more.
#pragma once

#include "core/games.h"
#include "exports/history_report.h"
#include "update/public_exports.h"

#include <QDialog>
#include <functional>
#include <sstream>
#include <vector>

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace tallywick {

class Clock;

class DrawsDialog : public QDialog {
 public:
  DrawsDialog(const DataFolder& folder, const Clock& clock, std::vector<ExportAddress> addresses,
              const GameInfo& first, QWidget* parent);

  /// Whether files may have changed.
  bool hasChanged() const { return hasChanged_; }

  /// Asks for the file of the game's draws as soon as the dialog is shown.
  void importAtOnce();

  /// Called after each change of files.
  std::function<void()> onChanged;

 private:
  const GameInfo& game() const;
  Day today() const;
  QBoxLayout* gameRow();
  QBoxLayout* actionRows();
  QPushButton* action(const QString& name, const QString& text, const QString& tip,
                      const std::function<void()>& act);
  void addAmounts(QBoxLayout& column);
  /// Reads the folder and shows the game anew.
  void showGame();
  void showAmounts();
  /// Leaves only what made-up draws allow, and says why in the tips of the rest.
  void greyForMadeUp(bool isMadeUp);
  void showReport(const QString& text);
  /// Runs what may change files; what fails is shown.
  void change(const std::function<void()>& act);

  void fetch();
  QString askForFile(const QString& title);
  void importDraws();
  void importAmounts();
  void typeIn();
  void remove();
  void saveAmounts();

  const DataFolder& folder_;
  const Clock& clock_;
  std::vector<ExportAddress> addresses_;
  QLineEdit* address_ = nullptr;
  exports::HistoryReport history_;
  QComboBox* games_;
  QLabel* summary_;
  QLabel* report_;
  QTableWidget* amounts_;
  QPushButton* importAmounts_ = nullptr;
  QPushButton* typeIn_ = nullptr;
  QPushButton* remove_ = nullptr;
  QPushButton* save_ = nullptr;
  bool hasChanged_ = false;
};

}  // namespace tallywick
