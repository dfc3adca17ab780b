// The log of the operations called.
#include "simulator/call_log.h"

#include <gmock/gmock.h>

namespace veritane::simulator {
namespace {

TEST(CallLog, WhereNobodyTakesTheCallsNoneAreKept) {
  CallLog calls;
  calls.Note("CloseDocument", true);
  calls.KeepNothing();
  calls.Note("OpenDocument", "C:\\a.bsp");
  EXPECT_THAT(calls.Take(), ::testing::IsEmpty());
}

}  // namespace
}  // namespace veritane::simulator
