// The instrument behind the Spectrometer application: a background and what is measured against it, through
// files, as the program collects them.
#include "simulator/simulated_spectrometer.h"
#include "tests/simulator/instrument_rig.h"
#include "tests/support/standing_clock.h"

#include <gtest/gtest.h>

namespace veritane::simulator::instrument_tests {
namespace {

class Session : public ::testing::Test {
protected:
  Session() { rig.files.WriteBytes(kMethod, CollectMethodText(rig.method)); }

  // The error number; the collected spectrum is in the file when it is 0.
  int Collect(const std::string& path, const std::string& background) {
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

TEST_F(Session, ABackgroundSurvivesItsFileForEverySpacing) {
  rig.Put(InstrumentRig::Quiet());
  for (double spacing : {0.25, 0.482, 1.0, 1.928, 4.0}) {
    rig.method.spacing = spacing;
    rig.files.WriteBytes(kMethod, CollectMethodText(rig.method));
    ASSERT_EQ(Collect("C:\\back.bsp", ""), 0) << spacing;
    ASSERT_EQ(Collect("C:\\line.bsp", "C:\\back.bsp(1)"), 0) << spacing << rig.reason;
    for (double absorbance : ValuesIn("C:\\line.bsp")) ASSERT_NEAR(absorbance, 0, 1e-12) << spacing;
  }
}

}  // namespace
}  // namespace veritane::simulator::instrument_tests
