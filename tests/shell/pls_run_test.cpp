// "PLS" in a sample run, for a new Standard and in reprocessing, on the data that ship.
#include "plslibrary/calibration_file.h"
#include "simulator/collect_method.h"
#include "tests/shell/program_fixture.h"

#include <algorithm>

namespace veritane::tests {
namespace {

using ::testing::AnyOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class PlsRunTest : public ProgramTest {
protected:
  void SetUp() override {
    LayOutShippedData();
    WriteSettings(false);
    SetInstrument("empty");
    Play({"start"});
    Measured("empty");
  }

  // With the noise of the instrument as delivered.
  void Measured(const std::string& sample) {
    bench_.SampleCompartment().Write(
        {.sample = sample, .accessory = simulator::kAtrAccessory, .duration = 0, .seed = 7});
  }
  platform::Events MeasureBlend() {
    Steps steps = WithOkays(EnterSample("ps-pe-blend"), 2);
    steps.emplace_back([this] { Measured("polystyrene 0.3 + polyethylene 0.7"); });
    return Play(WithOkays(std::move(steps)));
  }
  std::vector<std::string> Header() { return run_.Get("frmVeritane.chart")["header"]; }
};

TEST_F(PlsRunTest, ABlendIsPredictedWithinTheErrorThatItsCrossValidationPromises) {
  MeasureBlend();
  const plslibrary::Calibration calibration =
      plslibrary::CalibrationFile(Read(Standard("polymer blend.cal"))).Read(1);
  const state::ProgramState& state = program_->State();
  ASSERT_EQ(state.PLSConcentrations.size(), 3U);
  EXPECT_LT(calibration.sets[0].rmsecv, 1) << "percent";
  EXPECT_NEAR(state.PLSConcentrations[1], 30, 3 * calibration.sets[0].rmsecv);
  EXPECT_NEAR(state.PLSConcentrations[2], 70, 3 * calibration.sets[1].rmsecv);

  const auto header = Header();
  ASSERT_EQ(header.size(), 2U);
  EXPECT_THAT(header[0], StartsWith("Polystyrene = "));
  EXPECT_THAT(header[1], ::testing::AnyOf(::testing::MatchesRegex("Polyethylene = 6.\\... %"),
                                          ::testing::MatchesRegex("Polyethylene = 7.\\... %")));
  EXPECT_EQ(Verdict(), "");
  EXPECT_THAT(Caption("frmVeritane.lblResult"), StartsWith("Sample Name: Lot 7 .  "));
  EXPECT_THAT(Read(Sample("ps-pe-blend.his")), HasSubstr(",ps-pe-blend,PLS,Fail,,Ann\r\n"));
  EXPECT_FALSE(run_.Screen().Find("MainForm")->Shown());

  const auto filed = Spectra(Sample("ps-pe-blend.bsp")).at(0);
  EXPECT_TRUE(std::any_of(filed.parameters.begin(), filed.parameters.end(), [&](const auto& parameter) {
    return parameter.name == "Polystyrene [%]" &&
           std::get<double>(parameter.value) == state.PLSConcentrations[1];
  }));
}

TEST_F(PlsRunTest, TheSampleUnderJudgementIsPredictedNotTheFirstOfItsFile) {
  MeasureBlend();
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  Measured("polystyrene 0.8 + polyethylene 0.2");
  Play(WithOkays(EnterSample("ps-pe-blend")));
  EXPECT_NEAR(program_->State().PLSConcentrations[1], 80, 4);

  // Reprocessing predicts the chosen one, and needs no Standard for it.
  Play(BackToTab(5));
  Play({"click frmVeritane.cmdSamp", "file \"" + Sample("ps-pe-blend.bsp") + "\"",
        "choose frmSelectSpectrum.lstSpectrum #0", "choose frmVeritane.cmbAlg \"PLS\"",
        "click frmVeritane.cmdNow", "file \"" + Standard("polymer blend.cal") + "\""});
  EXPECT_NEAR(program_->State().PLSConcentrations[1], 30, 4);
  EXPECT_THAT(Header(), ElementsAre(" Reprocess Standard ---------", " Reprocess Sample ---------Lot 7",
                                    "Sample Name: Lot 7 Algorithm=PLS", StartsWith("Polystyrene = "),
                                    StartsWith("Polyethylene = ")));
  EXPECT_EQ(run_.Get("frmVeritane.chart")["series"][0]["points"], 0) << "the sample alone";
  EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
}

TEST_F(PlsRunTest, APredictionThatFailsIsToldAndLeavesNoValues) {
  MeasureBlend();
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  machine_.files.DeleteFile(Standard("polymer blend.cal"));
  const auto messages = Play(WithOkays(EnterSample("ps-pe-blend"), 7)).Messages();
  EXPECT_EQ(messages.at(1), "Calibration file did not load. It cannot be read only.");
  EXPECT_THAT(std::vector(messages.begin() + 2, messages.end()),
              Each(AnyOf("No Calibration file Loaded", "No prediction structure present")));
  EXPECT_THAT(Header(), ElementsAre("The prediction failed. There are no values to show."));
  EXPECT_THAT(Read(Sample("ps-pe-blend.his")), HasSubstr("\r\nLot 7,"));
  EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum")) << "the sample is filed and shown all the same";
}

TEST_F(PlsRunTest, APredictionWithoutASpectrumIsAnErrorAndItsFormGoesAgain) {
  const auto show = [this] { run_.Screen().Perform([this] { run_.Screen().Find("MainForm")->Show(); }); };
  const platform::Events events = Play({show, "answer OK"});
  EXPECT_THAT(events.Refusals(), IsEmpty());
  EXPECT_THAT(events.Messages(), ElementsAre(HasSubstr("there is no spectrum to predict")));
  EXPECT_FALSE(run_.Screen().Find("MainForm")->Shown());
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
}

TEST_F(PlsRunTest, ANewStandardShowsWhatItsCalibrationPredicts) {
  std::vector<std::string> header;
  Play({"click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 3", "click frmVeritane.cmdCollectStdNow",
        "type frmCollectStd.txtProductID \"BLEND-2\"", "choose frmCollectStd.cmbmth \"ATR crystal\"",
        "choose frmCollectStd.cmbAlg \"PLS\"", "click frmCollectStd.cmdChooseCalFile",
        "file \"" + Standard("polymer blend.cal") + "\"", "click frmCollectStd.cmdScan", "answer OK",
        "answer OK", [this] { Measured("polystyrene 0.5 + polyethylene 0.5"); }, "answer OK",
        [&] { header = program_->chart.Header(); }, "answer OK"});
  EXPECT_THAT(header, ElementsAre(StartsWith("Polystyrene = "), StartsWith("Polyethylene = ")));
  EXPECT_NEAR(program_->State().PLSConcentrations[1], 50, 4);
  EXPECT_THAT(Table(), HasSubstr("BLEND-2,ATR crystal,PLS," + Standard("polymer blend.cal") + "\r\n"));
}

}  // namespace
}  // namespace veritane::tests
