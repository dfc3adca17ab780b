// The compartment's file.
#include "tests/simulator/instrument_rig.h"
#include "tests/support/errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veritane::simulator::instrument_tests {
namespace {

constexpr const char* kPath = InstrumentRig::kPath;

TEST(Compartment, WithoutAFileIsEmptyAndQuiet) {
  tests::MemoryFileSystem files;
  EXPECT_EQ(Compartment(files, kPath).Read(), CompartmentState{});
  EXPECT_EQ(Compartment(files, kPath).TakeFault(), 0);
  EXPECT_EQ(files.writes, 0);
}

TEST(Compartment, IsReadAsWritten) {
  tests::MemoryFileSystem files;
  CompartmentState state;
  state.sample = "Z:\\spectra\\film = 3.jdx";
  state.accessory = "ATR";
  state.fault = 70000;
  state.faultCount = 3;
  state.noise = 2.5;
  state.duration = 0;
  state.seed = 4294967295U;
  Compartment(files, kPath).Write(state);
  EXPECT_EQ(Compartment(files, kPath).Read(), state);
  state.seed.reset();
  Compartment(files, kPath).Write(state);
  EXPECT_EQ(Compartment(files, kPath).Read(), state);
}

TEST(Compartment, TakesHandWrittenFiles) {
  tests::MemoryFileSystem files;
  files.WriteBytes(kPath, "# by hand\nsample = Aspirin\nSEED=RANDOM\nNoise =\nColour = green");
  const CompartmentState state = Compartment(files, kPath).Read();
  EXPECT_EQ(state.sample, "Aspirin");
  EXPECT_EQ(state.seed, std::nullopt);
  EXPECT_EQ(state.noise, 1);
}

TEST(Compartment, AFaultIsTakenAsOftenAsItsCount) {
  tests::MemoryFileSystem files;
  CompartmentState state;
  state.sample = "caffeine";
  state.fault = 5;
  state.faultCount = 2;
  Compartment(files, kPath).Write(state);
  // Each call is a program of its own that looks at the same file.
  EXPECT_EQ(Compartment(files, kPath).TakeFault(), 5);
  EXPECT_EQ(Compartment(files, kPath).Read().faultCount, 1);
  EXPECT_EQ(Compartment(files, kPath).TakeFault(), 5);
  EXPECT_EQ(Compartment(files, kPath).TakeFault(), 0);
  EXPECT_EQ(Compartment(files, kPath).Read().sample, "caffeine");
}

TEST(Compartment, AFaultThatCannotBeCountedIsNotTaken) {
  tests::MemoryFileSystem files;
  CompartmentState state;
  state.fault = 5;
  state.faultCount = 2;
  Compartment compartment(files, kPath);
  compartment.Write(state);
  files.writeFault = 61;
  EXPECT_EQ(tests::ErrorOf([&] { compartment.TakeFault(); }), 61);
  EXPECT_EQ(compartment.Read(), state);
}

TEST(Compartment, ValuesThatMakeNoSenseAreNamedWithFileAndLine) {
  tests::MemoryFileSystem files;
  for (const char* line : {"Noise = much", "Noise = -1", "Duration = 1.5", "Duration = -1", "Fault = x",
                           "FaultCount = -1", "Seed = 1e12", "Seed = none", "just words"}) {
    files.WriteBytes(kPath, std::string("Sample = caffeine\r\n") + line + "\r\n");
    try {
      Compartment(files, kPath).Read();
      ADD_FAILURE() << "was read: " << line;
    } catch (const platform::RunTimeError& error) {
      EXPECT_THAT(error.what(),
                  ::testing::AllOf(::testing::HasSubstr(kPath), ::testing::HasSubstr("line 2")));
    }
  }
}

TEST(Compartment, WhatCouldNotBeReadAgainIsNotWritten) {
  tests::MemoryFileSystem files;
  for (const auto& spoil : std::vector<void (*)(CompartmentState&)>{
           [](auto& state) { state.sample = "empty\r\nFault = 5"; }, [](auto& state) { state.noise = -1; },
           [](auto& state) { state.duration = -1; }, [](auto& state) { state.faultCount = 100000; }}) {
    CompartmentState state;
    spoil(state);
    EXPECT_EQ(tests::ErrorOf([&] { Compartment(files, kPath).Write(state); }), 5);
    EXPECT_EQ(files.writes, 0);
  }
}

}  // namespace
}  // namespace veritane::simulator::instrument_tests
