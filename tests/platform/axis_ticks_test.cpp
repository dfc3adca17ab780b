// Tick values and labels for every kind of range.
#include "platform/axis_ticks.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace veritane::platform {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> Labels(double from, double to, int wanted) {
  std::vector<std::string> labels;
  for (const AxisTick& tick : AxisTicks(from, to, wanted)) labels.push_back(tick.label);
  return labels;
}

TEST(AxisTicks, StandAtRoundValuesInsideTheRange) {
  EXPECT_THAT(Labels(400, 4000, 7),
              ElementsAre("500", "1000", "1500", "2000", "2500", "3000", "3500", "4000"));
  EXPECT_THAT(Labels(-0.08, 1.1, 6), ElementsAre("0", "0.2", "0.4", "0.6", "0.8", "1.0"));
  EXPECT_THAT(Labels(-5, 5, 4), ElementsAre("-4", "-2", "0", "2", "4"));
  EXPECT_THAT(Labels(1600.1, 1600.4, 3), ElementsAre("1600.1", "1600.2", "1600.3", "1600.4"));
}

TEST(AxisTicks, AReversedRangeHasTheSameTicks) {
  EXPECT_EQ(Labels(4000, 400, 7), Labels(400, 4000, 7));
}

TEST(AxisTicks, ValuesAreExactDecimals) {
  const auto ticks = AxisTicks(0, 1, 10);
  ASSERT_EQ(ticks.size(), 11U);
  EXPECT_EQ(ticks[3].value, 0.3);
  EXPECT_EQ(ticks[7].value, 0.7);
}

TEST(AxisTicks, TinyAndHugeRangesAreLabelledWithAPowerOfTen) {
  EXPECT_THAT(Labels(0, 3e-8, 3), ElementsAre("0", "1e-8", "2e-8", "3e-8"));
  EXPECT_THAT(Labels(0, 3e9, 6), ElementsAre("0", "5e8", "1.0e9", "1.5e9", "2.0e9", "2.5e9", "3.0e9"));
  const double largest = std::numeric_limits<double>::max();
  for (const auto& [low, high] :
       {std::pair{-largest, largest}, {0.0, largest}, {0.0, 1e-300}, {-1e-308, 1e-308}}) {
    const auto ticks = AxisTicks(low, high, 5);
    ASSERT_FALSE(ticks.empty());
    EXPECT_LE(ticks.size(), 12U);
    for (const AxisTick& tick : ticks) {
      EXPECT_TRUE(tick.value >= low && tick.value <= high) << tick.value;
      EXPECT_FALSE(tick.label.empty());
    }
  }
}

TEST(AxisTicks, ARangeWithoutWidthHasOneTickAndAnInfiniteOneNone) {
  EXPECT_THAT(Labels(5, 5, 4), ElementsAre("5"));
  EXPECT_THAT(Labels(1e15, 1e15 + 0.125, 4), ::testing::SizeIs(1));
  EXPECT_THAT(Labels(0, std::nan(""), 4), ElementsAre());
  EXPECT_THAT(Labels(-std::numeric_limits<double>::infinity(), 1, 4), ElementsAre());
}

TEST(AxisTicks, TheirNumberIsNearTheOneWantedAndTheirDistanceEven) {
  for (double range = 0.001; range < 1e5; range *= 1.37) {
    for (const int wanted : {3, 6, 12}) {
      const auto ticks = AxisTicks(range * 0.4, range * 1.4, wanted);
      EXPECT_GE(ticks.size(), static_cast<std::size_t>(wanted) / 2) << range;
      EXPECT_LE(ticks.size(), static_cast<std::size_t>(wanted) * 2 + 1) << range;
      for (std::size_t i = 2; i < ticks.size(); ++i) {
        const double step = ticks[1].value - ticks[0].value;
        EXPECT_NEAR(ticks[i].value - ticks[i - 1].value, step, step * 1e-9);
      }
    }
  }
}

}  // namespace
}  // namespace veritane::platform
