// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/real_book.h"

#include "app/draws_note.h"
#include "core/clock.h"
#include "core/data_folder.h"
#include "core/outside.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "settings/settings.h"
#include "setup/new_folder.h"
#include "ui/qt/dialogs/fetch_dialog.h"
#include "ui/qt/dialogs/first_start.h"
#include "ui/qt/parts/wording.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace tallywick {

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

namespace {

enum class Outcome { made, cancelled, failed };

/// What failed is added to `why`.
Outcome fetchInto(const fs::path& folder, const Settings& settings, QWidget* parent, QString& why) {
  try {
    const DataFolder book(folder);
    const SystemClock clock;
    FetchDialog dialog(parent);
    bool isMade = true;
    for (const GameFetch& one : setup::makeFetchedFolder(book, clock, settings, {}, &dialog)) {
      if (one.error.empty()) continue;
      isMade = false;
      why += u"\n\n%1: %2"_s.arg(toQString(infoOf(one.game).name), toQString(fetchFailure(one)));
    }
    return isMade ? Outcome::made : Outcome::failed;
  } catch (const TransferCancelled&) {
    return Outcome::cancelled;
  } catch (const std::exception& error) {
    why += u"\n\n"_s + toQString(error.what());
    return Outcome::failed;
  }
}

QString askForExport(const QString& game, QWidget* parent) {
  return QFileDialog::getOpenFileName(parent, u"The Draws of %1"_s.arg(game), {},
                                      u"Exports of draws (*.csv *.txt);;All files (*)"_s);
}

}  // namespace

bool makeBookFromExports(const fs::path& folder, const Settings& settings, QWidget* parent) {
  for (;;) {
    QString why;
    const Outcome outcome = fetchInto(folder, settings, parent, why);
    if (outcome != Outcome::failed) return outcome == Outcome::made;
    QMessageBox box(QMessageBox::Warning, toQString(programTitle),
                    u"The draws could not be fetched, so no record book was made."_s + why,
                    QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        u"Take Files… takes the files of both games' draws. To get them, open these addresses in a web "
        u"browser, "
        "on any computer:\n%1\n%2"_s.arg(toQString(settings.powerBallDraws),
                                         toQString(settings.megaMillionsDraws)));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const auto* again = box.addButton(u"&Try Again"_s, QMessageBox::AcceptRole);
    const auto* files = box.addButton(u"Take &Files…"_s, QMessageBox::ActionRole);
    box.addButton(u"&Back"_s, QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == files) return makeBookFromFiles(folder, parent);
    if (box.clickedButton() != again) return false;
  }
}

bool makeBookFromFiles(const fs::path& folder, QWidget* parent) {
  const QString powerBallFile = askForExport(u"PowerBall"_s, parent);
  if (powerBallFile.isEmpty()) return false;
  const QString megaMillionsFile = askForExport(u"Mega Millions"_s, parent);
  if (megaMillionsFile.isEmpty()) return false;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  QString report;
  QString failure;
  try {
    report = toQString(setup::makeFolderFromFiles(DataFolder(folder), SystemClock(), toPath(powerBallFile),
                                                  toPath(megaMillionsFile)));
  } catch (const std::exception& error) {
    failure = toQString(error.what());
  }
  QGuiApplication::restoreOverrideCursor();
  if (!failure.isEmpty()) {
    showWarning(u"No record book was made.\n\n"_s + failure);
    return false;
  }
  QMessageBox box(QMessageBox::Information, toQString(programTitle),
                  u"Your record book is in %1.\n\n%2"_s.arg(pathText(folder), report), QMessageBox::Ok,
                  parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
  return true;
}

std::optional<fs::path> startBookElsewhere(const Settings& settings, QWidget* parent) {
  const QString chosen = QFileDialog::getExistingDirectory(parent, u"A Folder for Your Record Book"_s);
  if (chosen.isEmpty()) return std::nullopt;
  const fs::path folder = toPath(chosen);
  if (setup::containsRecords(folder)) {
    showWarning(
        u"%1 contains draws or plays already. Choose a folder of its own for the new record book."_s.arg(
            chosen));
    return std::nullopt;
  }
  return makeBookFromExports(folder, settings, parent) ? std::optional(folder) : std::nullopt;
}

}  // namespace tallywick
