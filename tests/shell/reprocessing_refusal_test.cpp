// Reprocessing that comes to no result: what is refused, in which words, and what is put back.
#include "tests/shell/reprocessing_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

TEST_F(ReprocessingTest, AListThatIsClosedChoosesNothing) {
  ChooseBoth("#0");
  Play({"click frmVeritane.cmdSamp", "file \"" + Sample("lots.bsp") + "\"", "close frmSelectSpectrum"});
  EXPECT_EQ(State().SampSelected, 0);
  EXPECT_EQ(Caption("frmVeritane.lblSampleName"), "");
  ExpectHandedBack(Calls());
  EXPECT_THAT(Reprocess("Euclidean", {"answer OK"}).Messages(), ElementsAre(kChooseBoth));
}

TEST_F(ReprocessingTest, ASampleFileThatCannotBeReadIsNotChosen) {
  Write(Sample("damaged.bsp"), "no spectrum");
  const auto damaged =
      Play({"click frmVeritane.cmdSamp", "file \"" + Sample("damaged.bsp") + "\"", "answer OK"});
  EXPECT_THAT(damaged.Messages(), ElementsAre(HasSubstr("damaged.bsp")));
  EXPECT_EQ(State().SampSelected, 0);
  EXPECT_EQ(LastCall(), "Interactive(true)");
  ExpectNoResult();
}

TEST_F(ReprocessingTest, BothMustBeChosenButPlsNeedsOnlyTheSample) {
  auto events = Reprocess("Euclidean", {"answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(kChooseBoth));
  EXPECT_EQ(events.Last("message")["title"], " Notice");
  EXPECT_EQ(events.Last("message")["icon"], "exclamation");
  Play(ChooseStandard(Standard("TABLET-1.bsp")));
  for (const char* algorithm : {"Euclidean", "Fourier", "Lumivar", "PLS", "Mark Peaks"}) {
    EXPECT_THAT(Reprocess(algorithm, {"answer OK"}).Messages(), ElementsAre(kChooseBoth)) << algorithm;
  }
  ExpectNoResult();
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(State().reprocessing, 0);

  Play({"click frmVeritane.cmdStandard", "cancel"});
  Play(ChooseSample(Sample("lots.bsp"), "#0"));
  EXPECT_THAT(Reprocess("Mark Peaks", {"answer OK"}).Messages(), ElementsAre(kChooseBoth));
  events = Reprocess("PLS", WithOkays({"file \"C:\\octane.cal\""}, 6));
  EXPECT_EQ(events.Messages().at(0), "Calibration file did not load. It cannot be read only.");
  EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum")) << "the prediction was under way, without a Standard";
  Play(BackToTab(5));
  EXPECT_EQ(events.Last("file-dialog")["title"], "Select calibration file");
  EXPECT_EQ(events.Last("file-dialog")["filter"], "(*.cal)|*.cal");
  EXPECT_EQ(State().calfilename, "C:\\octane.cal");
  EXPECT_THAT(Reprocess("PLS", {"cancel"}).Messages(), IsEmpty());
  ExpectNoResult();
}

TEST_F(ReprocessingTest, AStandardThatIsNoProductIsRefused) {
  WriteSpectrum(Standard("Stranger.bsp"), 100, 4, Bands(kPoints));
  ChooseBoth();
  Play(ChooseStandard(Standard("Stranger.bsp")));
  const auto events =
      Reprocess("Euclidean", {[this] {
                                EXPECT_EQ(run_.Screen().MousePointer(), platform::Pointer::kDefault);
                                EXPECT_NE(program_->lblStdName.Caption(), "") << "until the box is answered";
                              },
                              "answer OK"});
  EXPECT_THAT(events.Messages(),
              ElementsAre(" Product ID not found in the list of Standards. Please contact Supervisor."));
  EXPECT_EQ(events.Last("message")["title"], " Notice");
  EXPECT_EQ(events.Last("message")["icon"], "critical");
  EXPECT_EQ(Caption("frmVeritane.lblStdName"), "");
  EXPECT_EQ(Caption("frmVeritane.lblSampleName"), "");
  ExpectNoResult();
  const auto calls = Calls();
  ExpectHandedBack(calls);
  EXPECT_THAT(calls, Not(Contains(HasSubstr("lots.bsp"))));
}

TEST_F(ReprocessingTest, SpectraOfDifferentParametersAreRefusedWithTheLastReason) {
  struct Case {
    std::int32_t lower;
    double spacing;
    std::size_t points;
    const char* reason;
  };
  const std::vector<Case> cases{
      {200, 2, kPoints, " Spectral Resolutions are different."},
      {100, 4, kPoints - 1, " Number of points for spectra are different."},
      {200, 2, kPoints + 7, " Number of points for spectra are different."},
      {101, 4, kPoints - 1, " Number of points for spectra are different."},
      {101, 4, kPoints, " First wavenumbers of the spectra are different."},
  };
  ChooseBoth();
  for (const Case& each : cases) {
    // The same points at other places would correlate perfectly.
    WriteSpectrum(Sample("other.bsp"), each.lower, each.spacing, Bands(each.points));
    Play(ChooseSample(Sample("other.bsp")));
    Calls();
    for (const char* algorithm : {"Euclidean", "Fourier", "Lumivar"}) {
      const auto events = Reprocess(algorithm, {"answer OK"});
      EXPECT_THAT(events.Messages(), ElementsAre(std::string(" Cannot reprocess spectra.") + each.reason));
      EXPECT_EQ(events.Last("message")["title"], " Notice");
      EXPECT_EQ(events.Last("message")["icon"], "critical");
      ExpectNoResult();
      ExpectHandedBack(Calls());
      EXPECT_EQ(Caption("frmVeritane.lblSampleName"), Sample("other.bsp")) << "both stay as they are";
    }
  }
}

TEST_F(ReprocessingTest, ARunTimeErrorEndsInNoVerdictAndEveryDocumentIsClosed) {
  ChooseBoth();
  Reprocess("Euclidean");
  ASSERT_EQ(Verdict(), "PASS");
  struct Case {
    const char* algorithm;
    std::vector<double> values;
    int error;
  };
  const std::vector<Case> cases{{"Euclidean", std::vector<double>(kPoints, 0.5), 11},
                                {"Fourier", std::vector<double>(kPoints, 0.0), 11},
                                {"Fourier", Bands(120), 9},
                                {"Euclidean", Bands(33000), 6}};
  for (const Case& each : cases) {
    WriteSpectrum(Standard("TABLET-1.bsp"), 100, 4, each.values);
    WriteSamples({each.values, each.values});
    Calls();
    const auto events = Reprocess(each.algorithm, {"answer OK"});
    ASSERT_FALSE(events.Last("error").is_null()) << each.algorithm << " " << each.error;
    EXPECT_EQ(events.Last("error")["number"], each.error);
    ExpectNoResult();
    ExpectHandedBack(Calls());
  }
}

TEST_F(ReprocessingTest, AFileThatIsGoneOrATableThatIsDamagedIsNamed) {
  ChooseBoth();
  machine_.files.DeleteFile(Sample("lots.bsp"));
  EXPECT_THAT(Reprocess("Euclidean", {"answer OK"}).Messages(), ElementsAre(HasSubstr(Sample("lots.bsp"))));
  ExpectNoResult();
  EXPECT_EQ(LastCall(), "Interactive(true)");

  Write(Data("Meth.tbl"), " 3 \r\nOTHER,Film,Fourier,\r\n");
  EXPECT_THAT(Reprocess("Euclidean", {"answer OK"}).Messages(), ElementsAre(HasSubstr(Data("Meth.tbl"))));
  ExpectNoResult();
  ExpectHandedBack(Calls());
}

}  // namespace
}  // namespace veritane::tests
