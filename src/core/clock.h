// SPDX-License-Identifier: GPL-3.0-or-later
// The clock and the date, as the texts that the files and the rules use.
#pragma once

#include <optional>
#include <string>
#include <string_view>

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
class FixedClock : public Clock {
 public:
  FixedClock(std::string date, std::string time);
  /// The time that `clock` shows now.
  explicit FixedClock(const Clock& clock);
  std::string date() const override { return date_; }
  std::string time() const override { return time_; }

 private:
  std::string date_;
  std::string time_;
};

/// The clock that shows "MM-DD-YYYY HH:MM:SS"; none where the text is no such time.
std::optional<FixedClock> fixedClock(std::string_view text);

/// The computer's clock until it is set; then it does not move.
class SettableClock : public Clock {
 public:
  std::string date() const override { return fixed_ ? fixed_->date() : system_.date(); }
  std::string time() const override { return fixed_ ? fixed_->time() : system_.time(); }
  /// Takes "MM-DD-YYYY HH:MM:SS". False, with nothing changed, where the text is no such time.
  bool set(std::string_view text);

 private:
  SystemClock system_;
  std::optional<FixedClock> fixed_;
};

}  // namespace tallywick
