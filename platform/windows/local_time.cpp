// The clock of Windows, and its time zone with the rules of each year.
#include "platform/run_time_error.h"
#include "platform/system/system_clock.h"
#include "platform/texts.h"
#include "platform/windows/windows_time.h"

#include <windows.h>

namespace veritane::platform {

namespace {

DateTime DateTimeOf(const SYSTEMTIME& time) {
  return {.year = time.wYear,
          .month = time.wMonth,
          .day = time.wDay,
          .hour = time.wHour,
          .minute = time.wMinute,
          .second = time.wSecond};
}

// The rules of the system's time zone in this year.
TIME_ZONE_INFORMATION RulesOf(WORD year) {
  DYNAMIC_TIME_ZONE_INFORMATION zone{};
  TIME_ZONE_INFORMATION rules{};
  ::GetDynamicTimeZoneInformation(&zone);
  if (!::GetTimeZoneInformationForYear(year, &zone, &rules)) ::GetTimeZoneInformation(&rules);
  return rules;
}

}  // namespace

// Not the standard library's: in 32-bit programs that one ends in January 2038.
std::chrono::system_clock::time_point PresentMoment() {
  FILETIME time;
  ::GetSystemTimePreciseAsFileTime(&time);
  return MomentOf(time);
}

DateTime LocalTimeOf(std::chrono::system_clock::time_point moment) {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(moment.time_since_epoch()).count();
  const SYSTEMTIME universal = SystemTimeOf(FromWallClockSeconds(seconds));
  const TIME_ZONE_INFORMATION rules = RulesOf(universal.wYear);
  SYSTEMTIME local;
  if (!::SystemTimeToTzSpecificLocalTime(&rules, &universal, &local)) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kDate));
  }
  return DateTimeOf(local);
}

std::chrono::system_clock::time_point MomentOf(const DateTime& local) {
  const SYSTEMTIME time = SystemTimeOf(local);
  const TIME_ZONE_INFORMATION rules = RulesOf(time.wYear);
  SYSTEMTIME universal;
  if (!::TzSpecificLocalTimeToSystemTime(&rules, &time, &universal)) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kDate));
  }
  return MomentAt(WallClockSeconds(DateTimeOf(universal)));
}

}  // namespace veritane::platform
