// Calendar arithmetic on wall-clock moments.
#include "platform/date_time.h"

#include <cstdio>
#include <string>

namespace veritane::platform {

namespace {

constexpr std::int64_t kSecondsPerDay = 86400;

std::chrono::sys_days Days(const DateTime& moment) {
  return std::chrono::year(moment.year) / std::chrono::month(static_cast<unsigned>(moment.month)) /
         std::chrono::day(static_cast<unsigned>(moment.day));
}

std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) {
  const std::int64_t quotient = value / divisor;
  return value % divisor < 0 ? quotient - 1 : quotient;
}

}  // namespace

int DayOfWeek(const DateTime& moment) {
  return static_cast<int>(std::chrono::weekday(Days(moment)).c_encoding());
}

std::int64_t WallClockSeconds(const DateTime& moment) {
  return Days(moment).time_since_epoch().count() * kSecondsPerDay + std::int64_t{moment.hour} * 3600 +
         std::int64_t{moment.minute} * 60 + moment.second;
}

DateTime FromWallClockSeconds(std::int64_t seconds) {
  const std::int64_t days = FloorDivide(seconds, kSecondsPerDay);
  const auto rest = static_cast<int>(seconds - days * kSecondsPerDay);
  const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(days))};
  return {.year = static_cast<int>(date.year()),
          .month = static_cast<int>(static_cast<unsigned>(date.month())),
          .day = static_cast<int>(static_cast<unsigned>(date.day())),
          .hour = rest / 3600,
          .minute = rest / 60 % 60,
          .second = rest % 60};
}

std::int64_t HourBoundaries(const DateTime& from, const DateTime& to) {
  return FloorDivide(WallClockSeconds(to), 3600) - FloorDivide(WallClockSeconds(from), 3600);
}

std::optional<DateTime> ParseIsoDateTime(std::string_view text) {
  DateTime moment;
  int used = 0;
  const std::string copy(text);
  const int fields = std::sscanf(copy.c_str(), "%4d-%2d-%2dT%2d:%2d%n", &moment.year, &moment.month,
                                 &moment.day, &moment.hour, &moment.minute, &used);
  if (fields != 5) return std::nullopt;
  std::string_view rest = text.substr(static_cast<std::size_t>(used));
  if (!rest.empty()) {
    if (rest.size() != 3 || std::sscanf(copy.c_str() + used, ":%2d", &moment.second) != 1)
      return std::nullopt;
  }
  const std::chrono::year_month_day date(std::chrono::year(moment.year),
                                         std::chrono::month(static_cast<unsigned>(moment.month)),
                                         std::chrono::day(static_cast<unsigned>(moment.day)));
  const bool time_is_real = moment.hour >= 0 && moment.hour < 24 && moment.minute >= 0 &&
                            moment.minute < 60 && moment.second >= 0 && moment.second < 60;
  if (!date.ok() || !time_is_real) return std::nullopt;
  return moment;
}

}  // namespace veritane::platform
