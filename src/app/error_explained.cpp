// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/error_explained.h"

#include "core/runtime_error.h"
#include "core/text.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tallywick {

namespace {

struct Advice {
  ErrorNumber number;
  std::string_view text;
};

constexpr std::string_view bringBack =
    "bring it back from a backup, or fetch the draws of the game with Update";

constexpr Advice advices[] = {
    {ErrorNumber::fileNotFound, "The file is missing: "},
    {ErrorNumber::inputPastEnd, "The file ends inside a record, or has too few records: "},
    {ErrorNumber::typeMismatch, "The record has a text where a number belongs: correct it, or "},
};

constexpr Advice otherAdvices[] = {
    {ErrorNumber::diskFull, "Make room on the disk, then start the program again."},
    {ErrorNumber::permissionDenied,
     "Close other programs that use the file, and see whether you may change it and its folder."},
    {ErrorNumber::pathFileAccess, "See whether the path is a file or folder that you may read and change."},
    {ErrorNumber::pathNotFound,
     "See whether the folder is there, for example on a drive that is not connected."},
    {ErrorNumber::deviceIoError,
     "See whether the drive is connected and whole, and make a backup of the record book."},
};

std::string whatToDo(const RuntimeError& error) {
  const auto isIt = [&](const Advice& advice) { return error.is(advice.number); };
  if (const auto* found = std::ranges::find_if(advices, isIt); found != std::end(advices))
    return join(found->text, bringBack, ", then start the program again.");
  if (const auto* found = std::ranges::find_if(otherAdvices, isIt); found != std::end(otherAdvices))
    return std::string(found->text);
  if (!error.source().empty())
    return "See whether the network is there and the addresses in the settings are right.";
  return "Start the program again. If the error comes back, copy this text and send it to who looks after "
         "the program.";
}

}  // namespace

std::string errorExplained(const RuntimeError& error) {
  const std::string place = error.where().empty() ? "" : join("Where: ", error.where(), "\n\n");
  return join(
      place,
      "Nothing is half changed: each file is as it was before, or complete as it is after the action, and no "
      "play is lost. If a change of several files was cut short, the next start finishes it.\n\n",
      whatToDo(error));
}

}  // namespace tallywick
