// Lines that set the clock.
#include "tests/scripted/sample_forms.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veritane::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(SetClock, AMomentThatTheClockCannotTellIsRefusedAndLeavesTheOpenBoxAlone) {
  SampleRun sample;
  bool was_answered = false;
  sample.run.program.setClock = [](const DateTime&) {
    throw RunTimeError(ErrorNumber::kOverflow, "the date");
  };
  sample.frmMain.cmdGo.OnClick = [&] {
    sample.run.Screen().ShowMessage({.text = "Ready", .title = ""});
    was_answered = true;
  };
  const Events events = sample.Lines({"click frmMain.cmdGo", "now 2300-01-01T00:00", "answer OK"});
  EXPECT_THAT(events.Refusals(), ElementsAre(HasSubstr("Overflow: the date")));
  EXPECT_TRUE(was_answered);
}

}  // namespace
}  // namespace veritane::platform
