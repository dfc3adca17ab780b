// What must not cost a laboratory its settings, its records or a verdict: the ways there that a user goes by
// mistake.
#include "tests/shell/program_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr const char* kSettings = "1\r\n1\r\nSECRET\r\n2\r\n4\r\n97.5\r\n0\r\n\r\n1\r\n1\r\n";

class SafeguardsTest : public ProgramTest {
protected:
  void SetUp() override {
    Write(Data("settings.ini"), kSettings);
    Write(Standard("Disc.clm"), "From = 400\r\nTo = 1600\r\nSpacing = 4\r\n");
    WriteProducts({"A,Disc,Euclidean,", "B,Disc,Fourier,", "a,Disc,Lumivar,"});
  }

  void EnterSupervisorMode(int tab) {
    Play({"start", "click frmVeritane.cmdSupervisor", "type frmPassword.txtPassword \"secret\"",
          "key frmPassword.txtPassword Enter", "tab frmVeritane.SSTab1 " + std::to_string(tab)});
  }
  // Types into the password dialog that shows, whatever characters the text has.
  Steps::value_type Password(const std::string& text) {
    return [this, text] {
      dynamic_cast<shell::FrmPassword&>(*program_->Screen().Find("frmPassword")).txtPassword.SetText(text);
    };
  }
  void ExpectSettingsKept() {
    Play({"click frmVeritane.cmdMainMenu"});
    EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
    EXPECT_EQ(program_->State().options.passThreshold, 97.5);
    EXPECT_EQ(program_->State().options.Password, "SECRET");
    EXPECT_EQ(program_->State().options.backOption, 2);
  }
};

TEST_F(SafeguardsTest, APasswordOrTemplateThatTheSettingsCannotKeepIsRefusedAndCostsNoOther) {
  EnterSupervisorMode(0);
  Play({"click frmVeritane.optNoPassword"});
  for (const char* password : {"a,b", "\"abc", "\"abc\"", " abc", "abc "}) {
    const auto events = Play({"click frmVeritane.optPassword", Password(password),
                              "click frmPassword.cmdPasswordOK", "answer OK"});
    EXPECT_THAT(events.Messages(), ElementsAre(StartsWith("A password cannot hold a comma"))) << password;
    EXPECT_TRUE(program_->optNoPassword.Checked());
  }
  Write(Data("Report, long.bpt"), "x");
  const auto events = Play({"tab frmVeritane.SSTab1 4", "click frmVeritane.cmdSelTemplate",
                            "file \"" + Data("Report, long.bpt") + "\"", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(HasSubstr(Data("Report, long.bpt"))));
  EXPECT_EQ(Caption("frmVeritane.lblPrintTemplate"), "");
  ExpectSettingsKept();
}

TEST_F(SafeguardsTest, ClosingAPasswordDialogNeverSetsAnEmptyPasswordAndNeverLetsAnybodyIn) {
  EnterSupervisorMode(0);
  const auto events = Play({"click frmVeritane.optNoPassword", "click frmVeritane.optPassword",
                            "close frmPassword", "click frmVeritane.optPassword", Password("new"),
                            "click frmPassword.cmdPasswordOK", "close frmPassword"});
  EXPECT_THAT(events.Messages(), IsEmpty());
  EXPECT_TRUE(program_->optNoPassword.Checked());
  EXPECT_EQ(program_->State().options.PasswordRequired, 0);
  ExpectSettingsKept();

  // An empty password can be set on purpose; the closed dialog does not stand for it.
  Play({"click frmVeritane.cmdSupervisor", "click frmVeritane.optPassword", "click frmPassword.cmdPasswordOK",
        "click frmPassword.cmdPasswordOK", "click frmVeritane.cmdMainMenu"});
  EXPECT_EQ(program_->State().options.PasswordRequired, 1);
  EXPECT_THAT(Play({"click frmVeritane.cmdSupervisor", "close frmPassword", "answer OK"}).Messages(),
              ElementsAre(" Access Denied"));
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
}

TEST_F(SafeguardsTest, AStartWithoutItsMethodEndsAlsoWhenTheSettingsCannotBeSaved) {
  WriteSettings(false);
  WriteMeasuringMethod();
  machine_.files.DeleteFile(Standard("Initial.clm"));
  Play({"start",
        [this] {
          machine_.files.DeleteFile(Data("settings.ini"));
          machine_.files.CreateFolder(Data("settings.ini"));
        },
        "answer OK"});
  EXPECT_TRUE(run_.Screen().Ended());
}

TEST_F(SafeguardsTest, FilesGoOnlyWithTheLastRowOfAProductAndOnlyWhenTheTableIsWritten) {
  const std::vector<std::string> files{Sample("A.bsp"), Sample("A.his"), Sample("B.bsp")};
  for (const std::string& file : files) Write(file, "x");
  EnterSupervisorMode(3);
  auto events = Play({"row frmVeritane.grid 3", "click frmVeritane.cmdDel", "answer Yes"});
  EXPECT_THAT(events.Messages(), ElementsAre(HasSubstr("Another row has the same Product ID")));
  EXPECT_EQ(Table(), " 2 \r\nA,Disc,Euclidean,\r\nB,Disc,Fourier,\r\n");
  EXPECT_TRUE(Exists(Sample("A.bsp")) && Exists(Sample("A.his"))) << "they are the other row's, too";

  // The other row lacks its file, and the supervisor breaks the saving off.
  const std::string before = Table();
  Play({"row frmVeritane.grid 2", "choose frmVeritane.cmbAlgorithm \"PLS\"", "cancel",
        "row frmVeritane.grid 1", "click frmVeritane.cmdDel", "answer Yes", "answer Cancel"});
  EXPECT_EQ(Table(), before);
  EXPECT_EQ(run_.Get("frmVeritane.grid")["rows"].size(), 3U);
  EXPECT_TRUE(Exists(Sample("A.bsp")));

  // The table cannot be written.
  Play({"row frmVeritane.grid 2", "choose frmVeritane.cmbAlgorithm \"Fourier\""});
  machine_.files.DeleteFile(Data("Meth.tbl"));
  machine_.files.CreateFolder(Data("Meth.tbl"));
  Play({"row frmVeritane.grid 1", "click frmVeritane.cmdDel", "answer Yes", "answer OK"});
  for (const std::string& file : files) EXPECT_TRUE(Exists(file)) << file;
  EXPECT_EQ(run_.Get("frmVeritane.grid")["rows"].size(), 3U);
}

TEST_F(SafeguardsTest, ADamagedNullRegionFileIsNeitherWrittenOverNorLeftOutOfAComparison) {
  const std::string damaged = " 2 \r\n2400 - 2300\r\n";
  Write(Data("Disc.nul"), damaged);
  EnterSupervisorMode(2);
  Play({"choose frmVeritane.lstMeths #0", "answer OK", "click frmVeritane.cmdNullRegions", "answer OK"});
  EXPECT_EQ(Read(Data("Disc.nul")), damaged);

  WriteSpectrum(Standard("A.bsp"), 100, 4, Bands(301));
  WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(301));
  WriteSpectrum(Standard("back.bsp"), 100, 4, Bands(301));
  Play({"click frmVeritane.cmdMainMenu"});
  EXPECT_EQ(Play(WithOkays(EnterSample("A"))).Last("error")["number"], 62);
  EXPECT_EQ(Verdict(), "");
  EXPECT_FALSE(Exists(Sample("A.bsp")) || Exists(Sample("A.his")));
}

TEST_F(SafeguardsTest, NullRegionsArePastedAsNumbersOrNotAtAll) {
  EnterSupervisorMode(2);
  const auto events =
      Play({"choose frmVeritane.lstMeths #0", "click frmVeritane.cmdNullRegions",
            "set frmNullRegion.txtNullStart \"2400 cm\"", "set frmNullRegion.txtNullEnd \"2300\"",
            "click frmNullRegion.cmdAddNullRegion", "answer OK", "set frmNullRegion.txtNullStart \"2400.5\"",
            "click frmNullRegion.cmdAddNullRegion", "click frmNullRegion.cmdDone"});
  EXPECT_THAT(events.Messages(), ElementsAre("A null region needs two wavenumbers."));
  EXPECT_EQ(Read(Data("Disc.nul")), " 1 \r\n2400.5 - 2300\r\n");
}

TEST_F(SafeguardsTest, NamesThatWouldWriteOverAStandardOrOlderSamplesAreRefused) {
  WriteProducts({"BackFilm,Disc,Euclidean,", "A,Disc,Fourier,"});
  Write(Sample("A-1.bsp"), "fifty spectra of A");
  EnterSupervisorMode(2);
  auto events = Play({"click frmVeritane.cmdAddMeth", "file \"C:\\x\\Film.clm\"", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(HasSubstr("Its background would be written over the Standard")));
  EXPECT_EQ(Read(Data("Meths.tbl")), " 1 \r\n" + Standard("Disc.clm") + "\r\n");

  events = Play({"tab frmVeritane.SSTab1 3", "click frmVeritane.cmdCollectStdNow",
                 "type frmCollectStd.txtProductID \"A-1\"", "choose frmCollectStd.cmbmth \"Disc\"",
                 "choose frmCollectStd.cmbAlg \"Euclidean\"", "click frmCollectStd.cmdScan", "answer OK",
                 "click frmCollectStd.cmdNoScanStandardNow"});
  EXPECT_THAT(events.Messages(),
              ElementsAre(StartsWith("\"A-1\" is the name of a full sample file of another product.")));
}

TEST_F(SafeguardsTest, AFileWhoseNameWouldBreakTheTableIsNotTaken) {
  EnterSupervisorMode(3);
  const auto events = Play({"row frmVeritane.grid 2", "choose frmVeritane.cmbAlgorithm \"PLS\"",
                            "file \"C:\\a \"\"b\"\", c.cal\"", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(HasSubstr("cannot stand in the product table")));
  EXPECT_EQ(run_.Get("frmVeritane.grid")["rows"][2][3], "");
}

TEST_F(SafeguardsTest, WhatWasNotComparedIsNoPassEvenAtAThresholdOfZeroAndBehindAPass) {
  WriteSettings(true, "0");
  WriteProducts({"EU,Disc,Euclidean,", "PS,Disc,Mark Peaks," + Data("peaks.txt")});
  Write(Data("peaks.txt"), "3026 2922");
  for (const char* name : {"EU.bsp", "PS.bsp", "back.bsp", "aspirin.bsp", "polys.bsp"}) {
    CopyTestData("ftir/polystyrene.jdx", Standard(name));
  }
  Play({"start"});
  RunDemonstration("EU");
  EXPECT_EQ(Verdict(), "PASS");
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  RunDemonstration("PS");
  EXPECT_EQ(Verdict(), "");
  EXPECT_THAT(Read(Sample("PS.his")), HasSubstr(",PS,Mark Peaks,Fail,,Ann\r\n"));
}

TEST_F(SafeguardsTest, ANewStandardIsNotShownWithTheReportOfTheSampleBefore) {
  WriteSettings(true);
  for (const char* name : {"A.bsp", "back.bsp", "aspirin.bsp"}) {
    CopyTestData("ftir/polystyrene.jdx", Standard(name));
  }
  WriteProducts({"A,Disc,Lumivar,"});
  Play({"start"});
  RunDemonstration("A");
  ASSERT_TRUE(run_.Screen().Find("frmResults")->Shown());
  Play(BackToTab(3));
  Play({"click frmVeritane.cmdCollectStdNow", "type frmCollectStd.txtProductID \"NEW\"",
        "choose frmCollectStd.cmbmth \"Disc\"", "choose frmCollectStd.cmbAlg \"Euclidean\"",
        "click frmCollectStd.cmdScan", "answer OK", "answer OK", "answer OK",
        [this] {
          EXPECT_TRUE(program_->fraSpectrum.Visible()) << "the Standard is on screen";
          EXPECT_FALSE(run_.Screen().Find("frmResults")->Shown());
        },
        "answer OK"});
  EXPECT_TRUE(Exists(Standard("NEW.bsp")));
}

TEST_F(SafeguardsTest, ARunThatEndsInAnErrorClosesEachDocumentOnce) {
  WriteSettings(false);
  WriteMeasuringMethod();
  WriteProducts({"LONG,Disc,Euclidean,", "NULL,Film,Euclidean,", "LATE,Disc,Euclidean,"});
  CopyTestData("ftir/polystyrene.jdx", Standard("NULL.bsp"));
  WriteSpectrum(Standard("LONG.bsp"), 100, 0.1, Bands(33'000));
  WriteSpectrum(Standard("LATE.bsp"), 100, 4, Bands(301));
  WriteSpectrum(Standard("backDisc.bsp"), 100, 4, std::vector<double>(301, 50.0));
  Write(Data("Film.nul"), "no regions");
  SetInstrument("polystyrene");
  Play({"start"});
  Calls();
  const auto run = [&](const std::string& product, int boxes) {
    SCOPED_TRACE(product);
    EXPECT_TRUE(Play(WithOkays(EnterSample(product), boxes)).Last("error").is_object());
    ExpectHandedBack(Calls());
  };
  run("LONG", 1);
  run("NULL", 1);
  // The method goes when the Standard is loaded already.
  machine_.files.DeleteFile(Standard("Disc.clm"));
  run("LATE", 2);
}

}  // namespace
}  // namespace veritane::tests
