// A supervisor's new product, from the dialog to the first sample of it.
#include "tests/shell/program_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class StandardTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(false);
    WriteMeasuringMethod();
    Write(Standard("Disc.pro"), " Empty it.\r\n\r\n");
    SetInstrument("empty");
  }

  void EnterStandardsTab() {
    Play({"start", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 3"});
    Calls();
  }
  // The dialog filled in, up to and with its OK.
  static Steps Describe(const std::string& product, const std::string& algorithm = "Euclidean") {
    return {"click frmVeritane.cmdCollectStdNow", "type frmCollectStd.txtProductID \"" + product + "\"",
            "choose frmCollectStd.cmbmth \"Disc\"", "choose frmCollectStd.cmbAlg \"" + algorithm + "\"",
            "click frmCollectStd.cmdScan"};
  }
  // The boxes: background wanted, background done, sample wanted, Standard done.
  Steps Measured(Steps steps) {
    steps.insert(steps.end(), {"answer OK", "answer OK", [this] { SetInstrument("polystyrene"); },
                               "answer OK", "answer OK"});
    return steps;
  }
  // While it shows.
  acquisition::FrmCollectStd& Dialog() {
    return dynamic_cast<acquisition::FrmCollectStd&>(*program_->Screen().Find("frmCollectStd"));
  }
};

TEST_F(StandardTest, AMeasuredStandardBecomesAProductThatTheOperatorsSamplePasses) {
  EnterStandardsTab();
  std::string caption;
  Steps steps = Measured(Describe("PS"));
  steps.insert(steps.end() - 1, [&] {
    caption = program_->fraSpectrum.Caption();
    EXPECT_TRUE(program_->fraSpectrum.Visible()) << "the supervisor sees the Standard";
  });
  const auto events = Play(steps);
  EXPECT_THAT(events.Messages(),
              ElementsAre(" A new Background is required. Empty it. Click on OK when ready to collect the "
                          "background spectrum.",
                          " Background Done",
                          " Ready for Sample. Please prepare sample compartment/ accessory for Sample "
                          "spectrum. Click OK to scan Sample.",
                          " Standard Done"));
  EXPECT_EQ(events.Last("message")["title"], " Notice");
  EXPECT_EQ(caption, " Standard PS");
  EXPECT_THAT(Calls(),
              ElementsAre("Interactive(false)", "NewDocument(" + Standard("backDisc.bsp") + ")",
                          "Interactive(false)", "LoadCollectMethod(" + Standard("Disc.clm") + ")",
                          "CollectInto", "GetSpectrum", "SpectrumData", "CloseDocument(true)",
                          "Interactive(false)", "LoadCollectMethod(" + Standard("Disc.clm") + ")",
                          "SetBackgroundFile(" + Standard("backDisc.bsp") + "(1))", "Interactive(false)",
                          "NewDocument(" + Standard("PS.bsp") + ")", "CollectInto", "GetSpectrum",
                          "SpectrumData", "CloseDocument(true)", "Interactive(true)"));
  EXPECT_EQ(Table(), " 2 \r\nASPIRIN-1,Disc,Euclidean,\r\nPS,Disc,Euclidean,\r\n");
  EXPECT_EQ(run_.Get("frmVeritane.grid")["rows"].size(), 3U);
  EXPECT_TRUE(IsVisible("frmVeritane.fraSupervisorMode"));

  Play({"click frmVeritane.cmdMainMenu"});
  Play(WithOkays(EnterSample("PS")));
  EXPECT_EQ(Verdict(), "PASS");
  EXPECT_EQ(program_->State().comparison, 100) << "without noise the sample is the Standard";
}

TEST_F(StandardTest, AnUnfitProductIdOrAMissingFileKeepsTheDialogOpen) {
  Write(Standard("ProductID.par"), " 5 \r\n 8 \r\n");
  Write(Data("Meths.tbl"), " 2 \r\n" + Standard("Disc.clm") + "\r\n" + Standard("Film.clm") + "\r\n");
  EnterStandardsTab();
  Steps steps = {"click frmVeritane.cmdCollectStdNow"};
  const std::vector<std::string> ids{"BACK", "bacK", "", "LOT-a:b", "LOT-a,b", "LOT-backfilm", "LOT- X"};
  for (const std::string& id : ids) {
    steps.insert(steps.end(), {"set frmCollectStd.txtProductID \"" + id + "\"", "click frmCollectStd.cmdScan",
                               "answer OK"});
  }
  steps.insert(steps.end(),
               {"set frmCollectStd.txtProductID \"LOT-PS\"", "choose frmCollectStd.cmbAlg \"PLS\"",
                "click frmCollectStd.cmdScan", "answer OK", "choose frmCollectStd.cmbAlg \"Mark Peaks\"",
                "click frmCollectStd.cmdChooseCalFile", "file \"C:\\peaks.txt\"",
                [this] { EXPECT_EQ(Dialog().txtCalFileName.Text(), "C:\\peaks.txt"); },
                "choose frmCollectStd.cmbAlg \"PLS\"", "choose frmCollectStd.cmbAlg \"Mark Peaks\"",
                "click frmCollectStd.cmdScan", "answer OK", "choose frmCollectStd.cmbAlg \"Lumivar\"",
                [this] { EXPECT_FALSE(Dialog().txtCalFileName.Visible()); },
                "click frmCollectStd.cmdNoScanStandardNow"});
  const std::string reserved = "BACK is a reserved filename. Please enter a different Product ID";
  const auto messages = Play(steps).Messages();
  EXPECT_THAT(
      messages,
      ElementsAre(reserved, reserved, HasSubstr("cannot"), HasSubstr("cannot name"), HasSubstr("comma"),
                  "\"backfilm\" is the name of a background file. Please enter a different Product ID",
                  HasSubstr("blank"), "Please select a calibration file when using PLS algorithm",
                  "Please select a Peak file when using the Mark Peaks algorithm"));
  EXPECT_EQ(Table(), " 1 \r\nASPIRIN-1,Disc,Euclidean,\r\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(StandardTest, AScannersEnterBehindTheProductIdLeadsOnInsteadOfMeasuring) {
  EnterStandardsTab();
  Play({"click frmVeritane.cmdCollectStdNow", "type frmCollectStd.txtProductID \"PS\"",
        "key frmCollectStd.txtProductID Enter", [this] { EXPECT_EQ(Dialog().Focused()->Name(), "cmbmth"); },
        "close frmCollectStd"});
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(StandardTest, AnExistingStandardIsNeverMeasuredAgain) {
  Write(Standard("ps.bsp"), "as it was");
  EnterStandardsTab();
  const auto events = Play(WithOkays(Describe("PS")));
  EXPECT_THAT(events.Messages(), ElementsAre(" Standard already exists. Please delete Standard before "
                                             "collecting a new Standard with the same name."));
  EXPECT_EQ(events.Last("message")["icon"], "critical");
  EXPECT_EQ(Read(Standard("ps.bsp")), "as it was");
  EXPECT_EQ(Table(), " 1 \r\nASPIRIN-1,Disc,Euclidean,\r\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

// The program ended, or the table could not be written, behind the filing of the Standard.
TEST_F(StandardTest, AStandardWithoutItsRowIsAskedAbout) {
  const std::string before = Table();
  WriteSpectrum(Standard("PS.bsp"), 100, 4, Bands(301));
  const std::string filed = Read(Standard("PS.bsp"));
  const std::string note = " 1 \r\nPS,Disc,Fourier,\r\n";
  Write(Standard("Pending.tbl"), note);
  Play({"start"});
  EXPECT_THAT(
      Play({"click frmVeritane.cmdSupervisor", "answer Yes"}).Messages(),
      ElementsAre(HasSubstr(Standard("PS.bsp") + " is filed, but the product table does not name it")));
  EXPECT_EQ(Table(), " 2 \r\nASPIRIN-1,Disc,Euclidean,\r\nPS,Disc,Fourier,\r\n");
  EXPECT_EQ(run_.Get("frmVeritane.grid")["rows"].size(), 3U);
  EXPECT_FALSE(Exists(Standard("Pending.tbl")));
  // Stopped behind the table: there is nothing to ask.
  Write(Standard("Pending.tbl"), note);
  Play({"click frmVeritane.cmdMainMenu"});
  EXPECT_THAT(Play({"click frmVeritane.cmdSupervisor"}).Messages(), IsEmpty());
  // The supervisor would rather collect it anew, and the one that is filed stays.
  Play({"click frmVeritane.cmdMainMenu"});
  Write(Data("Meth.tbl"), before);
  Write(Standard("Pending.tbl"), note);
  Play({"click frmVeritane.cmdSupervisor", "answer No", "tab frmVeritane.SSTab1 3"});
  EXPECT_EQ(Read(Standard("PS (abandoned 1).bsp")), filed);
  EXPECT_EQ(Table(), before);
  Play(Measured(Describe("PS")));
  EXPECT_EQ(Table(), " 2 \r\nASPIRIN-1,Disc,Euclidean,\r\nPS,Disc,Euclidean,\r\n");
  EXPECT_FALSE(Exists(Standard("Pending.tbl")));
}

TEST_F(StandardTest, AnAbandonedCollectionLeavesNoStandardAndNoRow) {
  EnterStandardsTab();
  for (const int fault : {11079, 5}) {
    // At the background, and at the Standard itself.
    for (const bool at_standard : {false, true}) {
      SetInstrument("empty", at_standard ? 0 : fault, 1);
      Steps steps = Describe("PS");
      steps.emplace_back("answer OK");
      if (at_standard) {
        steps.insert(steps.end(),
                     {"answer OK", [&] { SetInstrument("polystyrene", fault, 1); }, "answer OK"});
      }
      steps.emplace_back(fault == 5 ? "answer OK" : "answer Cancel");
      const auto events = Play(steps);
      EXPECT_EQ(events.Last("message")["text"],
                fault == 5 ? " Spectrometer reported an error. Error #5"
                           : " Incorrect sampling accessory installed in the Sample Compartment. Please put "
                             "in correct accessory and click OK to continue.");
      EXPECT_FALSE(Exists(Standard("PS.bsp")));
      EXPECT_EQ(Table(), " 1 \r\nASPIRIN-1,Disc,Euclidean,\r\n");
      EXPECT_EQ(LastCall(), "Interactive(true)");
      EXPECT_TRUE(IsVisible("frmVeritane.fraSupervisorMode"));
    }
  }
}

TEST_F(StandardTest, ADemonstrationFilesTheStoredSpectrumOfTheAlgorithm) {
  WriteSettings(true);
  WriteSpectrum(Standard("back.bsp"), 100, 4, std::vector<double>(301, 50.0));
  WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(301));
  WriteSpectrum(Standard("poly pls test.bsp"), 100, 4, Bands(301, 5));
  WriteSpectrum(Standard("polys.bsp"), 100, 4, Bands(301, 9));
  const std::string stored = Read(Standard("aspirin.bsp"));
  Write(Data("cal.cal"), "x");
  EnterStandardsTab();
  for (const auto& [algorithm, file] : std::vector<std::pair<std::string, std::string>>{
           {"Euclidean", "aspirin.bsp"}, {"Lumivar", "aspirin.bsp"}, {"PLS", "poly pls test.bsp"}}) {
    Steps steps = Describe("P " + algorithm, algorithm);
    if (algorithm == "PLS") {
      steps.insert(steps.end() - 1,
                   {"click frmCollectStd.cmdChooseCalFile", "file \"" + Data("cal.cal") + "\""});
    }
    // A calibration that is of no use is told of six times, and the Standard is filed all the same.
    Play(WithOkays(steps, algorithm == "PLS" ? 10 : 4));
    const auto values = [this](const std::string& path) { return Spectra(path).at(0).ordinates.values; };
    EXPECT_EQ(values(Standard("P " + algorithm + ".bsp")), values(Standard(file))) << algorithm;
  }
  EXPECT_EQ(Table(),
            " 4 \r\nASPIRIN-1,Disc,Euclidean,\r\nP Euclidean,Disc,Euclidean,\r\nP "
            "Lumivar,Disc,Lumivar,\r\nP PLS,Disc,PLS," +
                Data("cal.cal") + "\r\n");
  EXPECT_EQ(Read(Standard("aspirin.bsp")), stored);
}

TEST_F(StandardTest, TheParserNamesTheProductAndAKeyThatComesOutEmptyIsTheWholeId) {
  Write(Standard("ProductID.par"), " 5 \r\n 2 \r\n");
  EnterStandardsTab();
  Play(Measured(Describe("LOT-PS-2024")));
  SetInstrument("empty");
  Play(Measured(Describe("LOT")));
  EXPECT_EQ(Table(), " 3 \r\nASPIRIN-1,Disc,Euclidean,\r\nPS,Disc,Euclidean,\r\nLOT,Disc,Euclidean,\r\n");
  EXPECT_TRUE(Exists(Standard("PS.bsp")) && Exists(Standard("LOT.bsp")));
}

TEST_F(StandardTest, ChangesInTheGridAreNotLostWhenTheTableIsReadAnew) {
  EnterStandardsTab();
  Play({"choose frmVeritane.cmbAlgorithm \"Fourier\""});
  Play(Measured(Describe("PS")));
  EXPECT_EQ(Table(), " 2 \r\nASPIRIN-1,Disc,Fourier,\r\nPS,Disc,Euclidean,\r\n");
}

TEST_F(StandardTest, AProductThatIsInTheTableAlreadyIsToldOf) {
  EnterStandardsTab();
  const Steps steps = WithOkays(Measured(Describe("aspirin-1", "Fourier")));
  EXPECT_THAT(std::string(Play(steps).Last("message")["text"]),
              HasSubstr("earlier row for Product ID: aspirin-1"));
  EXPECT_EQ(Table(), " 2 \r\nASPIRIN-1,Disc,Euclidean,\r\naspirin-1,Disc,Fourier,\r\n");
}

}  // namespace
}  // namespace veritane::tests
