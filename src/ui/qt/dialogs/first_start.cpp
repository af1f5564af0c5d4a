// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/first_start.h"

#include "app/data_folder_choice.h"
#include "core/data_folder.h"
#include "core/file_names.h"
#include "core/outside.h"
#include "core/random.h"
#include "core/restored_folder.h"
#include "core/runtime_error.h"
#include "core/work_files.h"
#include "exports/made_up.h"
#include "setup/new_folder.h"
#include "ui/qt/dialogs/export_address.h"
#include "ui/qt/dialogs/real_book.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/wording.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <algorithm>
#include <iostream>

namespace tallywick {

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

namespace {

const QString lastFolderKey = u"lastFolder"_s;
const QString ownFolderKey = u"ownFolder"_s;

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
    showWarning(u"The record book in %1 could not be made: %2"_s.arg(pathText(folder), failure));
  return failure.isEmpty();
}

/// A record book that the user points at; nothing where it is none.
std::optional<fs::path> askForFolder() {
  const QString chosen = QFileDialog::getExistingDirectory(nullptr, u"Open a Record Book"_s);
  if (chosen.isEmpty()) return std::nullopt;
  if (isDataFolder(toPath(chosen))) return toPath(chosen);
  showWarning(u"%1 contains no record book: there is no folder QzrNumbers in it."_s.arg(chosen));
  return std::nullopt;
}

/// By the settings that the folder may have already.
bool makeFetched(const fs::path& folder) {
  try {
    return makeBookFromExports(folder, readSettings(DataFolder(folder)));
  } catch (const std::exception& error) {
    showWarning(toQString(error.what()));
    return false;
  }
}

/// Those that the folder may have already.
Settings settingsIn(const fs::path& folder) {
  try {
    return readSettings(DataFolder(folder));
  } catch (const std::exception&) {
    // What is wrong with the file is said where it is needed.
    return {};
  }
}

enum class Choice { quit, fetch, files, sample, last, open };

/// What a first start can begin with, each with a line that explains it.
class StartChoices : public QDialog {
 public:
  StartChoices(const fs::path& folder, const fs::path& last) {
    setWindowTitle(toQString(programTitle));
    auto* content = new QWidget;
    column_ = columnIn(content, theme::pageMargin);
    column_->addWidget(heading(this, u"Welcome to Tallywick"_s));
    auto* text = new QLabel(u"There is no record book in %1 yet."_s.arg(pathText(folder)));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    column_->addWidget(text);
    add(u"Start my record book with the &real draws"_s,
        u"Fetches all draws of both games from the public exports. Nothing else is needed."_s, Choice::fetch);
    add(u"…from &files that I saved"_s,
        u"Takes the files of both games' draws. To get them, open these two addresses in a web browser: it "
        u"saves the "
        "files, often in the folder Downloads."_s,
        Choice::files);
    addAddresses(folder);
    add(u"Look around with &sample draws"_s,
        u"Makes draws and plays up, so that you can try everything. They never took place."_s,
        Choice::sample);
    if (isDataFolder(last)) add(u"Open the &last one"_s, pathText(last), Choice::last);
    add(u"Open &another…"_s, u"Opens a record book in a folder that you choose."_s, Choice::open);
    column_->addStretch();
    auto* buttons = new QDialogButtonBox;
    connect(buttons->addButton(u"&Quit"_s, QDialogButtonBox::RejectRole), &QPushButton::clicked, this,
            &QDialog::reject);
    buttons->setContentsMargins(theme::pageMargin, 0, theme::pageMargin, theme::pageMargin);
    auto* all = columnIn(this);
    all->addWidget(scrolled(content), 1);
    all->addWidget(buttons);
    const int least = content->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int width = std::max(sentencesWidth(*this, 64 * theme::gap), least);
    resizeOnScreen(*this, {width, column_->heightForWidth(width) + all->minimumSize().height()});
  }

  Choice choose() {
    choice_ = Choice::quit;
    exec();
    return choice_;
  }

 private:
  void add(const QString& text, const QString& explanation, Choice choice) {
    auto* button = new QPushButton(text);
    button->setAccessibleDescription(explanation);
    auto* below = new QLabel(explanation);
    below->setTextFormat(Qt::PlainText);
    below->setWordWrap(true);
    below->setIndent(theme::pageMargin);
    auto* both = new QVBoxLayout;
    both->setSpacing(theme::halfGap);
    both->addWidget(button, 0, Qt::AlignLeft);
    both->addWidget(below);
    column_->addLayout(both);
    connect(button, &QPushButton::clicked, this, [this, choice] {
      choice_ = choice;
      accept();
    });
  }

  void addAddresses(const fs::path& folder) {
    auto* fields = new QVBoxLayout;
    fields->setSpacing(theme::halfGap);
    fields->setContentsMargins(theme::pageMargin, 0, 0, 0);
    const Settings settings = settingsIn(folder);
    for (const GameInfo* game : allGames) {
      fields->addWidget(addressField(u"Address of the %1 draws"_s.arg(toQString(game->name)),
                                     exportAddress(settings, game->game)));
    }
    column_->addLayout(fields);
  }

  QVBoxLayout* column_;
  Choice choice_ = Choice::quit;
};

/// Makes a record book in `folder`, or opens another one, as the user chooses. Whatever comes to nothing
/// leads back to the choices.
std::optional<fs::path> offerFolder(const fs::path& folder, const fs::path& last) {
  StartChoices choices(folder, last);
  for (;;) {
    switch (choices.choose()) {
      case Choice::fetch:
        if (makeFetched(folder)) return folder;
        break;
      case Choice::files:
        if (makeBookFromFiles(folder)) return folder;
        break;
      case Choice::sample:
        if (makeSample(folder)) return folder;
        break;
      case Choice::last:
        return last;
      case Choice::open:
        if (auto other = askForFolder()) return other;
        break;
      case Choice::quit:
        return std::nullopt;
    }
  }
}

/// The book with real draws that the user has begun elsewhere instead of a sample that nobody asked for.
std::optional<fs::path> ownFolder(const std::string& named, const fs::path& chosen) {
  const fs::path own = toPath(QSettings().value(ownFolderKey).toString());
  const bool isUsual = named.empty() && chosen == os::userDataFolder();
  if (!isUsual || !isDataFolder(own)) return std::nullopt;
  const DataFolder book(chosen);
  const bool isSample =
      exports::isMadeUp(book, Game::powerBall) && exports::isMadeUp(book, Game::megaMillions);
  return isSample ? std::optional(own) : std::nullopt;
}

}  // namespace

void showWarning(const QString& text) {
  QMessageBox box(QMessageBox::Warning, toQString(programTitle), text, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

std::optional<fs::path> findDataFolder(const std::string& named, Offer offer) {
  const fs::path chosen = chooseDataFolder(named);
  finishRestore(chosen);
  if (offer == Offer::no) {
    if (isDataFolder(chosen)) return chosen;
    std::cerr << "tallywick: there is no record book in " << textOf(chosen) << '\n';
    return std::nullopt;
  }
  QSettings settings;
  const fs::path last = toPath(settings.value(lastFolderKey).toString());
  if (!last.empty()) finishRestore(last);
  std::optional<fs::path> found = ownFolder(named, chosen);
  if (!found) found = isDataFolder(chosen) ? chosen : offerFolder(chosen, last);
  if (found) settings.setValue(lastFolderKey, pathText(*found));
  return found;
}

void rememberOwnFolder(const fs::path& folder) {
  QSettings settings;
  settings.setValue(lastFolderKey, pathText(folder));
  settings.setValue(ownFolderKey, pathText(folder));
}

std::optional<FolderHold> holdDataFolder(const fs::path& folder) {
  try {
    return FolderHold{os::FileLock(folder / lockName, os::FileLock::Wait::no)};
  } catch (const LockedByAnother&) {
    showWarning(
        u"The record book in %1 is already open in another window of this program."_s.arg(pathText(folder)));
    return std::nullopt;
  } catch (const RuntimeError&) {
    // A folder that cannot be written is safe from a second program.
    return FolderHold{};
  }
}

}  // namespace tallywick
