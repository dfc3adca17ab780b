// Tenths of microseconds from the year 1601, and moments in parts.
#include "platform/windows/windows_time.h"

#include "platform/system/system_clock.h"

#include <cstdint>

namespace veritane::platform {

namespace {

constexpr std::int64_t kTicksToUnixEpoch = 116'444'736'000'000'000;
using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;

}  // namespace

FILETIME FileTimeOf(std::chrono::system_clock::time_point moment) {
  const std::int64_t ticks =
      std::chrono::duration_cast<Ticks>(moment.time_since_epoch()).count() + kTicksToUnixEpoch;
  return {static_cast<DWORD>(ticks & 0xffffffff), static_cast<DWORD>(ticks >> 32)};
}

std::chrono::system_clock::time_point MomentOf(FILETIME time) {
  const std::int64_t ticks = (std::int64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
  const Ticks since_epoch(ticks - kTicksToUnixEpoch);
  const auto seconds = std::chrono::floor<std::chrono::seconds>(since_epoch);
  return MomentAt(seconds.count()) +
         std::chrono::duration_cast<std::chrono::system_clock::duration>(since_epoch - seconds);
}

SYSTEMTIME SystemTimeOf(const DateTime& moment) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(moment.year);
  time.wMonth = static_cast<WORD>(moment.month);
  time.wDay = static_cast<WORD>(moment.day);
  time.wDayOfWeek = static_cast<WORD>(DayOfWeek(moment));
  time.wHour = static_cast<WORD>(moment.hour);
  time.wMinute = static_cast<WORD>(moment.minute);
  time.wSecond = static_cast<WORD>(moment.second);
  return time;
}

}  // namespace veritane::platform
