// Wall-clock arithmetic.
#include "platform/date_time.h"

#include <gtest/gtest.h>

namespace veritane::platform {
namespace {

DateTime At(const char* text) {
  const auto moment = ParseIsoDateTime(text);
  EXPECT_TRUE(moment) << text;
  return moment.value_or(DateTime{});
}

TEST(DateTime, HoursCountAsBoundariesOnTheWallClock) {
  const struct {
    const char* from;
    const char* to;
    int hours;
  } cases[] = {
      {"2026-11-21T10:59", "2026-11-21T11:00", 1},       {"2026-11-21T10:01", "2026-11-21T10:59:59", 0},
      {"2026-11-21T23:59:59", "2026-11-22T00:00", 1},    {"2026-11-30T22:30", "2026-12-01T01:10", 3},
      {"2026-12-31T23:10", "2027-01-01T00:05", 1},       {"2024-02-28T23:00", "2024-02-29T23:00", 24},
      {"2026-03-29T01:30", "2026-03-29T03:00", 2},       {"2026-11-21T11:00", "2026-11-21T10:59", -1},
      {"1969-12-31T22:30:00", "1969-12-31T23:00:00", 1},
  };
  for (const auto& entry : cases) {
    EXPECT_EQ(HourBoundaries(At(entry.from), At(entry.to)), entry.hours) << entry.from << " to " << entry.to;
  }
}

TEST(DateTime, SecondsAndBackGiveTheSameMoment) {
  for (const char* text :
       {"2026-11-21T10:59:07", "1969-12-31T23:59:59", "2000-02-29T00:00:00", "2100-03-01T12:00:00"}) {
    EXPECT_EQ(FromWallClockSeconds(WallClockSeconds(At(text))), At(text)) << text;
  }
  EXPECT_EQ(DayOfWeek(At("2026-11-21T00:00")), 6) << "a Saturday";
}

TEST(DateTime, MomentsAreWrittenWithTheMarksAskedForAndAllTheirDigits) {
  EXPECT_EQ(MomentText(At("2026-11-21T10:59:00"), '-', ' ', '-'), "2026-11-21 10-59-00");
  EXPECT_EQ(MomentText(At("0026-01-02T03:04:05"), '/', 'T', ':'), "0026/01/02T03:04:05");
}

TEST(DateTime, OnlyRealMomentsAreRead) {
  for (const char* text : {"",
                           "2026-11-21",
                           "2026-02-30T10:00",
                           "2026-11-21T24:00",
                           "2026-11-21T10:60",
                           "2026-11-21T10:00:61",
                           "2026-11-21T10:00Z",
                           "2026-13-01T00:00",
                           "2026-11-21T10:59:5x",
                           "2026-11-21T10:59:5",
                           "2026-11-21T10:59:",
                           "2026-11- 1T10:59",
                           "2026-11-21T+1:59",
                           "2026-11-21T10:-9",
                           "2026-11-21T 9:59",
                           " 026-11-21T10:59",
                           "-126-11-21T10:59",
                           "2026-1-21T10:59",
                           "2026-11-21T10:59:00 ",
                           "2026-11-21 10:59"}) {
    EXPECT_FALSE(ParseIsoDateTime(text)) << text;
  }
}

}  // namespace
}  // namespace veritane::platform
