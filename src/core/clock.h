// SPDX-License-Identifier: GPL-3.0-or-later
// The clock and the date, as the texts that the files and the rules use.
#pragma once

#include <string>

namespace tallywick {

class Clock {
 public:
  virtual ~Clock() = default;
  /// MM-DD-YYYY.
  virtual std::string date() const = 0;
  /// HH:MM:SS on 24 hours, two digits each, so that texts compare as times do.
  virtual std::string time() const = 0;
};

/// The computer's clock, in local time.
class SystemClock : public Clock {
 public:
  std::string date() const override;
  std::string time() const override;
};

/// A clock that always shows the time it is given.
class StandingClock : public Clock {
 public:
  StandingClock(std::string date, std::string time);
  std::string date() const override { return date_; }
  std::string time() const override { return time_; }

 private:
  std::string date_;
  std::string time_;
};

}  // namespace tallywick
