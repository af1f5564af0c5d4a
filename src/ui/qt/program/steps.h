// SPDX-License-Identifier: GPL-3.0-or-later
// Steps that the program takes by itself, for the pictures of the manual.
#pragma once

#include <QString>
#include <string>
#include <vector>

class QWidget;

namespace tallywick {

/// Does one step in the window in front; raises std::runtime_error where it is not possible.
///
///     press NAME         a button, a tab or a menu entry
///     type NAME: TEXT    into a field, a date or a drop-down
///     choose NAME: LINE  the line of a list, from 0
///     size WxH           the window's size
///     picture FILE       saves what the window shows
///     close              closes the window
///
/// A NAME is a designer name, a text without its mnemonic, or what a screen reader says.
void takeStep(const QString& line);

/// The lines of a file, each a step taken once the one before has shown its effect; then the program ends.
/// Empty lines and those that begin with # are passed over.
class Steps {
 public:
  /// Throws where the file cannot be read.
  explicit Steps(const std::string& file);
  /// Takes the steps once an event loop runs, that of a dialog included.
  void start();
  bool failed() const { return failed_; }

 private:
  void takeNext();

  std::vector<QString> lines_;
  std::size_t next_ = 0;
  bool failed_ = false;
};

}  // namespace tallywick
