// Values of automation in other types, and how long a busy server is asked.
#include "platform/automation.h"

#include "platform/automation_waiting.h"
#include "tests/support/errors.h"

#include <gtest/gtest.h>

namespace veritane::platform {
namespace {

using tests::ErrorOf;

TEST(AutomationValues, NumbersBecomeEachOtherWithinTheirRangeAndNothingElseBecomesOne) {
  EXPECT_EQ(Int32Of(std::int16_t{-1}), -1);
  EXPECT_EQ(Int16Of(2.5), 2) << "half to even";
  EXPECT_EQ(Int16Of(-32768.0), -32768);
  EXPECT_EQ(NumberOf(true), -1);
  EXPECT_EQ(Int32Of({}), 0);
  EXPECT_TRUE(BooleanOf(std::int16_t{2}));
  EXPECT_EQ(ErrorOf([] { Int16Of(32768.0); }), 6);
  EXPECT_EQ(ErrorOf([] { Int32Of(3e9); }), 6);
  EXPECT_EQ(ErrorOf([] { NumberOf("1"); }), 13);
  EXPECT_EQ(ErrorOf([] { TextOf(1.0); }), 13);
  EXPECT_EQ(ErrorOf([] { ArrayOf(1.0); }), 13);
  EXPECT_EQ(ErrorOf([] { ObjectOf("1"); }), kObjectRequired);
  EXPECT_EQ(ErrorOf([] { ObjectOf(std::shared_ptr<AutomationObject>()); }), kObjectRequired);
}

TEST(AutomationWaiting, ABusyServerIsAskedAgainUntilItsTimeIsOver) {
  AutomationWaiting waiting;
  EXPECT_GT(RetryDelay(waiting, 0), 0);
  EXPECT_GT(RetryDelay(waiting, 9999), 0);
  EXPECT_FALSE(RetryDelay(waiting, 10000));
  EXPECT_FALSE(IsOverdue(waiting, 999999998));
  EXPECT_TRUE(IsOverdue(waiting, 999999999));
  waiting.busyServerRaisesError = false;
  EXPECT_TRUE(RetryDelay(waiting, 1'000'000)) << "without the error it is asked for ever";
}

}  // namespace
}  // namespace veritane::platform
