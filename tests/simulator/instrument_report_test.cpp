// What the simulated instrument tells besides its error numbers.
#include "tests/simulator/instrument_rig.h"

#include <gmock/gmock.h>

namespace veritane::simulator {
namespace {

using instrument_tests::InstrumentRig;

TEST(InstrumentReports, OnlyWhatANumberDoesNotTellIsReported) {
  CompartmentState set = InstrumentRig::Seeded(7);
  set.fault = 5;
  set.faultCount = 1;
  set.accessory = "ATR";
  InstrumentRig rig(set);
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, 5);
  EXPECT_EQ(rig.instrument.Align(rig.Request()), 11079);
  EXPECT_EQ(rig.reason, "") << "both were set in the compartment";
  rig.files.WriteBytes(InstrumentRig::kPath, "Sample = empty\nNoise = loud");
  EXPECT_EQ(rig.instrument.Align(rig.Request()), kCompartmentUnreadable);
  EXPECT_THAT(rig.reason,
              ::testing::AllOf(::testing::HasSubstr(InstrumentRig::kPath), ::testing::HasSubstr("line 2")));
}

}  // namespace
}  // namespace veritane::simulator
