// SPDX-License-Identifier: GPL-3.0-or-later
// How a player gets the files of draws that a window takes.
#pragma once

#include "core/games.h"

#include <QString>
#include <string>
#include <vector>

class QLineEdit;

namespace tallywick {

struct ExportAddress;

inline const QString howToGetFiles = QStringLiteral(
    "To get such a file, open this address in a web browser: it saves the file, often in the folder "
    "Downloads.");

/// Empty where none is for the game.
std::string exportOf(const std::vector<ExportAddress>& addresses, Game game);

/// A field from which an address can be copied. The player does not write in it.
QLineEdit* addressField(const QString& name, const std::string& address = {});

}  // namespace tallywick
