// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/calendar.h"

#include "core/data_folder.h"
#include "core/games.h"
#include "core/text.h"

namespace tallywick {

Calendar::Calendar(const DataFolder& folder) : reader_(folder, calendarFile) {}

bool Calendar::readTo(std::string_view date) {
  while (!reader_.atEnd()) {
    readDay();
    if (date_ == date) return true;
  }
  return false;
}

std::optional<std::string> Calendar::nextDrawDay(std::string_view drawDays) {
  while (!reader_.atEnd()) {
    readDay();
    if (isDrawDay(drawDays)) return date_;
  }
  return std::nullopt;
}

bool Calendar::isDrawDay(std::string_view drawDays) const {
  return dayCode_.size() == 1 && drawDays.find(dayCode_.front()) != std::string_view::npos;
}

void Calendar::readDay() {
  const auto day = reader_.record<calendarFields>();
  date_.clear();
  date_.append(trimmed(day[0])).append("-").append(trimmed(day[1])).append("-").append(trimmed(day[2]));
  dayCode_ = trimmed(day[5]);
}

}  // namespace tallywick
