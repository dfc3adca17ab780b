// The system's clock and time zone.
#pragma once

#include "platform/date_time.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace veritane::platform {

// It can be set, for repeatable runs; it then stands still.
class SystemClock : public Clock {
public:
  std::chrono::system_clock::time_point Now() const override;
  DateTime ToLocal(std::chrono::system_clock::time_point moment) const override;

  // Makes a local moment the present one.
  void Set(const DateTime& local);

private:
  std::optional<std::chrono::system_clock::time_point> fixed_;
};

std::chrono::system_clock::time_point PresentMoment();

// The moment that lies so many seconds after 1970-01-01T00:00:00 UTC. Error 6 for one beyond the clock's
// range, which ends in the years 1677 and 2262.
std::chrono::system_clock::time_point MomentAt(std::int64_t seconds);

// The moment in the system's time zone, and back. Error 6 for a date that the system or its clock
// cannot tell.
DateTime LocalTimeOf(std::chrono::system_clock::time_point moment);
std::chrono::system_clock::time_point MomentOf(const DateTime& local);

}  // namespace veritane::platform
