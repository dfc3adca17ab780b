// The `app` lines of a script, on a compartment of their own.
#include "apps/veritane_console/instrument_commands.h"

#include "apps/compartment_path.h"
#include "platform/scripted/script_line.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace veritane::console {
namespace {

using simulator::CompartmentState;

class InstrumentCommandsTest : public ::testing::Test {
protected:
  void Set(const std::vector<std::string>& words) { EXPECT_TRUE(SetInstrument(bench_, words).empty()); }
  void Refuse(const std::vector<std::string>& words) {
    const CompartmentState before = InFile();
    EXPECT_THROW(SetInstrument(bench_, words), platform::RefusedLine) << words.back();
    EXPECT_EQ(InFile(), before) << words.back();
  }
  CompartmentState InFile() { return bench_.SampleCompartment().Read(); }

  tests::TemporaryFolder folder_;
  platform::SystemMachine machine_{folder_.Path(), "C"};
  apps::SimulatedBench bench_{machine_, [](std::chrono::milliseconds) {}};
};

TEST_F(InstrumentCommandsTest, ALineSetsOneThingAndLeavesTheOthers) {
  Set({"sample", "polystyrene 0.6 + PMMA 0.4"});
  Set({"accessory", "ATR"});
  Set({"fault", "-5", "3"});
  Set({"noise", "2.5"});
  Set({"duration", "0"});
  Set({"seed", "4294967295"});
  CompartmentState expected{.sample = "polystyrene 0.6 + PMMA 0.4",
                            .accessory = "ATR",
                            .fault = -5,
                            .faultCount = 3,
                            .noise = 2.5,
                            .duration = 0,
                            .seed = 4294967295U};
  EXPECT_EQ(InFile(), expected);
  Set({"fault", "11079"});
  Set({"seed", "random"});
  expected.fault = 11079;
  expected.faultCount = 1;
  expected.seed.reset();
  EXPECT_EQ(InFile(), expected);
}

TEST_F(InstrumentCommandsTest, WhatIsOutOfBoundsIsRefusedAndNotWritten) {
  Set({"seed", "7"});
  for (const char* seed : {"-1", "4294967296", "1.5", "none", ""}) Refuse({"seed", seed});
  for (const char* fault : {"2147483648", "-2147483649", "x"}) Refuse({"fault", fault});
  Refuse({"fault", "5", "-1"});
  Refuse({"noise", "-1"});
  Refuse({"duration", "3600001"});
  Refuse({"sample", "empty\r\nFault = 5"});
  Refuse({"colour", "red"});
  Refuse({"sample", "empty", "twice"});
}

TEST_F(InstrumentCommandsTest, ALineReplacesADamagedFile) {
  machine_.files.WriteBytes(apps::CompartmentPath(machine_), "Noise = much\r\n");
  Set({"sample", "caffeine"});
  CompartmentState expected;
  expected.sample = "caffeine";
  EXPECT_EQ(InFile(), expected);
}

TEST_F(InstrumentCommandsTest, AFileThatCannotBeWrittenRefusesTheLine) {
  std::filesystem::create_directory(folder_.Path() / "compartment.txt");
  Refuse({"sample", "caffeine"});
}

}  // namespace
}  // namespace veritane::console
