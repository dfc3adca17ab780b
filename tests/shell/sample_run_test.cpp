// The sample run through its forms: what is shown, what is filed, what is recorded, and every early end.
#include "tests/shell/program_fixture.h"

#include <cmath>

namespace veritane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr std::size_t kPoints = 400;

class SampleRunTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(true);
    WriteProducts({"ASPIRIN-1,Disc,Euclidean,", "FFT-1,Disc,Fourier,", "OCTANE,Disc,PLS,C:\\a.cal",
                   "ODD,Disc,Guesswork,"});
    WriteSpectrum(Standard("ASPIRIN-1.bsp"), 100, 4, Bands(kPoints));
    WriteSpectrum(Standard("FFT-1.bsp"), 100, 4, Bands(kPoints));
    WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(kPoints));
    WriteSpectrum(Standard("back.bsp"), 100, 4, Bands(kPoints));
  }

  // Nothing filed, no record, no chart: what an early end leaves.
  void ExpectNothingHappened() {
    EXPECT_THAT(machine_.files.ListFiles(Data("Samples")), IsEmpty());
    EXPECT_EQ(Read(Data("log.txt")), "");
    EXPECT_FALSE(IsVisible("frmVeritane.fraSpectrum"));
    EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
    EXPECT_EQ(run_.Screen().MousePointer(), platform::Pointer::kDefault);
  }
};

TEST_F(SampleRunTest, ADemonstrationEndsInAVerdictBothTracesOnOneScaleAFiledSpectrumAndTwoRecords) {
  const auto events = RunDemonstration("ASPIRIN-1");
  EXPECT_THAT(
      events.Messages(),
      ElementsAre(
          " A new Background is required. Please prepare sample compartment/ accessory for Background "
          "spectrum. Click on OK when ready to collect the background spectrum.",
          " Background Done",
          " Ready for Sample. Please prepare sample compartment/ accessory for Sample spectrum. Click "
          "OK to scan Sample."));
  EXPECT_THAT(events.Statuses(),
              ElementsAre(" Loading Standard....", " Scanning...", " Scanning...", " Calculating..."));
  EXPECT_EQ(Verdict(), "PASS");
  EXPECT_EQ(Caption("frmVeritane.fraSpectrum"), " Match Quality");
  EXPECT_EQ(Caption("frmVeritane.lblResult"),
            "Sample Name: Lot 7  100%.  Saturday November 21 2026 at 10:59:00  Operator= Ann");
  EXPECT_FALSE(IsVisible("frmVeritane.fraMainMenu"));

  const auto chart = run_.Get("frmVeritane.chart");
  EXPECT_THAT(chart["axes"]["x"], ElementsAre(400, 4 * (100 + 399)));
  EXPECT_THAT(chart["axes"]["Y"], ElementsAre(-0.1, 1.1));
  EXPECT_THAT(chart["axes"]["Y2"], ElementsAre(-0.1, 1.1));
  ASSERT_EQ(chart["series"].size(), 2U);
  EXPECT_EQ(chart["series"][1]["points"], kPoints);

  const auto filed = Spectra(Sample("ASPIRIN-1.bsp"));
  ASSERT_EQ(filed.size(), 1U);
  EXPECT_EQ(filed[0].name, "Lot 7");
  EXPECT_EQ(filed[0].ordinates.values, Bands(kPoints));
  EXPECT_EQ(Read(Sample("ASPIRIN-1.his")),
            "Sample Name,Date/Time,Product ID,Algorithm,Pass/Fail,Comparison,Operator Name\r\n"
            "Lot 7,11/21/26 10:59:00,ASPIRIN-1,Euclidean,Pass, 100,Ann\r\n");
  EXPECT_EQ(Read(Data("log.txt")), "Ann," + Sample("ASPIRIN-1.bsp") + ",11/21/26,10:59:00\r\n");
}

TEST_F(SampleRunTest, FourierFilesTheSpectrumAndNotItsTransform) {
  RunDemonstration("FFT-1");
  EXPECT_EQ(Verdict(), "PASS");
  const auto filed = Spectra(Sample("FFT-1.bsp"));
  ASSERT_EQ(filed.size(), 1U);
  EXPECT_EQ(filed[0].ordinates.values, Bands(kPoints));
  EXPECT_EQ(Spectra(Standard("FFT-1.bsp"))[0].ordinates.values, Bands(kPoints))
      << "nor does the Standard change";
}

TEST_F(SampleRunTest, AValueEqualToTheThresholdPassesAndOneBelowFails) {
  WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(kPoints, 2));
  WriteSettings(true, "0");
  RunDemonstration("ASPIRIN-1");
  const double quality = program_->State().comparison;
  ASSERT_LT(quality, 99);
  ASSERT_GT(quality, 1);
  const auto judge_at = [&](double threshold) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", threshold);
    Play(BackToTab(4));
    Play({"set frmVeritane.txtThreshold \"" + std::string(text) + "\"", "click frmVeritane.cmdMainMenu"});
    RunDemonstration("ASPIRIN-1");
    EXPECT_EQ(program_->State().comparison, quality);
    return Verdict();
  };
  EXPECT_EQ(judge_at(quality), "PASS");
  EXPECT_THAT(Read(Sample("ASPIRIN-1.his")), Not(HasSubstr(",Fail,")));
  EXPECT_EQ(judge_at(quality + 0.01), "FAIL");
  EXPECT_THAT(Read(Sample("ASPIRIN-1.his")), HasSubstr(",Euclidean,Fail,"));
}

TEST_F(SampleRunTest, WithoutTheOptionTheVerdictIsNotShownButRecorded) {
  Write(Data("settings.ini"), "1\r\n0\r\n\r\n1\r\n0\r\n90\r\n0\r\n\r\n0\r\n0\r\n");
  RunDemonstration("ASPIRIN-1");
  EXPECT_EQ(Verdict(), "");
  EXPECT_THAT(Read(Sample("ASPIRIN-1.his")), HasSubstr(",Euclidean,Pass, 100,Ann"));
}

TEST_F(SampleRunTest, TheProductIsFoundWithoutRegardToCaseAndSoAreItsFiles) {
  RunDemonstration("aspirin-1");
  EXPECT_EQ(Verdict(), "PASS");
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  RunDemonstration("Aspirin-1", "Lot 8");
  EXPECT_THAT(Read(Sample("ASPIRIN-1.his")), HasSubstr("Lot 8,11/21/26 10:59:00,Aspirin-1,"));
  EXPECT_THAT(machine_.files.ListFiles(Data("Samples")),
              ElementsAre("Aspirin-1-1.bsp", "Aspirin-1.bsp", "aspirin-1.his"))
      << "one product, one histogram file, and the first sample's file has made room";
}

TEST_F(SampleRunTest, TheParserCutsTheProductOutOfABarcodeAndTheRecordKeepsAllOfIt) {
  Write(Standard("ProductID.par"), " 8 \r\n 9 \r\n");
  RunDemonstration("LOT123-ASPIRIN-1-2026");
  EXPECT_EQ(Verdict(), "PASS");
  EXPECT_THAT(Read(Sample("ASPIRIN-1.his")), HasSubstr(",LOT123-ASPIRIN-1-2026,"));
  const auto events =
      Play({"click frmVeritane.cmdNextSample", "get frmSamp.cmbStandards", "set frmSamp.cmbStandards \"LOT\"",
            "type frmSamp.txtSampName \"x\"", "key frmSamp.txtSampName Enter", "answer OK"});
  EXPECT_EQ(events.LastGot("frmSamp.cmbStandards")["text"], "ASPIRIN-1") << "the product of the run before";
  EXPECT_THAT(events.Messages(),
              ElementsAre(" Product ID not found in the list of Standards. Please contact Supervisor."));
}

TEST_F(SampleRunTest, CancellingTheDialogInAnyWayDoesNothing) {
  Play({"start", "click frmVeritane.cmdSample", "click frmSamp.cmdSampleCancelled"});
  Play({"click frmVeritane.cmdSample", "close frmSamp"});
  Play({"click frmVeritane.cmdSample", "key frmSamp.txtSampName Escape"});
  ExpectNothingHappened();
  EXPECT_THAT(Calls(), ElementsAre("Interactive(true)", "Interactive(true)", "Interactive(true)"));
}

TEST_F(SampleRunTest, NamesMustBeThereBeforeTheDialogGoes) {
  const auto events =
      Play({"click frmVeritane.cmdSample", "click frmSamp.cmdProductIDOkay", "answer OK",
            "type frmSamp.txtSampName \"Lot 7\"", "type frmSamp.txtOperatorName \"\"",
            "key frmSamp.txtSampName Enter", "answer OK", "list", "click frmSamp.cmdSampleCancelled"});
  EXPECT_THAT(events.Messages(), ElementsAre("Please enter a Sample Name.", "Please enter an Operator Name"));
  EXPECT_EQ(events.Last("message")["icon"], "exclamation");
  ExpectNothingHappened();
}

TEST_F(SampleRunTest, AScannersEnterGoesOnToTheSampleNameAndThereConfirms) {
  const auto events = Play(
      {"click frmVeritane.cmdSample", "type frmSamp.cmbStandards \"NONE\"", "key frmSamp.cmbStandards Enter",
       [this] { EXPECT_TRUE(run_.Screen().Find("frmSamp")->Find("txtSampName")->HasFocus()); },
       "type frmSamp.txtSampName \"Lot\"", "key frmSamp.txtSampName Enter", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(StartsWith(" Product ID not found")));
  EXPECT_EQ(events.Last("message")["title"], " Notice");
  EXPECT_EQ(events.Last("message")["icon"], "critical");
  ExpectNothingHappened();
}

TEST_F(SampleRunTest, AnAlgorithmThatIsNotThereSaysSoBeforeAnythingIsMeasured) {
  EXPECT_THAT(Play(WithOkays(EnterSample("ODD"))).Messages(),
              ElementsAre(HasSubstr("is not available in this version")));
  ExpectNothingHappened();
}

TEST_F(SampleRunTest, OneKeyAfterAResultTheNextSampleCanBeEntered) {
  RunDemonstration("ASPIRIN-1");
  const auto events = Play({"key frmVeritane.cmdNextSample Enter", "get frmSamp.txtSampName",
                            "get frmVeritane.chart", "click frmSamp.cmdSampleCancelled"});
  EXPECT_EQ(events.LastGot("frmSamp.txtSampName")["text"], "") << "no name of the sample before";
  EXPECT_THAT(events.LastGot("frmVeritane.chart")["series"], IsEmpty()) << "no trace of it either";
  EXPECT_EQ(Verdict(), "");
  EXPECT_TRUE(std::isnan(program_->State().comparison));
}

TEST_F(SampleRunTest, SpectraMeasuredDifferentlyAreRefusedBeforeAnythingIsFiled) {
  WriteSpectrum(Standard("aspirin.bsp"), 200, 2, Bands(kPoints));
  const Steps steps = WithOkays(EnterSample("ASPIRIN-1"), 4);
  auto events = Play(steps);
  EXPECT_EQ(events.Last("message")["text"],
            "Sample and Standard have been collected using different spectral resolutions (different Collect "
            "Methods "
            "used?). Please contact Supervisor.");
  ExpectNothingHappened();

  WriteSpectrum(Standard("aspirin.bsp"), 155, 4, Bands(kPoints));
  events = Play(steps);
  EXPECT_EQ(
      events.Last("message")["text"],
      "Sample and Standard have different starting points (different Collect Methods used?). Please contact "
      "Supervisor.");
  EXPECT_EQ(events.Last("message")["title"], "Notice");
  EXPECT_EQ(events.Last("message")["icon"], "critical");
  ExpectNothingHappened();
  EXPECT_EQ(LastCall(), "Interactive(true)");
}

TEST_F(SampleRunTest, ALongerSampleThanItsStandardIsAnErrorAndAShorterOneIsComparedAsFarAsItGoes) {
  WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(kPoints + 1));
  const auto events = Play(WithOkays(EnterSample("ASPIRIN-1"), 4));
  EXPECT_EQ(events.Last("error")["number"], 9);
  EXPECT_THAT(std::string(events.Last("message")["text"]),
              StartsWith("Run-time error 9: Subscript out of range"));
  EXPECT_FALSE(IsVisible("frmVeritane.fraSpectrum"));
  EXPECT_TRUE(IsVisible("frmVeritane.cmdSample"));
  EXPECT_FALSE(run_.Screen().Find("frmStatus")->Shown());
  EXPECT_EQ(Verdict(), "");
  EXPECT_FALSE(Exists(Sample("ASPIRIN-1.his"))) << "no verdict, no record of one";
  EXPECT_EQ(LastCall(), "Interactive(true)");

  WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(kPoints - 50));
  RunDemonstration("ASPIRIN-1", "Lot 8");
  EXPECT_EQ(run_.Get("frmVeritane.chart")["series"][1]["points"], kPoints - 50);
  EXPECT_GT(program_->State().comparison, 0);
  EXPECT_THAT(Read(Sample("ASPIRIN-1.his")), HasSubstr("Lot 8,"));
}

TEST_F(SampleRunTest, AComparisonThatCannotBeMadeEndsInAnErrorAndNeverInAPass) {
  struct Case {
    const char* product;
    std::vector<double> values;
    int error;
    int boxes;
  };
  const std::vector<Case> cases{{"ASPIRIN-1", std::vector<double>(kPoints, 0.5), 11, 4},
                                {"FFT-1", std::vector<double>(kPoints, 0.0), 11, 4},
                                {"FFT-1", Bands(120), 9, 4},
                                {"ASPIRIN-1", Bands(33000), 6, 1}};
  for (const Case& each : cases) {
    WriteSpectrum(Standard("aspirin.bsp"), 100, 4, each.values);
    WriteSpectrum(Standard(std::string(each.product) + ".bsp"), 100, 4, each.values);
    // A Standard at fault ends the run at once; a sample, after the boxes that ask for it.
    const auto events = Play(WithOkays(EnterSample(each.product), each.boxes));
    ASSERT_FALSE(events.Last("error").is_null()) << each.product << " " << each.error;
    EXPECT_EQ(events.Last("error")["number"], each.error);
    EXPECT_THAT(events.Refusals(), IsEmpty());
    EXPECT_FALSE(IsVisible("frmVeritane.fraSpectrum"));
  }
}

TEST_F(SampleRunTest, AResultThatCannotBeRecordedStaysOnScreenAndTheOperatorIsTold) {
  machine_.files.CreateFolder(Sample("ASPIRIN-1.his"));
  const auto events = Play(WithOkays(EnterSample("ASPIRIN-1"), 4));
  EXPECT_EQ(events.Last("error")["number"], 75);
  EXPECT_THAT(std::string(events.Last("message")["text"]),
              HasSubstr("The sample is filed in " + Sample("ASPIRIN-1.bsp") +
                        ", but its result could not be recorded."));
  EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
  EXPECT_EQ(Verdict(), "PASS");
}

TEST_F(SampleRunTest, TextThatIsNoNameOrBreaksARecordDoesNotGetIn) {
  WriteProducts({"ASPIRIN-1,..\\evil,Euclidean,", "A:B,Disc,Euclidean,"});
  for (const char* product : {"ASPIRIN-1", "A:B"}) {
    EXPECT_THAT(Play(WithOkays(EnterSample(product))).Messages(),
                ElementsAre(HasSubstr("cannot name the product's files")))
        << product;
  }
  Play({"click frmVeritane.cmdSample", "set frmSamp.txtOperatorName \"Ann\rforged\"",
        "get frmSamp.txtOperatorName",
        [this] { EXPECT_EQ(run_.Get("frmSamp.txtOperatorName")["text"], "Annforged"); },
        "click frmSamp.cmdSampleCancelled"});
}

TEST_F(SampleRunTest, ANumberedFileNeverTakesTheNameOfAnotherProduct) {
  WriteProducts({"ASPIRIN-1,Disc,Euclidean,", "ASPIRIN-1-1,Disc,Euclidean,"});
  RunDemonstration("ASPIRIN-1");
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  RunDemonstration("ASPIRIN-1", "Lot 8");
  EXPECT_THAT(machine_.files.ListFiles(Data("Samples")),
              ElementsAre("ASPIRIN-1-2.bsp", "ASPIRIN-1.bsp", "ASPIRIN-1.his"));
}

TEST_F(SampleRunTest, ADamagedTableIsNamedWithItsLine) {
  Write(Data("Meth.tbl"), " 3 \r\nASPIRIN-1,Disc,Euclidean,\r\n");
  const auto events = Play({"click frmVeritane.cmdSample", "answer OK"});
  EXPECT_THAT(std::string(events.Last("message")["text"]),
              HasSubstr("Input past end of file: " + Data("Meth.tbl")));
  EXPECT_FALSE(run_.Screen().Find("frmSamp")->Shown());
}

}  // namespace
}  // namespace veritane::tests
