// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/first_start.h"

#include "app/data_folder_choice.h"
#include "core/file_commit.h"
#include "core/random.h"
#include "core/runtime_error.h"
#include "core/surroundings.h"
#include "setup/new_folder.h"
#include "ui/qt/parts/wording.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <iostream>

namespace tallywick {

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

namespace {

const QString lastFolderKey = u"lastFolder"_s;

bool makeSample(const fs::path& folder) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  QString failure;
  try {
    setup::makeSampleFolder(folder, entropy());
  } catch (const std::exception& error) {
    failure = QString::fromUtf8(error.what());
  }
  QGuiApplication::restoreOverrideCursor();
  if (!failure.isEmpty())
    tell(u"The record book in %1 could not be made: %2"_s.arg(pathText(folder), failure));
  return failure.isEmpty();
}

/// A record book that the user points at; nothing where it is none.
std::optional<fs::path> askForFolder() {
  const QString chosen = QFileDialog::getExistingDirectory(nullptr, u"Open a Record Book"_s);
  if (chosen.isEmpty()) return std::nullopt;
  if (isDataFolder(toPath(chosen))) return toPath(chosen);
  tell(u"%1 contains no record book: there is no folder QzrNumbers in it."_s.arg(chosen));
  return std::nullopt;
}

/// Makes a record book in `folder`, or opens another one, as the user chooses.
std::optional<fs::path> offerFolder(const fs::path& folder, const fs::path& last) {
  QMessageBox box(
      QMessageBox::Question, toQString(programTitle),
      u"There is no record book in %1 yet.\n\nA new one begins with sample draws and plays; an update brings the real draws."_s
          .arg(pathText(folder)));
  box.setTextFormat(Qt::PlainText);
  const auto* make = box.addButton(u"&Make One with Samples"_s, QMessageBox::AcceptRole);
  const QAbstractButton* openLast = nullptr;
  if (isDataFolder(last)) openLast = box.addButton(u"Open the &Last One"_s, QMessageBox::AcceptRole);
  const auto* open = box.addButton(u"&Open Another…"_s, QMessageBox::ActionRole);
  box.addButton(u"&Quit"_s, QMessageBox::RejectRole);
  if (openLast != nullptr) box.setInformativeText(u"The last one used is in %1."_s.arg(pathText(last)));
  box.exec();
  if (box.clickedButton() == make && makeSample(folder)) return folder;
  if (openLast != nullptr && box.clickedButton() == openLast) return last;
  if (box.clickedButton() == open) return askForFolder();
  return std::nullopt;
}

}  // namespace

void tell(const QString& text) {
  QMessageBox box(QMessageBox::Warning, toQString(programTitle), text, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

std::optional<fs::path> findDataFolder(const std::string& named, Offer offer) {
  const fs::path chosen = chooseDataFolder(named);
  if (offer == Offer::no) {
    if (isDataFolder(chosen)) return chosen;
    std::cerr << "tallywick: there is no record book in " << chosen.string() << '\n';
    return std::nullopt;
  }
  QSettings settings;
  const fs::path last = toPath(settings.value(lastFolderKey).toString());
  std::optional<fs::path> found = isDataFolder(chosen) ? chosen : offerFolder(chosen, last);
  if (found) settings.setValue(lastFolderKey, pathText(*found));
  return found;
}

std::optional<FolderHold> holdDataFolder(const fs::path& folder) {
  try {
    return FolderHold{os::FileLock(folder / lockName, os::FileLock::Wait::no)};
  } catch (const LockedByAnother&) {
    tell(u"The record book in %1 is already open in another window of this program."_s.arg(pathText(folder)));
    return std::nullopt;
  } catch (const RuntimeError&) {
    // A folder that cannot be written is safe from a second program.
    return FolderHold{};
  }
}

}  // namespace tallywick
