// The range of the clock.
#include "platform/system/system_clock.h"

#include "tests/support/errors.h"

#include <gtest/gtest.h>

#include <limits>

namespace veritane::platform {
namespace {

using tests::ErrorOf;

TEST(SystemClock, MomentsBeyondItsRangeAreAnOverflow) {
  SystemClock clock;
  for (const int year : {1500, 1676, 2263, 2300, 9999}) {
    EXPECT_EQ(ErrorOf([&] { clock.Set({.year = year, .month = 1, .day = 1}); }), 6) << year;
  }
  for (const std::int64_t seconds :
       {std::int64_t{9'223'372'036}, std::int64_t{-9'223'372'037}, std::numeric_limits<std::int64_t>::max(),
        std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_EQ(ErrorOf([&] { MomentAt(seconds); }), 6) << seconds;
  }
}

TEST(SystemClock, TellsAllMomentsInItsRangeAlsoTheSecondBeforeItsEpoch) {
  SystemClock clock;
  for (const DateTime& moment :
       {DateTime{.year = 1678, .month = 1, .day = 1},
        DateTime{.year = 1969, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59},
        DateTime{.year = 2261, .month = 12, .day = 31}}) {
    clock.Set(moment);
    EXPECT_EQ(clock.LocalNow(), moment) << moment.year;
  }
  EXPECT_EQ(MomentAt(-1).time_since_epoch(), std::chrono::seconds(-1));
}

}  // namespace
}  // namespace veritane::platform
