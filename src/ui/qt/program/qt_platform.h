// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop that the program runs on: its windows, message boxes, pages and programs.
#pragma once

#include "app/platform.h"
#include "core/data_folder.h"
#include "plays/judged_plays.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/windows/transfer_input.h"

#include <QPointer>
#include <functional>
#include <optional>
#include <vector>

namespace tallywick {

class RuntimeError;

class QtPlatform : public Platform, public HandlerRunner {
 public:
  explicit QtPlatform(const DataFolder& folder);
  ~QtPlatform() override;

  /// What the windows ask of the program; each takes it over as it is when the window opens.
  Desk desk;

  void run(const std::function<void()>& handler) override;
  void attempt(const std::function<void()>& action) override;
  /// Shows the error and ends the program with exit code 1.
  void endWithError(const RuntimeError& error);

  /// Nobody is there: boxes are not shown, and a question is answered with No.
  void answerAlone() { alone_ = true; }

  /// The next question whether to show Double Play is answered so, without being shown. It is shown once in a
  /// run; afterwards it is answered with No, and the main window has a button for it.
  void answerDoublePlay(MessageBox::Answer answer) { doublePlayAnswer_ = answer; }

  /// Shows a warning with these buttons, of which the last one is Escape's. Their number, from 0; the last
  /// one's where nobody is there.
  int ask(const std::string& text, const QStringList& buttons);
  MessageBox::Answer show(const MessageBox& box) override;
  void refresh() override;
  void progress(const TransferProgress& soFar) override;
  bool cancelled() override;
  void start(std::string_view program, std::string_view workingFolder) override;
  void openWindow(const std::shared_ptr<Form>& form) override;
  void closeWindow(Form& form) override;
  void openPage(std::string_view address) override;
  std::string registryValue(std::string_view key, std::string_view value) override;
  bool fileExists(std::string_view path) override;
  void endProgram() override;

  /// Null where the form has no open window.
  FormWindow* windowOf(const Form& form) const;
  /// Whether the program is to end, and with which exit code.
  bool ended() const { return ended_; }
  int exitCode() const { return exitCode_; }

 private:
  void runGuarded(const std::function<void()>& handler);
  void showChanges();
  /// The first window's that has one; null without.
  TransferPanel* transferPanel() const;
  /// Takes the panel off the screen and closes the windows that were to be closed meanwhile.
  void endTransfer();
  void end(int exitCode);
  /// The box of a runtime error, with what is to be said below its text.
  void showError(const RuntimeError& error);
  void reportFailure(const std::string& text);

  const DataFolder& folder_;
  PlayJudge judge_;
  std::vector<FormWindow*> windows_;
  TransferInput transferInput_;
  /// To be closed when the handler has ended.
  std::vector<QPointer<FormWindow>> closing_;
  bool running_ = false;
  bool alone_ = false;
  std::optional<MessageBox::Answer> doublePlayAnswer_;
  bool ended_ = false;
  int exitCode_ = 0;
};

}  // namespace tallywick
