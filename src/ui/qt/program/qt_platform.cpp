// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program/qt_platform.h"

#include "app/error_explained.h"
#include "app/game_pages.h"
#include "app/started_program.h"
#include "core/file_names.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "ui/qt/parts/theme.h"
#include "ui/qt/windows/make_window.h"
#include "ui/qt/windows/transfer_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QThread>
#include <QUrl>
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::none:
      return QMessageBox::NoIcon;
    case MessageBox::Icon::exclamation:
      return QMessageBox::Warning;
    case MessageBox::Icon::information:
      return QMessageBox::Information;
    case MessageBox::Icon::question:
      return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

/// The top left corner of the window's frame where it is in the middle of its screen, halved in whole units.
QPoint centred(const QWidget& window) {
  const QRect screen = window.screen()->availableGeometry();
  const QSize whole = window.size().grownBy(theme::windowFrame);
  return {screen.left() + std::max(0, (screen.width() - whole.width()) / 2),
          screen.top() + std::max(0, (screen.height() - whole.height()) / 2)};
}

/// Puts a value back at the end of a scope.
class Flag {
 public:
  explicit Flag(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Flag() { flag_ = before_; }
  Flag(const Flag&) = delete;
  Flag& operator=(const Flag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

QtPlatform::QtPlatform(const DataFolder& folder)
    : desk{.runner = *this, .folder = folder, .judge = judge_}, folder_(folder), judge_(folder) {}

QtPlatform::~QtPlatform() {
  for (FormWindow* window : windows_) {
    window->binding().release();
    delete window;
  }
  // Those that were closed wait for an event loop, and none comes any more.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtPlatform::run(const std::function<void()>& handler) {
  if (running_ || ended_) return;
  runGuarded(handler);
  endTransfer();
}

void QtPlatform::runGuarded(const std::function<void()>& handler) {
  const Flag running(running_);
  try {
    try {
      handler();
    } catch (const TransferCancelled&) {
      // The handler's controls say so.
    }
    showChanges();
  } catch (...) {
    endWithError(currentRuntimeError());
  }
}

void QtPlatform::attempt(const std::function<void()>& action) {
  if (ended_) return;
  try {
    action();
  } catch (const std::exception& error) {
    reportFailure(error.what());
  } catch (...) {
    reportFailure(currentRuntimeError().what());
  }
}

MessageBox::Answer QtPlatform::show(const MessageBox& box) {
  showChanges();
  if (TransferPanel* panel = transferPanel()) panel->end();
  const bool isQuestion = box.buttons == MessageBox::Buttons::yesNo;
  const bool isDoublePlay = box.text == doublePlayQuestion;
  if (isDoublePlay && doublePlayAnswer_) return *std::exchange(doublePlayAnswer_, MessageBox::Answer::no);
  if (isDoublePlay && desk.showDoublePlay) doublePlayAnswer_ = MessageBox::Answer::no;
  if (alone_) return isQuestion ? MessageBox::Answer::no : MessageBox::Answer::ok;
  QMessageBox shown(iconOf(box.icon), toQString(box.title), toQString(box.text).remove(u'\r'),
                    QMessageBox::NoButton, QApplication::activeWindow());
  shown.setTextFormat(Qt::PlainText);
  if (!isQuestion) {
    shown.setStandardButtons(QMessageBox::Ok);
    shown.exec();
    return MessageBox::Answer::ok;
  }
  shown.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  shown.setDefaultButton(QMessageBox::No);
  return shown.exec() == QMessageBox::Yes ? MessageBox::Answer::yes : MessageBox::Answer::no;
}

int QtPlatform::ask(const std::string& text, const QStringList& buttons) {
  const int last = static_cast<int>(buttons.size()) - 1;
  showChanges();
  if (TransferPanel* panel = transferPanel()) panel->end();
  if (alone_) return last;
  QMessageBox box(QMessageBox::Warning, toQString(programTitle), toQString(text), QMessageBox::NoButton,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  QList<QAbstractButton*> made;
  for (const QString& button : buttons)
    made += box.addButton(button, made.size() == last ? QMessageBox::RejectRole : QMessageBox::ActionRole);
  box.setEscapeButton(made.last());
  box.exec();
  return static_cast<int>(made.indexOf(box.clickedButton()));
}

void QtPlatform::refresh() {
  showChanges();
  // What the user does meanwhile waits until the handler has ended.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtPlatform::progress(const TransferProgress& soFar) {
  showChanges();
  TransferPanel* panel = transferPanel();
  if (panel != nullptr) panel->showProgress(soFar);
  transferInput_.handleEvents(panel != nullptr ? &panel->button() : nullptr, [&](FormWindow& window) {
    closing_.emplace_back(&window);
    if (TransferPanel* own = window.transferPanel()) own->cancel();
  });
}

bool QtPlatform::cancelled() {
  const TransferPanel* panel = transferPanel();
  return panel != nullptr && panel->isCancelled();
}

void QtPlatform::start(std::string_view program, std::string_view workingFolder) {
  startAsked(folder_, program, workingFolder, "tallywick");
}

void QtPlatform::openWindow(const std::shared_ptr<Form>& form) {
  FormWindow* window = makeWindow(*form, desk).release();
  // Released with the last of the window, which may be later than the program's part in it.
  QObject::connect(window, &QObject::destroyed, [form] {});
  windows_.push_back(window);
  window->move(centred(*window));
  window->show();
  window->activateWindow();
}

void QtPlatform::closeWindow(Form& form) {
  FormWindow* window = windowOf(form);
  if (window == nullptr) return;
  window->keepLayout();
  window->binding().release();
  window->hide();
  // One of its own widgets may have asked for it.
  window->deleteLater();
  std::erase(windows_, window);
}

void QtPlatform::openPage(std::string_view address) {
  QDesktopServices::openUrl(QUrl::fromUserInput(toQString(address)));
}

std::string QtPlatform::registryValue(std::string_view key, std::string_view value) {
  return os::registryValue(key, value);
}

bool QtPlatform::fileExists(std::string_view path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(pathOf(path), ignored);
}

void QtPlatform::endProgram() {
  end(0);
}

FormWindow* QtPlatform::windowOf(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](FormWindow* window) { return &window->form() == &form; });
  return found == windows_.end() ? nullptr : *found;
}

void QtPlatform::showChanges() {
  for (FormWindow* window : std::vector<FormWindow*>(windows_)) window->binding().showChanges();
}

TransferPanel* QtPlatform::transferPanel() const {
  for (const FormWindow* window : windows_) {
    if (TransferPanel* panel = window->transferPanel()) return panel;
  }
  return nullptr;
}

void QtPlatform::endTransfer() {
  if (TransferPanel* panel = transferPanel(); panel != nullptr && !panel->isHidden()) {
    panel->end();
    // What had made room for it comes back.
    showChanges();
  }
  for (const QPointer<FormWindow>& window : std::exchange(closing_, {})) {
    if (window) window->close();
  }
}

void QtPlatform::end(int exitCode) {
  ended_ = true;
  exitCode_ = exitCode;
  // Without a running loop there is nothing to leave, and the next loop would end at once.
  if (QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit(exitCode);
}

void QtPlatform::endWithError(const RuntimeError& error) {
  std::cerr << "tallywick: " << error.what() << std::endl;
  try {
    showError(error);
  } catch (...) {
    // What stopped the action may stop the box too; standard error has it.
  }
  end(1);
}

namespace {

/// With room for the box's edges and its buttons.
bool fitsOnScreen(const QWidget& box, const QString& text) {
  constexpr int linesAround = 5;
  const QSize screen = box.screen()->availableGeometry().size().shrunkBy(theme::windowFrame);
  const QFontMetrics face = box.fontMetrics();
  const QRect whole = face.boundingRect(QRect(0, 0, screen.width() * 3 / 4, 0), Qt::TextWordWrap, text);
  return whole.height() + linesAround * face.lineSpacing() <= screen.height();
}

}  // namespace

void QtPlatform::showError(const RuntimeError& error) {
  showChanges();
  if (TransferPanel* panel = transferPanel()) panel->end();
  if (alone_) return;
  const QString text = toQString(error.boxText());
  const QString explained = toQString(join(errorExplained(error), "\n\n", endExplained(error)));
  QMessageBox box(QMessageBox::Warning, toQString(programTitle), text, QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  if (fitsOnScreen(box, text + u'\n' + explained))
    box.setInformativeText(explained);
  else
    box.setDetailedText(explained);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  QPushButton* copy = box.addButton(u"&Copy Text"_s, QMessageBox::ActionRole);
  // The box stays open after a copy.
  copy->disconnect();
  QObject::connect(copy, &QPushButton::clicked, &box, [text, explained] {
    QGuiApplication::clipboard()->setText(text + u"\n\n"_s + explained);
  });
  box.exec();
}

/// Shows a message as far as that is still possible: what stopped an action may stop the box too.
void QtPlatform::reportFailure(const std::string& text) {
  try {
    showMessage(*this, text, MessageBox::Icon::exclamation);
  } catch (...) {
    std::cerr << "tallywick: " << text << std::endl;
  }
}

}  // namespace tallywick
