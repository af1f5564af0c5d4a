// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of draws and plays in columns: of which game their lines are, and what the plays among them matched.
#pragma once

#include "core/games.h"
#include "ui/qt/parts/listed_line.h"

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

class QHBoxLayout;
class QWidget;

namespace tallywick {

class Binding;
class Button;
class LineList;
class Picker;
class PlayJudge;
struct GameFrames;

using LineFields = std::vector<LineField>;

inline const LineFields drawFieldsShown = {LineField::date, LineField::whites, LineField::extra};
inline const LineFields playFieldsShown = {LineField::date, LineField::whites, LineField::extra,
                                           LineField::matched};
inline const LineFields ticketFieldsShown = {LineField::date, LineField::whites, LineField::extra,
                                             LineField::matched, LineField::prize};

/// Which game new lines of a list are of.
using GameOfLines = std::function<Game()>;

/// The game on show, PowerBall where neither is.
GameOfLines gameOnShowOf(const GameFrames& frames);

/// The columns of the fields with the titles that they have for the game.
LineColumns columnsFor(const LineFields& fields, Game game);

/// Shows the lines in columns for the fields, those that are none as text.
void showInColumns(LineList& list, const LineFields& fields, const GameOfLines& gameOf);
void showInColumns(Picker& picker, const LineFields& fields, const GameOfLines& gameOf);

/// The numbers of a draw as balls; the sixth one is the game's extra ball.
QHBoxLayout* ballRow(std::span<Button* const> numbers, const GameOfLines& gameOf, Binding& binding,
                     QWidget* parent);

/// Highlights in the lines of plays what the judging says that they matched. The files are read when the
/// first of new lines is painted. After showInColumns().
void highlightMatches(LineList& list, PlayJudge& judge);

/// A draw that plays are compared with.
struct ComparedDraw {
  std::string date;
  std::array<std::string, 5> white;
  std::string extra;
};
/// Highlights in the lines of plays what they have in common with the draw, whatever draw they are for, and
/// says the prize of those that are for it. Without a draw nothing. After showInColumns().
void highlightCommon(LineList& list, PlayJudge& judge, const std::optional<ComparedDraw>& draw);

}  // namespace tallywick
