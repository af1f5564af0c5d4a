// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/backup_dialog.h"

#include "core/clock.h"
#include "core/outside.h"
#include "ui/qt/dialogs/first_start.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/wording.h"

#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QLabel* explanation(QWidget* parent, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

/// The waiting cursor while a backup is written or restored.
class Waiting {
 public:
  Waiting() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Waiting() { QGuiApplication::restoreOverrideCursor(); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
};

}  // namespace

BackupDialog::BackupDialog(const std::filesystem::path& book, HandlerRunner& runner, QWidget* parent)
    : QDialog(parent), book_(book), runner_(runner) {
  setWindowTitle(u"Backup"_s);
  auto* content = new QWidget;
  auto* parts = columnIn(content);
  parts->addWidget(backUpPart());
  parts->addSpacing(theme::gap);
  parts->addWidget(restorePart());
  parts->addStretch();
  auto* column = columnIn(this, theme::pageMargin);
  column->addWidget(scrolled(content), 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  suggest();
  const int width = sentencesWidth(*this, 80 * theme::gap);
  const int height = parts->heightForWidth(width - 2 * theme::pageMargin) + buttons->sizeHint().height() +
                     2 * theme::pageMargin + theme::gap;
  resizeOnScreen(*this, {width, height});
}

QWidget* BackupDialog::backUpPart() {
  auto* box = new QWidget(this);
  auto* column = columnIn(box);
  column->addWidget(heading(box, u"Back Up"_s));
  column->addWidget(explanation(
      box,
      u"Every file of the record book in %1 is copied, read back and compared. The password for an update server is among them."_s
          .arg(pathText(book_))));
  form_ = new QComboBox(box);
  form_->addItem(u"A zip file"_s);
  form_->addItem(u"A folder"_s);
  form_->setAccessibleName(u"Form of the backup"_s);
  target_ = new QLineEdit(box);
  target_->setAccessibleName(u"Backup to write"_s);
  auto* formLabel = new QLabel(u"&As:"_s, box);
  formLabel->setBuddy(form_);
  auto* targetLabel = new QLabel(u"&To:"_s, box);
  targetLabel->setBuddy(target_);
  auto* chooser = new QPushButton(u"&Choose…"_s, box);
  auto* line = row();
  line->addWidget(formLabel);
  line->addWidget(form_);
  line->addWidget(targetLabel);
  line->addWidget(target_, 1);
  line->addWidget(chooser);
  column->addLayout(line);
  place_ = explanation(box, {});
  column->addWidget(place_);
  connect(target_, &QLineEdit::textChanged, this, &BackupDialog::showPlace);
  auto* writer = new QPushButton(u"&Back Up"_s, box);
  writer->setDefault(true);
  written_ = explanation(box, {});
  auto* result = row();
  result->addWidget(writer);
  result->addWidget(written_, 1);
  column->addLayout(result);
  connect(form_, &QComboBox::currentIndexChanged, this, &BackupDialog::suggest);
  connect(chooser, &QPushButton::clicked, this, &BackupDialog::choose);
  connect(writer, &QPushButton::clicked, this, &BackupDialog::write);
  return box;
}

QWidget* BackupDialog::restorePart() {
  auto* box = new QWidget(this);
  auto* column = columnIn(box);
  column->addWidget(heading(box, u"Restore"_s));
  column->addWidget(explanation(
      box,
      u"The record book becomes what a backup contains. What it is now stays beside it, in a folder with the date in its name."_s));
  auto* fromZip = new QPushButton(u"From a &Zip File…"_s, box);
  auto* fromFolder = new QPushButton(u"From a &Folder…"_s, box);
  auto* line = row();
  line->addWidget(fromZip);
  line->addWidget(fromFolder);
  line->addStretch();
  column->addLayout(line);
  const QString here = pathText(book_.parent_path());
  connect(fromZip, &QPushButton::clicked, this, [this, here] {
    askToRestore(
        QFileDialog::getOpenFileName(this, u"Restore from a Zip File"_s, here, u"Zip files (*.zip)"_s));
  });
  connect(fromFolder, &QPushButton::clicked, this, [this, here] {
    askToRestore(QFileDialog::getExistingDirectory(this, u"Restore from a Folder"_s, here));
  });
  return box;
}

BackupForm BackupDialog::form() const {
  return form_->currentIndex() == 0 ? BackupForm::zip : BackupForm::folder;
}

void BackupDialog::suggest() {
  runner_.attempt([this] { target_->setText(pathText(datedBackup(book_, SystemClock(), form()))); });
}

void BackupDialog::suggestNext(const std::filesystem::path& written) {
  const std::filesystem::path dated = datedBackup(book_, SystemClock(), form());
  const QString ending = form() == BackupForm::zip ? u".zip"_s : QString();
  const QString name = pathText(dated.filename()).chopped(ending.size());
  std::filesystem::path next = written.parent_path() / dated.filename();
  std::error_code ignored;
  for (int number = 2; std::filesystem::exists(next, ignored); ++number)
    next = written.parent_path() / toPath(u"%1 %2%3"_s.arg(name).arg(number).arg(ending));
  target_->setText(pathText(next));
}

void BackupDialog::showPlace() {
  const std::filesystem::path target = toPath(target_->text().trimmed());
  place_->setText(u"Folder: %1\nName: %2"_s.arg(pathText(target.parent_path()), pathText(target.filename())));
}

void BackupDialog::choose() {
  QString chosen;
  if (form() == BackupForm::zip) {
    chosen = QFileDialog::getSaveFileName(this, u"Back Up to a Zip File"_s, target_->text(),
                                          u"Zip files (*.zip)"_s);
  } else {
    const QString folder =
        QFileDialog::getExistingDirectory(this, u"Back Up into a Folder"_s, pathText(book_.parent_path()));
    const auto name = toPath(target_->text()).filename();
    if (!folder.isEmpty()) chosen = pathText(toPath(folder) / name);
  }
  if (!chosen.isEmpty()) target_->setText(chosen);
}

void BackupDialog::write() {
  written_->clear();
  runner_.attempt([this] {
    const Waiting waiting;
    const auto target = toPath(target_->text().trimmed());
    if (target.empty()) throw std::runtime_error("The backup needs a name.");
    if (form() != backupFormOf(target)) {
      throw std::runtime_error(form() == BackupForm::zip ? "The name of a zip file ends in \".zip\"."
                                                         : "The name of a folder does not end in \".zip\".");
    }
    written_->setText(toQString(reportOf(backUp(book_, target), target)));
    suggestNext(target);
    QAccessibleEvent alert(written_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
  });
}

void BackupDialog::askToRestore(const QString& source) {
  if (source.isEmpty()) return;
  QMessageBox box(QMessageBox::Question, toQString(programTitle),
                  u"Restore the record book in %1 from %2?"_s.arg(pathText(book_), source),
                  QMessageBox::NoButton, this);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(u"All windows close and open again. What the record book is now stays beside it."_s);
  auto* restoring = box.addButton(u"&Restore"_s, QMessageBox::AcceptRole);
  box.setDefaultButton(box.addButton(QMessageBox::Cancel));
  box.exec();
  if (box.clickedButton() != restoring) return;
  restoreFrom_ = toPath(source);
  accept();
}

void restoreAndTell(const std::filesystem::path& source, const std::filesystem::path& book) {
  try {
    Restored restored;
    {
      const Waiting waiting;
      restored = restore(source, book, SystemClock());
    }
    QMessageBox box(QMessageBox::Information, toQString(programTitle),
                    u"%1 files were restored and compared."_s.arg(restored.files), QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    if (!restored.earlier.empty())
      box.setInformativeText(u"The earlier record book is in %1."_s.arg(pathText(restored.earlier)));
    box.exec();
  } catch (const std::exception& error) {
    showWarning(u"The backup was not restored: %1"_s.arg(QString::fromUtf8(error.what())));
  }
}

}  // namespace tallywick
