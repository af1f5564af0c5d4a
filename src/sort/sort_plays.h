// SPDX-License-Identifier: GPL-3.0-or-later
// Puts the committed plays of a game folder in the order of their draws: the work of the sort tool.
#pragma once

#include "core/os.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::sort {

/// The plays stay in the order in which they are; the message says why.
class PlaysLeftAlone : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The text of a play file with its records in the order of their dates, oldest first; records of one date
/// keep their order. Records without a date as the program writes it, the ones that are no real plays among
/// them, come behind all others in the order in which they are, so that the file begins with the next draw.
/// None where the order is right already. PlaysLeftAlone where a line is not one whole record.
std::optional<std::string> inDrawOrder(std::string_view plays, const std::string& name);

/// A file of committed plays with the text that was read from it.
class CommittedPlays {
 public:
  explicit CommittedPlays(std::filesystem::path file);

  /// Replaces the file where its order is not right. PlaysLeftAlone where it is malformed or no longer what
  /// was read.
  void putInOrder() const;

 private:
  std::filesystem::path file_;
  os::FileBytes read_;
};

/// Puts each game's committed plays in `folder` in order, under the folder's lock. Error 53 where
/// there are none.
void sortFolder(const std::filesystem::path& folder);

/// The program `qzrsrt3`. What goes wrong is written to `errors`. Exit code 0, 1 where the plays could not be
/// put in order, 2 where the command line cannot be understood.
int runSort(int argc, const char* const* argv, std::ostream& out, std::ostream& errors);

}  // namespace tallywick::sort
