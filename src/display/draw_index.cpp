// SPDX-License-Identifier: GPL-3.0-or-later
#include "display/draw_index.h"

namespace tallywick {

const Draw* DrawIndex::find(const std::string& date) {
  if (const auto known = draws_.find(date); known != draws_.end()) return &known->second;
  if (!reader_) reader_.emplace(folder_, file_);
  while (!reader_->atEnd()) {
    const Draw draw = drawOf(reader_->record<drawFields>());
    const auto entered = draws_.try_emplace((draw.*dateText_)(), draw).first;
    if (entered->first == date) return &entered->second;
  }
  return nullptr;
}

}  // namespace tallywick
