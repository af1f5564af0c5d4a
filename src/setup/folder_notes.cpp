// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/folder_notes.h"

#include "core/text.h"
#include "setup/new_folder.h"

namespace tallywick::setup {

std::string folderNotes(const FolderContents& contents) {
  std::string text = "This is a data folder of Tallywick, made by tallywick-setup.\r\n\r\n";
  for (const FolderContents::Part& part : contents.games) {
    text += join(infoOf(part.game).name, ": ", part.origin, "\r\n");
    if (part.book.draws.empty()) continue;
    text += join("  ", std::to_string(part.book.draws.size()), " draws, ",
                 displayDate(part.book.draws.back().day), " to ", displayDate(part.book.draws.front().day),
                 "\r\n");
  }
  return text +=
         "\r\nDraws and amounts that are called sample were made up by the games' rules. They never took "
         "place:\r\n"
         "buy, keep and throw away no ticket because of them. A game with sample draws has sample plays "
         "too.\r\n\r\n"
         "tallywick.ini       the update server and other settings\r\n"
         "PWF2.TXT, PWF.TXT   login and password for the update server\r\n"
         "QZRNUM22.DTE        the calendar that tells draw days, 2002 to 2050\r\n"
         "QzrNumbers          a folder a game: draws, amounts, plays; and the pictures of the balls\r\n";
}

}  // namespace tallywick::setup
