// Opens the draw history for a search or a count, which tell the player of a file that cannot be read and let
// the program go on.
#pragma once

#include "controls/surroundings.h"
#include "core/sequential_reader.h"

#include <optional>
#include <string_view>

namespace tallywick {

/// Nothing where the file cannot be read; then a message that names it has been shown.
std::optional<SequentialReader> openHistory(const DataFolder& folder, std::string_view written,
                                            MessageBoxes& boxes);

}  // namespace tallywick
