// SPDX-License-Identifier: GPL-3.0-or-later
// Backups of the record book: one press writes one, another names the one to restore.
#pragma once

#include "backup/backup.h"

#include <QDialog>
#include <filesystem>

class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;

namespace tallywick {

class HandlerRunner;

class BackupDialog : public QDialog {
 public:
  BackupDialog(const std::filesystem::path& book, HandlerRunner& runner, QWidget* parent);

  /// Asks whether to restore this backup, and accepts the dialog with it.
  void askToRestore(const QString& source);
  /// The backup to restore once the record book is closed; empty where the user wants none. The dialog was
  /// accepted then.
  const std::filesystem::path& restoreFrom() const { return restoreFrom_; }

 private:
  QWidget* backUpPart();
  QWidget* restorePart();
  BackupForm form() const;
  /// Suggests a dated name beside the record book.
  void suggest();
  /// A new name in the folder of the backup that was written.
  void suggestNext(const std::filesystem::path& written);
  /// Says in which folder the backup will be, which the field may be too narrow for.
  void showPlace();
  void choose();
  void write();
  std::filesystem::path book_;
  HandlerRunner& runner_;
  QComboBox* form_ = nullptr;
  QLineEdit* target_ = nullptr;
  QLabel* place_ = nullptr;
  QLabel* written_ = nullptr;
  std::filesystem::path restoreFrom_;
};

/// Restores the record book, which no window has open, and shows what came of it.
void restoreAndTell(const std::filesystem::path& source, const std::filesystem::path& book);

}  // namespace tallywick
