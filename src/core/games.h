// SPDX-License-Identifier: GPL-3.0-or-later
// The games, their folders and every file name. Paths are written as the handlers write them; DataFolder
// turns them into real files.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tallywick {

enum class Game { powerBall, megaMillions };

/// What differs between the two games' files.
struct GameInfo {
  Game game;
  std::string_view name;
  /// Three letters in the play files' names.
  std::string_view code;
  /// Relative to the data folder, with the closing backslash.
  std::string_view folder;
  std::string_view winningsFile;
  /// The amount at which a jackpot starts; a draw at exactly this amount is marked.
  std::string_view baseAmount;
  /// The numbers of a play go from 01 to this one; more than the game has ever drawn.
  int lastNumber;
  /// Where the update server keeps the game's files: as the update button spells it, and as the menus do. A
  /// server takes both letter cases alike.
  std::string_view serverFolder;
  std::string_view serverFolderOfMenus;
};

inline constexpr GameInfo powerBall = {.game = Game::powerBall,
                                       .name = "PowerBall",
                                       .code = "PWR",
                                       .folder = R"(QzrNumbers\QZR6PWR\)",
                                       .winningsFile = "QzrPwr.Win",
                                       .baseAmount = "40",
                                       .lastNumber = 69,
                                       .serverFolder = "/D:/QZR/Z1-Pwr/Qzr6",
                                       .serverFolderOfMenus = "/D:/QZR/Z1-PWR/QZR6"};
inline constexpr GameInfo megaMillions = {.game = Game::megaMillions,
                                          .name = "Mega Millions",
                                          .code = "MEG",
                                          .folder = R"(QzrNumbers\QZR6MEG\)",
                                          .winningsFile = "QzrMeg.Win",
                                          .baseAmount = "12",
                                          .lastNumber = 79,
                                          .serverFolder = "/D:/QZR/Z2-Meg/Qzr6",
                                          .serverFolderOfMenus = "/D:/QZR/Z2-MEG/QZR6"};

/// In the order in which they are shown and worked on.
inline constexpr std::array allGames = {&powerBall, &megaMillions};

constexpr const GameInfo& infoOf(Game game) {
  return game == Game::powerBall ? powerBall : megaMillions;
}

/// The main copy of the draw history, read by the displays, Quick Pick and the maintenance.
inline constexpr std::string_view drawsFile = "QZRNUM6.Dat";
/// The second copy, read by the searches, the winning-ticket check and the charts.
inline constexpr std::string_view searchDrawsFile = "QZRNUM62.Dat";
/// The Double Play draws; PowerBall's folder alone has it.
inline constexpr std::string_view doublePlayFile = "QZRNUM72.Dat";
inline constexpr std::string_view sortToolFile = "QZRSRT3.EXE";

/// A leftover six-number state game; its files are read where they exist and never written.
inline constexpr std::string_view hoosierFolder = R"(QzrNumbers\Qzr6Ind\)";
inline constexpr std::string_view hoosierPlayedFile = R"(QzrNumbers\Qzr6Ind\Qzr6Ind2.Ply)";

/// The folder of a record book that has the folders of the games and the pictures.
inline constexpr std::string_view numbersFolder = "QzrNumbers";
inline constexpr std::string_view pictureFolder = R"(QzrNumbers\PlyNumbers\)";
/// One record a day, with the day code of the draw days.
inline constexpr std::string_view calendarFile = "QZRNUM22.DTE";
inline constexpr std::string_view passwordFile = "PWF.TXT";
inline constexpr std::string_view loginFile = "PWF2.TXT";
inline constexpr std::string_view helpFile = "qzrhelp.chm";

/// The play files by the number in their name.
enum class PlaySlot : char {
  committed = '1',     ///< plays for coming draws
  played = '2',        ///< the play history
  stillPending = '3',  ///< work file of the maintenance
  justPlayed = '4',    ///< work file of the maintenance
  multiDraw = '5',     ///< work file of several draws; Done needs none and removes one
  current = '7',       ///< selected since the selection window opened
};

/// For example "QZR6PWR7.Ply".
std::string playFileName(const GameInfo& game, PlaySlot slot);
/// The copy of the committed or played plays: "QZR6PWR1.Sav".
std::string saveFileName(const GameInfo& game, PlaySlot slot);
/// The saved play texts: "QZR6PWR9.Sel".
std::string savedTextsFileName(const GameInfo& game);

/// The picture of a white ball or an extra ball with this number of two digits: "#07.bmp", "%07.bmp".
std::string pictureFileName(bool isExtraBall, std::string_view number);

/// A play file as the handlers write its path.
std::string playFilePath(const GameInfo& game, PlaySlot slot);

/// `file` in the game's folder, for example "QzrNumbers\QZR6PWR\QZRNUM6.Dat".
std::string inFolder(const GameInfo& game, std::string_view file);

}  // namespace tallywick
