// A product that is judged by Lumivar, through the whole program.
#include "tests/identification/lumivar_reference.h"
#include "tests/identification/reference.h"
#include "tests/shell/program_fixture.h"

#include <cmath>

namespace veritane::tests {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
namespace reference = identification::reference;

constexpr const char* kHeader =
    "Sample Name,Date/Time,Product ID,Algorithm,Pass/Fail,Comparison,Operator Name\r\n";

class LumivarRunTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(true);
    WriteProducts({"PS,Disc,Lumivar,", "EU,Disc,Euclidean,"});
    for (const char* name : {"PS.bsp", "EU.bsp", "back.bsp"}) {
      CopyTestData("ftir/polystyrene.jdx", Standard(name));
    }
    CopyTestData("ftir/pmma.jdx", Standard("aspirin.bsp"));
  }

  std::string Report() { return run_.Get("frmResults.txtResults")["text"]; }
  bool ResultsAreShown() { return run_.Screen().Find("frmResults")->Shown(); }

  // The spectrum of a file as the program reads it.
  state::SpectrumBuffer Stored(const std::string& path) {
    const auto spectrum = Spectra(path).at(0);
    return {.Data = spectrum.ordinates,
            .Res = spectrum.spacing,
            .NumPts = static_cast<double>(spectrum.ordinates.Size())};
  }
  // Everything that the run shows and keeps of its bands, against a calculation of the tests' own.
  void ExpectBands(const reference::LumivarOutcome& expected) {
    const state::ProgramState& state = program_->State();
    const auto regions = run_.Get("frmVeritane.chart")["regions"];
    const std::string report = Report();
    ASSERT_THAT(regions, SizeIs(expected.bands.size()));
    ASSERT_EQ(state.ctr, static_cast<int>(expected.bands.size()));
    ASSERT_THAT(state.LumivarBandScore, SizeIs(expected.bands.size()));
    std::size_t line = 0;
    for (std::size_t k = 0; k < expected.bands.size(); ++k) {
      const int low = expected.bands[k].low;
      EXPECT_THAT(regions[k], ElementsAre(low, low + 100));
      EXPECT_EQ(state.LumivarBandLow[k], low);
      EXPECT_EQ(state.LumivarBandHigh[k], low + 100);
      EXPECT_NEAR(state.LumivarBandScore[k], static_cast<double>(expected.bands[k].measure), 0.000000501);
      const std::string range = std::to_string(low) + " - " + std::to_string(low + 100) + "     .";
      EXPECT_EQ(report.substr(line, range.size()), range);
      line = report.find("\r\n", line) + 2;
    }
    EXPECT_EQ(line, report.size());
    EXPECT_NEAR(state.comparison, static_cast<double>(expected.quality), 0.00501);
  }
};

TEST_F(LumivarRunTest, ADemonstrationEndsInBandsOnTheChartAReportAndTwoRecords) {
  const auto events = RunDemonstration("PS");
  EXPECT_THAT(events.Statuses(),
              ElementsAre(" Loading Standard....", " Scanning...", " Scanning...", " Calculating..."));
  ExpectBands(
      reference::Lumivar(reference::MeasuredSpectrum("polystyrene"), reference::MeasuredSpectrum("pmma")));
  EXPECT_THAT(run_.Get("frmVeritane.chart")["series"], SizeIs(2));
  EXPECT_EQ(Verdict(), "") << "Lumivar shows no verdict";
  EXPECT_EQ(Caption("frmVeritane.lblResult"),
            "Sample Name: Lot 7 .  Saturday November 21 2026 at 10:59:00  Operator= Ann");
  EXPECT_TRUE(ResultsAreShown());
  EXPECT_EQ(Read(Sample("PS.his")),
            kHeader + std::string("Lot 7,11/21/26 10:59:00,PS,Lumivar,Fail,,Ann\r\n"));
  EXPECT_EQ(Read(Data("log.txt")), "Ann," + Sample("PS.bsp") + ",11/21/26,10:59:00\r\n");
  EXPECT_TRUE(Exists(Sample("PS.bsp")));
}

TEST_F(LumivarRunTest, TheStandardItselfIsRecordedAsPass) {
  CopyTestData("ftir/polystyrene.jdx", Standard("aspirin.bsp"));
  RunDemonstration("PS");
  EXPECT_EQ(program_->State().comparison, 100);
  EXPECT_THAT(Read(Sample("PS.his")), HasSubstr(",PS,Lumivar,Pass,,Ann"));
  EXPECT_THAT(Report(), HasSubstr("500 - 600     .\r\n"));
}

TEST_F(LumivarRunTest, AStandardWhoseSpacingDoesNotDivideAHundredIsComparedPointByPoint) {
  CopyTestData("jcamp/jtpolys.jdx", Standard("PS.bsp"));
  state::SpectrumBuffer sample = Stored(Standard("PS.bsp"));
  ASSERT_NE(std::remainder(100, sample.Res), 0);
  for (std::size_t i = 0; i < sample.Data.Size(); ++i) {
    sample.Data.values[i] *= 1 + 0.01 * std::sin(static_cast<double>(i) / 7);
  }
  WriteSpectrum(Standard("aspirin.bsp"), sample.Data.lower, sample.Res, sample.Data.values);
  RunDemonstration("PS");
  ExpectBands(reference::Lumivar(Stored(Standard("PS.bsp")), Stored(Standard("aspirin.bsp"))));
}

TEST_F(LumivarRunTest, NullRegionsBelongToAnotherAlgorithm) {
  const auto quality_of = [this](const std::string& product) {
    if (program_ != nullptr) Play({"click frmVeritane.cmdBacktoMainMenu"});
    RunDemonstration(product);
    return program_->State().comparison;
  };
  const double lumivar = quality_of("PS");
  const double euclidean = quality_of("EU");
  Write(Data("Disc.nul"), " 1 \r\n4000 - 1000\r\n");
  EXPECT_NE(quality_of("EU"), euclidean) << "the regions are in force";
  EXPECT_EQ(quality_of("PS"), lumivar);
}

TEST_F(LumivarRunTest, TheReportGoesWithItsSpectrum) {
  RunDemonstration("PS");
  ASSERT_TRUE(ResultsAreShown());
  EXPECT_TRUE(run_.Get("frmResults.cmdPrint")["enabled"]);
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  EXPECT_FALSE(ResultsAreShown());

  RunDemonstration("PS", "Lot 8");
  Play({"key frmResults.txtResults Enter"});
  EXPECT_TRUE(ResultsAreShown());
  Play({"key frmResults.txtResults Escape"});
  EXPECT_FALSE(ResultsAreShown());
  EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum"));

  Play({"click frmVeritane.cmdBacktoMainMenu"});
  RunDemonstration("EU");
  EXPECT_FALSE(ResultsAreShown()) << "a comparison without a report";
  EXPECT_THAT(run_.Get("frmVeritane.chart")["regions"], IsEmpty());

  Play({"click frmVeritane.cmdBacktoMainMenu"});
  RunDemonstration("PS", "Lot 9");
  EXPECT_TRUE(ResultsAreShown());
  Play({"click frmVeritane.cmdNextSample", "click frmSamp.cmdSampleCancelled"});
  EXPECT_FALSE(ResultsAreShown()) << "the next sample begins";
}

TEST_F(LumivarRunTest, ASpectrumTooShortForABandIsAnErrorAndNoVerdict) {
  WriteSpectrum(Standard("PS.bsp"), 100, 4, Bands(30));
  WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(30));
  const auto events = Play(WithOkays(EnterSample("PS"), 4));
  EXPECT_EQ(events.Last("error")["number"], 9);
  EXPECT_THAT(std::string(events.Last("message")["text"]), HasSubstr("too short for a single Lumivar band"));
  EXPECT_FALSE(Exists(Sample("PS.his")));
  EXPECT_TRUE(std::isnan(program_->State().comparison));
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
  EXPECT_FALSE(ResultsAreShown());
}

TEST_F(LumivarRunTest, AMeasuredSampleIsJudgedAlikeAndCarriesItsQuality) {
  WriteSettings(false);
  WriteMeasuringMethod();
  WriteSpectrum(Standard("PS.bsp"), 100, 4, Bands(301));
  SetInstrument("polystyrene");
  RunDemonstration("PS");
  ASSERT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
  ExpectBands(reference::Lumivar(Stored(Standard("PS.bsp")), Stored(Sample("PS.bsp"))));
  EXPECT_TRUE(ResultsAreShown());
  EXPECT_THAT(Read(Sample("PS.his")), HasSubstr(",PS,Lumivar,Fail,,Ann"));
  EXPECT_THAT(Calls(), Contains("AddParameter(Comparison, 1)"));
}

}  // namespace
}  // namespace veritane::tests
