// Calendar arithmetic on wall-clock moments.
#include "platform/date_time.h"

#include <algorithm>
#include <charconv>

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

// Whether the text is the form, in which "0" stands for any digit.
bool HasForm(std::string_view text, std::string_view form) {
  return std::equal(text.begin(), text.end(), form.begin(), form.end(),
                    [](char c, char place) { return place == '0' ? c >= '0' && c <= '9' : c == place; });
}

std::string Digits(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

int NumberIn(std::string_view digits) {
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
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
  if (!HasForm(text, "0000-00-00T00:00") && !HasForm(text, "0000-00-00T00:00:00")) return std::nullopt;
  const DateTime moment{.year = NumberIn(text.substr(0, 4)),
                        .month = NumberIn(text.substr(5, 2)),
                        .day = NumberIn(text.substr(8, 2)),
                        .hour = NumberIn(text.substr(11, 2)),
                        .minute = NumberIn(text.substr(14, 2)),
                        .second = text.size() > 16 ? NumberIn(text.substr(17, 2)) : 0};
  const std::chrono::year_month_day date(std::chrono::year(moment.year),
                                         std::chrono::month(static_cast<unsigned>(moment.month)),
                                         std::chrono::day(static_cast<unsigned>(moment.day)));
  const bool time_is_real = moment.hour < 24 && moment.minute < 60 && moment.second < 60;
  if (!date.ok() || !time_is_real) return std::nullopt;
  return moment;
}

std::string MomentText(const DateTime& moment, char date_mark, char between, char time_mark) {
  return Digits(moment.year, 4) + date_mark + Digits(moment.month, 2) + date_mark + Digits(moment.day, 2) +
         between + Digits(moment.hour, 2) + time_mark + Digits(moment.minute, 2) + time_mark +
         Digits(moment.second, 2);
}

}  // namespace veritane::platform
