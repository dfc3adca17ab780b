// The clock and the time zone of a POSIX system.
#include "platform/run_time_error.h"
#include "platform/system/system_clock.h"
#include "platform/texts.h"

#include <algorithm>
#include <ctime>

namespace veritane::platform {

std::chrono::system_clock::time_point PresentMoment() {
  return std::chrono::system_clock::now();
}

DateTime LocalTimeOf(std::chrono::system_clock::time_point moment) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
  std::tm broken{};
  if (::localtime_r(&seconds, &broken) == nullptr)
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kDate));
  return {.year = broken.tm_year + 1900,
          .month = broken.tm_mon + 1,
          .day = broken.tm_mday,
          .hour = broken.tm_hour,
          .minute = broken.tm_min,
          .second = std::min(broken.tm_sec, 59)};
}

std::chrono::system_clock::time_point MomentOf(const DateTime& local) {
  std::tm broken{};
  broken.tm_year = local.year - 1900;
  broken.tm_mon = local.month - 1;
  broken.tm_mday = local.day;
  broken.tm_hour = local.hour;
  broken.tm_min = local.minute;
  broken.tm_sec = local.second;
  broken.tm_isdst = -1;
  // A failure's answer is that of the last second of 1969, which alone sets the day of the week.
  broken.tm_wday = -1;
  const std::time_t seconds = std::mktime(&broken);
  if (broken.tm_wday < 0) throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kDate));
  return MomentAt(seconds);
}

}  // namespace veritane::platform
