// A local date and time of day as people read it from a wall clock, and the interface that tells it.
#pragma once

#include <chrono>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veritane::platform {

// A moment on the local wall clock (no time zone, no summer-time mark), as files and messages show it.
struct DateTime {
  int year = 1970;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0;   // 0 to 23
  int minute = 0;
  int second = 0;

  auto operator<=>(const DateTime&) const = default;
};

// 0 for Sunday to 6 for Saturday.
int DayOfWeek(const DateTime& moment);

// Seconds since 1970-01-01T00:00:00 on the same wall clock.
std::int64_t WallClockSeconds(const DateTime& moment);

// The moment that lies `seconds` after 1970-01-01T00:00:00 on the same wall clock.
DateTime FromWallClockSeconds(std::int64_t seconds);

// Hour boundaries between two moments on the wall clock: from 10:59 to 11:00 is 1, from 10:01 to 10:59 is 0.
// Negative when `to` lies before `from`.
std::int64_t HourBoundaries(const DateTime& from, const DateTime& to);

// Reads "2026-11-21T10:59:00" (seconds may be missing); nothing when the text is no such date.
std::optional<DateTime> ParseIsoDateTime(std::string_view text);

// "2026-11-21 10:59:00" with other marks: MomentText(moment, '-', ' ', ':') is this one.
std::string MomentText(const DateTime& moment, char date_mark, char between, char time_mark);

// The program's only source of time.
class Clock {
public:
  virtual ~Clock() = default;
  // The present moment as the system counts it.
  virtual std::chrono::system_clock::time_point Now() const = 0;
  // A system moment on the local wall clock.
  virtual DateTime ToLocal(std::chrono::system_clock::time_point moment) const = 0;

  DateTime LocalNow() const { return ToLocal(Now()); }
};

}  // namespace veritane::platform
