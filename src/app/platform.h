// SPDX-License-Identifier: GPL-3.0-or-later
// What the program asks of the desktop it runs on. A binding implements it: real windows, or the text
// protocol.
#pragma once

#include "controls/form.h"
#include "core/outside.h"
#include "update/transfer_component.h"

#include <memory>
#include <string>
#include <string_view>

namespace tallywick {

class Platform : public MessageBoxes, public Screen, public ProgramStarter, public TransferWatch {
 public:
  /// Where there is no window nobody looks on or cancels.
  void progress(const TransferProgress&) override {}
  bool cancelled() override { return false; }

  /// Shows a window of the model, and keeps the form as long as anything of the window exists. The main
  /// window comes up centred.
  virtual void openWindow(const std::shared_ptr<Form>& form) = 0;
  /// Takes a window off the screen.
  virtual void closeWindow(Form& form) = 0;

  /// Opens a web page in the user's browser.
  virtual void openPage(std::string_view address) = 0;

  /// A text value below the machine-wide registry key, cut at its first null; a double word as "&h" and its
  /// hexadecimal digits; the empty text where there is none or no registry.
  virtual std::string registryValue(std::string_view key, std::string_view value) = 0;
  /// Whether a file outside the data folder exists.
  virtual bool fileExists(std::string_view path) = 0;

  /// Ends the program once the handler that is running has returned.
  virtual void endProgram() = 0;
};

}  // namespace tallywick
