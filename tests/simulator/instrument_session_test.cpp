// The instrument behind the Spectrometer application: a background, a Standard and a sample through files, as
// the program collects them.
#include "simulator/simulated_spectrometer.h"
#include "simulator/spectrum_file.h"
#include "tests/simulator/instrument_rig.h"
#include "tests/support/standing_clock.h"

#include <gtest/gtest.h>

#include <chrono>

namespace veritane::simulator::instrument_tests {
namespace {

class Session : public ::testing::Test {
protected:
  Session() { rig.files.WriteBytes(kMethod, CollectMethodText(rig.method)); }

  // The error number; the collected spectrum is in the file when it is 0.
  int Collect(const std::string& sample, const std::string& path, const std::string& background) {
    rig.PutSample(sample);
    const auto document = app.NewDocument(path);
    const auto method = app.LoadCollectMethod(kMethod);
    if (!background.empty()) method->SetBackgroundFile(background);
    method->SetCollectOption("NI");
    const int error = document->CollectInto(*method);
    document->CloseDocument(error == 0);
    return error;
  }

  std::vector<double> ValuesIn(const std::string& path) {
    const auto document = app.OpenDocument(path);
    std::vector<double> values = document->GetSpectrumAt(1)->SpectrumData()->Values().values;
    document->CloseDocument(false);
    return values;
  }

  static constexpr const char* kMethod = "C:\\Methods\\Initial.clm";
  InstrumentRig rig;
  tests::StandingClock clock;
  SimulatedSpectrometer app{rig.files, clock, rig.instrument};
};

TEST_F(Session, AStandardMatchesItsSampleThroughFiles) {
  ASSERT_EQ(Collect("empty", "C:\\back.bsp", ""), 0);
  ASSERT_EQ(Collect("aspirin", "C:\\standard.bsp", "C:\\back.bsp(1)"), 0);
  ASSERT_EQ(Collect("aspirin", "C:\\sample.bsp", "C:\\back.bsp(1)"), 0);
  ASSERT_EQ(Collect("caffeine", "C:\\other.bsp", "C:\\back.bsp(1)"), 0);
  const std::vector<double> standard = ValuesIn("C:\\standard.bsp");
  ASSERT_EQ(standard.size(), 3601u);
  EXPECT_GT(MatchQuality(standard, ValuesIn("C:\\sample.bsp")), 99);
  EXPECT_LT(MatchQuality(standard, ValuesIn("C:\\other.bsp")), 50);
}

TEST_F(Session, ABackgroundSurvivesItsFileForEverySpacing) {
  CompartmentState quiet = InstrumentRig::Seeded(1);
  quiet.noise = 0;
  rig.Put(quiet);
  for (double spacing : {0.25, 0.482, 1.0, 1.928, 4.0}) {
    rig.method.spacing = spacing;
    rig.files.WriteBytes(kMethod, CollectMethodText(rig.method));
    ASSERT_EQ(Collect("empty", "C:\\back.bsp", ""), 0) << spacing;
    ASSERT_EQ(Collect("empty", "C:\\line.bsp", "C:\\back.bsp(1)"), 0) << spacing << rig.reason;
    for (double absorbance : ValuesIn("C:\\line.bsp")) ASSERT_NEAR(absorbance, 0, 1e-12) << spacing;
  }
}

TEST_F(Session, AMissingOrDamagedBackgroundIsAnErrorNumber) {
  EXPECT_EQ(Collect("aspirin", "C:\\a.bsp", "C:\\back.bsp(1)"), kBackgroundMissing);
  rig.files.WriteBytes("C:\\back.bsp", "##TITLE=cut");
  EXPECT_EQ(Collect("aspirin", "C:\\a.bsp", "C:\\back.bsp(1)"), kBackgroundMissing);
  EXPECT_NE(rig.reason, "");
  EXPECT_FALSE(rig.files.FileExists("C:\\a.bsp"));
}

TEST_F(Session, AnAccessoryThatIsWrongTwiceIsThenMeasured) {
  CompartmentState state = InstrumentRig::Seeded(7);
  state.fault = 11079;
  state.faultCount = 2;
  rig.Put(state);
  const auto document = app.NewDocument("C:\\back.bsp");
  const auto method = app.LoadCollectMethod(kMethod);
  EXPECT_EQ(document->CollectInto(*method), 11079);
  EXPECT_EQ(document->CollectInto(*method), 11079);
  EXPECT_EQ(document->GetSpectrumCount(), 0);
  EXPECT_EQ(document->CollectInto(*method), 0);
  EXPECT_EQ(document->GetSpectrumCount(), 1);
  document->CloseDocument(true);
  EXPECT_EQ(ReadSpectrumFile("C:\\back.bsp", rig.files.ReadBytes("C:\\back.bsp")).spectra.size(), 1u);
}

}  // namespace
}  // namespace veritane::simulator::instrument_tests
