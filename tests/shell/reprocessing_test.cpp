// Reprocessing through its forms: choosing, the calls, what a run shows, and that it writes nothing.
#include "tests/shell/reprocessing_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

TEST_F(ReprocessingTest, FilesAreChosenFromTheirFoldersAndCancelLeavesNothingChosen) {
  auto events = Play({"click frmVeritane.cmdStandard", "cancel"});
  EXPECT_EQ(events.Last("file-dialog")["title"], " Select Standard Spectrum.");
  EXPECT_EQ(events.Last("file-dialog")["filter"], "(*.bsp)|*.bsp");
  EXPECT_EQ(events.Last("file-dialog")["folder"], Data("Standards"));
  EXPECT_EQ(State().StandardSelected, 0);
  events = Play({"click frmVeritane.cmdSamp", "cancel"});
  EXPECT_EQ(events.Last("file-dialog")["title"], " Select Sample Spectrum.");
  EXPECT_EQ(events.Last("file-dialog")["filter"], "(*.bsp)|*.bsp");
  EXPECT_EQ(events.Last("file-dialog")["folder"], Data("Samples"));
  EXPECT_EQ(State().SampSelected, 0);
  EXPECT_THAT(Calls(), IsEmpty());

  ChooseBoth();
  EXPECT_EQ(Caption("frmVeritane.lblStdName"), Standard("TABLET-1.bsp"));
  EXPECT_EQ(Caption("frmVeritane.lblSampleName"), Sample("lots.bsp"));
  EXPECT_EQ(State().StandardSelected, 1);
  EXPECT_EQ(State().SampSelected, 1);

  Play({"click frmVeritane.cmdStandard", "cancel", "click frmVeritane.cmdSamp", "cancel"});
  EXPECT_EQ(State().StandardSelected, 0);
  EXPECT_EQ(State().SampSelected, 0);
  EXPECT_EQ(State().reprocessStdName, Standard("TABLET-1.bsp")) << "nothing but the flag changes";
  EXPECT_EQ(Caption("frmVeritane.lblSampleName"), Sample("lots.bsp"));
  EXPECT_THAT(Reprocess("Euclidean", {"answer OK"}).Messages(), ElementsAre(kChooseBoth));
}

TEST_F(ReprocessingTest, AFileOfSeveralSpectraAsksWhichOne) {
  const auto events = Play({"click frmVeritane.cmdSamp", "file \"" + Sample("lots.bsp") + "\"",
                            [this] {
                              const auto* dialog = run_.Screen().Find("frmSelectSpectrum");
                              EXPECT_EQ(dialog->Caption(), "Select a Spectrum");
                              EXPECT_TRUE(dialog->Modal());
                              EXPECT_TRUE(dialog->Find("lstSpectrum")->HasFocus());
                            },
                            "get frmSelectSpectrum.lstSpectrum", "choose frmSelectSpectrum.lstSpectrum #2"});
  EXPECT_THAT(events.LastGot("frmSelectSpectrum.lstSpectrum")["items"],
              ElementsAre("Lot 1 Collected on 2026/11/21 10:59:00", "Lot 2 Collected on 2026/11/22 10:59:00",
                          "Lot 3 Collected on 2026/11/23 10:59:00"));
  EXPECT_EQ(events.LastGot("frmSelectSpectrum.lstSpectrum")["selected"], -1);
  EXPECT_EQ(State().reprocesssampindex, 3);
  EXPECT_EQ(State().SpectrumIndex, 3);
  EXPECT_EQ(State().spectrumName, Sample("lots.bsp"));
  EXPECT_THAT(Calls(), ElementsAre("Interactive(false)", "OpenDocument(" + Sample("lots.bsp") + ")",
                                   "Interactive(false)", "SetDocumentShown(0)", "GetSpectrumCount",
                                   "GetSpectrumAt(1)", "GetParameter(SpectName)", "GetParameter(Time)",
                                   "GetSpectrumAt(2)", "GetParameter(SpectName)", "GetParameter(Time)",
                                   "GetSpectrumAt(3)", "GetParameter(SpectName)", "GetParameter(Time)",
                                   "CloseDocument", "Interactive(true)"));
}

TEST_F(ReprocessingTest, AFileOfOneSpectrumIsTakenWithoutAskingUnderNumberTwo) {
  WriteSamples({Bands(kPoints, 1)});
  Play(ChooseStandard(Standard("TABLET-1.bsp")));
  const auto events = Play(ChooseSample(Sample("lots.bsp")));
  EXPECT_THAT(events.Named("form"), IsEmpty());
  EXPECT_EQ(State().reprocesssampindex, 2);
  EXPECT_EQ(State().SampSelected, 1);
  ExpectHandedBack(Calls());

  Reprocess("Euclidean");
  EXPECT_THAT(Calls(), Contains("SelectSpectrum(2)"));
  EXPECT_THAT(Header()[1], HasSubstr("Lot 1"));
}

TEST_F(ReprocessingTest, EveryCallOfARunComesInItsOrder) {
  ChooseBoth("#0");
  const auto events = Reprocess("Euclidean");
  EXPECT_THAT(events.Statuses(), ElementsAre(" Loading Standard....", " Calculating..."));
  EXPECT_THAT(Calls(),
              ElementsAre("Interactive(false)", "OpenDocument(" + Standard("TABLET-1.bsp") + ")",
                          "SetDocumentShown(0)", "SelectSpectrum(1)", "GetSpectrum", "SpectrumData",
                          "CloseDocument(false)", "Interactive(false)",
                          "OpenDocument(" + Sample("lots.bsp") + ")", "SetDocumentShown(0)",
                          "SelectSpectrum(1)", "PrepareSampleView", "GetSpectrum", "GetParameter(SpectName)",
                          "GetSpectrum", "SpectrumData", "CloseDocument(false)", "Interactive(true)"));
  for (const char* algorithm : {"Fourier", "Lumivar"}) {
    Reprocess(algorithm);
    ExpectHandedBack(Calls());
  }
  Reprocess("Mark Peaks", {"file \"" + Data("peaks.txt") + "\""});
  ExpectHandedBack(Calls());
}

TEST_F(ReprocessingTest, TheResultStandsInTheSpectrumPanelUnderItsHeader) {
  ChooseBoth("#0");
  Reprocess("Euclidean");
  EXPECT_EQ(Caption("frmVeritane.fraSpectrum"), "Reprocessed");
  EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
  EXPECT_FALSE(IsVisible("frmVeritane.fraSupervisorMode"));
  EXPECT_FALSE(IsVisible("frmVeritane.fraMainMenu"));
  EXPECT_EQ(Caption("frmVeritane.lblStdName"), "");
  EXPECT_EQ(Caption("frmVeritane.lblSampleName"), "");
  EXPECT_GT(State().comparison, 0);
  EXPECT_LT(State().comparison, 100);
  EXPECT_EQ(Verdict(), "FAIL");
  EXPECT_EQ(program_->chart.Verdict(), platform::VerdictColour::kFail);
  EXPECT_THAT(Header(),
              ElementsAre(" Reprocess Standard ---------TABLET-1", " Reprocess Sample ---------Lot 1",
                          "Sample Name: Lot 1  Match Quality = " + platform::NumberText(State().comparison) +
                              " %. Algorithm = Euclidean"));
  const auto chart = run_.Get("frmVeritane.chart");
  EXPECT_THAT(chart["axes"]["x"], ElementsAre(400, 1600));
  ASSERT_THAT(chart["series"], SizeIs(2));
  EXPECT_EQ(chart["series"][1]["points"], kPoints);

  Reprocess("Lumivar");
  EXPECT_EQ(Verdict(), "") << "its number is no verdict";
  EXPECT_EQ(Header()[2], "Sample Name: Lot 1 Algorithm=Lumivar");
  EXPECT_FALSE(std::isnan(State().comparison));
}

TEST_F(ReprocessingTest, TheChosenSpectrumIsTheOneComparedAndAChoiceSurvivesARun) {
  ChooseBoth("#1");
  for (const char* algorithm : {"Euclidean", "Fourier", "Lumivar", "Euclidean"}) {
    Reprocess(algorithm);
    EXPECT_EQ(State().comparison, 100) << algorithm;
    EXPECT_THAT(Header()[2], StartsWith("Sample Name: Lot 2"));
    EXPECT_EQ(State().StandardSelected, 1);
    EXPECT_EQ(State().SampSelected, 1);
  }
  EXPECT_EQ(Verdict(), "PASS");
  for (const char* entry : {"#0", "#2"}) {
    Play(BackToTab(5));
    Play(ChooseSample(Sample("lots.bsp"), entry));
    Reprocess("Euclidean");
    EXPECT_LT(State().comparison, 90) << entry;
    EXPECT_EQ(Verdict(), "FAIL");
  }
}

TEST_F(ReprocessingTest, MeasuredSamplesAreFoundAgainInTheirFile) {
  Play({"click frmVeritane.cmdMainMenu"});
  WriteProducts({"PS,Disc,Euclidean,"});
  WriteSpectrum(Standard("PS.bsp"), 100, 4, Bands(kPoints));
  WriteSpectrum(Standard("backDisc.bsp"), 100, 4, std::vector<double>(kPoints, 50.0));
  const auto measure = [&](const char* material, const char* name) {
    Steps steps = EnterSample("PS", name);
    steps.insert(steps.end(), {[=, this] { SetInstrument(material); }, "answer OK",
                               "click frmVeritane.cmdBacktoMainMenu"});
    Play(steps);
    return State().comparison;
  };
  const double polystyrene = measure("polystyrene", "Granules");
  const double caffeine = measure("caffeine", "Drum 1");
  ASSERT_NE(polystyrene, caffeine);

  Play({"click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 5"});
  Play(ChooseStandard(Standard("PS.bsp")));
  Play(ChooseSample(Sample("PS.bsp"), "\"Drum 1 Collected on 2026/11/21 10:59:00\""));
  Reprocess("Euclidean");
  EXPECT_EQ(State().comparison, caffeine) << "what the sample run found";
  Play(BackToTab(5));
  Play(ChooseSample(Sample("PS.bsp"), "#0"));
  Reprocess("Euclidean");
  EXPECT_EQ(State().comparison, polystyrene);
  EXPECT_EQ(State().reprocessing, 1);

  Play({"click frmVeritane.cmdNextSample", "click frmSamp.cmdSampleCancelled"});
  EXPECT_EQ(State().reprocessing, 0) << "an operator's sample is no reprocessing any more";
}

TEST_F(ReprocessingTest, AMatchEqualToTheThresholdPassesAndOneBelowFails) {
  ChooseBoth("#0");
  Reprocess("Euclidean");
  const double quality = State().comparison;
  const auto judge_at = [&](double threshold) {
    Play(BackToTab(4));
    Play({"set frmVeritane.txtThreshold \"" + platform::FormatPattern(threshold, "0.00") + "\"",
          "click frmVeritane.cmdMainMenu", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 5",
          "click frmVeritane.cmdNow"});
    EXPECT_EQ(State().comparison, quality);
    return Verdict();
  };
  EXPECT_EQ(judge_at(quality), "PASS");
  EXPECT_EQ(program_->chart.Verdict(), platform::VerdictColour::kPass);
  EXPECT_EQ(judge_at(quality + 0.01), "FAIL");

  Play(BackToTab(4));
  Play({"click frmVeritane.chkPrintPassFail", "tab frmVeritane.SSTab1 5", "click frmVeritane.cmdNow"});
  EXPECT_EQ(Verdict(), "") << "the option is off";
  EXPECT_EQ(State().comparison, quality);
}

TEST_F(ReprocessingTest, MarkPeaksAsksForItsFileFirstAndCancelEndsTheRun) {
  ChooseBoth();
  const auto cancelled = Reprocess("Mark Peaks", {"cancel"});
  EXPECT_EQ(cancelled.Last("file-dialog")["title"], "Select peak file");
  EXPECT_EQ(cancelled.Last("file-dialog")["filter"], "(*.txt)|*.txt");
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(State().calfilename, "");
  EXPECT_EQ(State().algorithm, "");
  EXPECT_EQ(Caption("frmVeritane.lblStdName"), Standard("TABLET-1.bsp"));
  ExpectNoResult();

  Reprocess("Mark Peaks", {"file \"" + Data("peaks.txt") + "\""});
  EXPECT_EQ(State().calfilename, Data("peaks.txt"));
  EXPECT_THAT(run_.Get("frmVeritane.chart")["markers"], ElementsAre(640, 1000, 1440));
  EXPECT_EQ(Header()[2], "Sample Name: Lot 2 Algorithm=Mark Peaks");
  EXPECT_EQ(Verdict(), "");
  Reprocess("Euclidean");
  EXPECT_THAT(run_.Get("frmVeritane.chart")["markers"], IsEmpty()) << "no mark of the run before";
}

TEST_F(ReprocessingTest, TheNullRegionsOfTheProductsMethodLeaveTheirBandsOut) {
  std::vector<double> with_band = Bands(kPoints);
  // Another band at 1480 cm⁻¹, where neither spectrum has its highest or lowest point.
  for (std::size_t i = 265; i < 276; ++i) with_band[i] += 0.3;
  WriteSamples({with_band, Bands(kPoints)});
  ChooseBoth("#0");
  Reprocess("Euclidean");
  const double everywhere = State().comparison;
  Write(Data("Disc.nul"), " 1 \r\n1520 - 1440\r\n");
  Reprocess("Euclidean");
  EXPECT_GT(State().comparison, everywhere + 1);
  Write(Data("Film.nul"), " 1 \r\n1600 - 400\r\n");
  const double with_regions = State().comparison;
  Reprocess("Euclidean");
  EXPECT_EQ(State().comparison, with_regions) << "the regions of another method mean nothing";
}

TEST_F(ReprocessingTest, NothingIsWritten) {
  Write(Sample("TABLET-1.his"), "a record");
  ChooseBoth();
  const auto before = AllFiles();
  ASSERT_THAT(before,
              AllOf(Contains(::testing::Key(Data("log.txt"))), Contains(::testing::Key(Sample("lots.bsp")))));
  for (const char* algorithm : {"Euclidean", "Fourier", "Lumivar"}) {
    EXPECT_THAT(Reprocess(algorithm).Messages(), IsEmpty());
    EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
  }
  Reprocess("Mark Peaks", {"file \"" + Data("peaks.txt") + "\""});
  EXPECT_TRUE(run_.Get("frmVeritane.cmdPrint")["enabled"]);
  auto after = AllFiles();
  // The run log tells each time that the supervisor's panel was entered, which these runs have to do.
  const std::string entered = before.at(Data("log.txt"));
  ASSERT_THAT(entered, StartsWith("Supervisor Mode accessed"));
  EXPECT_EQ(after[Data("log.txt")], entered + entered + entered + entered);
  after[Data("log.txt")] = entered;
  EXPECT_EQ(after, before);
}

}  // namespace
}  // namespace veritane::tests
