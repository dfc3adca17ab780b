// A product whose peaks are marked, through the whole program.
#include "tests/shell/program_fixture.h"

#include <cmath>

namespace veritane::tests {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MarkPeaksRunTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(true);
    WriteProducts({"PS,Disc,Mark Peaks," + Data("peaks.txt"), "NONE,Disc,Mark Peaks,"});
    for (const char* name : {"PS.bsp", "NONE.bsp", "back.bsp", "polys.bsp"}) {
      CopyTestData("ftir/polystyrene.jdx", Standard(name));
    }
    Write(Data("peaks.txt"), "3026;2922\r\n1601.235\t1493 1452\r\n100, 5000\r\n");
  }

  // A run that ends in an error.
  platform::Events RunToError(const std::string& product) { return Play(WithOkays(EnterSample(product))); }
  void ExpectNoResult() {
    EXPECT_EQ(Read(Data("log.txt")), "") << "nothing was measured and filed without a result";
    EXPECT_THAT(machine_.files.ListFiles(Data("Samples")), IsEmpty());
    EXPECT_FALSE(IsVisible("frmVeritane.fraSpectrum"));
    EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
    EXPECT_THAT(run_.Get("frmVeritane.chart")["markers"], IsEmpty());
    EXPECT_THAT(program_->State().peakPositions, IsEmpty());
  }
};

TEST_F(MarkPeaksRunTest, ADemonstrationMarksThePeaksAndJudgesNothing) {
  RunDemonstration("PS");
  const auto chart = run_.Get("frmVeritane.chart");
  EXPECT_THAT(chart["markers"], ElementsAre(3026, 2922, 1601.235, 1493, 1452, 100, 5000));
  EXPECT_THAT(chart["series"], SizeIs(2));
  EXPECT_THAT(chart["labels"], ElementsAre("", "", "", ""));
  EXPECT_THAT(program_->State().peakPositions, ElementsAre(3026, 2922, 1601.235, 1493, 1452, 100, 5000));
  EXPECT_TRUE(std::isnan(program_->State().comparison));
  EXPECT_EQ(Caption("frmVeritane.lblResult"),
            "Sample Name: Lot 7 .  Saturday November 21 2026 at 10:59:00  Operator= Ann");
  EXPECT_FALSE(run_.Screen().Find("frmResults")->Shown());
  EXPECT_THAT(Read(Sample("PS.his")), HasSubstr("Lot 7,11/21/26 10:59:00,PS,Mark Peaks,Fail,,Ann\r\n"));
  EXPECT_EQ(Read(Data("log.txt")), "Ann," + Sample("PS.bsp") + ",11/21/26,10:59:00\r\n");
}

TEST_F(MarkPeaksRunTest, MeasuredSamplesAreFiledOneAfterAnotherAndNoDocumentStaysOpen) {
  WriteSettings(false);
  WriteMeasuringMethod();
  WriteSpectrum(Standard("PS.bsp"), 100, 4, Bands(301));
  SetInstrument("polystyrene");
  RunDemonstration("PS");
  Calls();
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  Play(WithOkays(EnterSample("PS", "Lot 8")));
  ASSERT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
  const auto calls = Calls();
  ExpectHandedBack(calls);
  const auto filed = Spectra(Sample("PS.bsp"));
  ASSERT_EQ(filed.size(), 2U);
  EXPECT_EQ(filed[1].name, "Lot 8");
  EXPECT_THAT(calls, Contains("SetValue()")) << "no number stands for what was not compared";
}

TEST_F(MarkPeaksRunTest, ADamagedOrMissingPeakFileIsNamedBeforeAnythingIsMeasured) {
  Write(Data("peaks.txt"), "3026\r\n2922\r\nabout 1601\r\n");
  auto events = RunToError("PS");
  EXPECT_EQ(events.Last("error")["number"], 13);
  EXPECT_THAT(std::string(events.Last("message")["text"]),
              AllOf(HasSubstr(Data("peaks.txt") + ", line 3"), HasSubstr("\"about\"")));
  ExpectNoResult();

  Write(Data("peaks.txt"), "\r\n");
  EXPECT_EQ(RunToError("PS").Last("error")["number"], 62);
  ExpectNoResult();

  machine_.files.DeleteFile(Data("peaks.txt"));
  events = RunToError("PS");
  EXPECT_EQ(events.Last("error")["number"], 53);
  EXPECT_THAT(std::string(events.Last("message")["text"]), HasSubstr("peaks.txt"));
  ExpectNoResult();

  events = RunToError("NONE");
  EXPECT_EQ(events.Last("error")["number"], 53);
  EXPECT_THAT(std::string(events.Last("message")["text"]), HasSubstr("names no peak file"));
  ExpectNoResult();
}

TEST_F(MarkPeaksRunTest, AFileThatBreaksWhileTheSampleIsMeasuredLeavesNoPeakOfTheRunBefore) {
  RunDemonstration("PS");
  ASSERT_FALSE(program_->State().peakPositions.empty());
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  Steps steps = EnterSample("PS");
  steps.push_back([this] { Write(Data("peaks.txt"), "none"); });
  EXPECT_EQ(Play(WithOkays(steps, 4)).Last("error")["number"], 13);
  EXPECT_THAT(program_->State().peakPositions, IsEmpty());
  EXPECT_THAT(run_.Get("frmVeritane.chart")["markers"], IsEmpty());
  EXPECT_FALSE(IsVisible("frmVeritane.fraSpectrum"));
}

}  // namespace
}  // namespace veritane::tests
