// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/history_file.h"

#include "core/data_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <algorithm>

namespace tallywick {

std::optional<SequentialReader> openHistory(const DataFolder& folder, std::string_view written,
                                            MessageBoxes& boxes) {
  try {
    return std::make_optional<SequentialReader>(folder, written, SequentialReader::Reading::inPieces);
  } catch (const RuntimeError& error) {
    reportUnreadable(written, error, boxes);
    return std::nullopt;
  }
}

void reportUnreadable(std::string_view written, const RuntimeError& error, MessageBoxes& boxes) {
  showMessage(boxes,
              join("The draw history file \"", written, "\" cannot be read:\r\n", error.description(), "."),
              MessageBox::Icon::exclamation);
}

std::string_view addDraw(ItemsControl& to, const Draw& draw, std::string_view tail) {
  const std::size_t size = draw.lineSize({});
  char* const item = to.addItem(1 + size + tail.size());
  *item = ' ';
  draw.writeLine(item + 1, {});
  std::copy(tail.begin(), tail.end(), item + 1 + size);
  return {item, 1 + size + tail.size()};
}

}  // namespace tallywick
