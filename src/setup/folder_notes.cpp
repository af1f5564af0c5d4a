// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/folder_notes.h"

#include "core/text.h"
#include "exports/made_up.h"

namespace tallywick::setup {

std::string folderNotes() {
  return join(
      exports::notesHead,
      "\r\n\r\n"
      "tallywick.ini       the source of updates and other settings\r\n"
      "PWF2.TXT, PWF.TXT   login and password for an update server\r\n"
      "QZRNUM22.DTE        the calendar of the draw days, 2002 to 2050\r\n"
      "QzrNumbers          a folder a game: draws, amounts, plays; and the pictures of the balls\r\n\r\n"
      "A game whose folder contains a file ",
      exports::madeUpMark,
      " has sample draws and amounts. They were made up by the\r\n"
      "game's rules and never took place: buy, keep and throw away no ticket because of them. Such a game "
      "has\r\nsample plays too.\r\n");
}

}  // namespace tallywick::setup
