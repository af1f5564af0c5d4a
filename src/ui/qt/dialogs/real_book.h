// SPDX-License-Identifier: GPL-3.0-or-later
// Making a record book with real draws: fetched from the public exports, or from files that the user has.
#pragma once

#include <filesystem>
#include <optional>

class QWidget;

namespace tallywick {

struct Settings;

/// Fetches both games' draws into a new record book, with progress and Cancel. Where that fails it says why
/// and offers files. False where none was made.
bool makeBookFromExports(const std::filesystem::path& folder, const Settings& settings,
                         QWidget* parent = nullptr);

/// Asks for the two games' files and makes a record book of them. False where none was made.
bool makeBookFromFiles(const std::filesystem::path& folder, QWidget* parent = nullptr);

/// Asks for a folder and makes a record book with real draws there; nothing where none was made.
std::optional<std::filesystem::path> startBookElsewhere(const Settings& settings, QWidget* parent);

}  // namespace tallywick
