// Start-up step by step, and the two ways to end.
#include "tests/shell/program_fixture.h"

#include <fstream>

namespace veritane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class StartUpTest : public ProgramTest {
protected:
  void SetFault(int number, int count) {
    auto state = bench_.SampleCompartment().Read();
    state.fault = number;
    state.faultCount = count;
    bench_.SampleCompartment().Write(state);
  }
};

TEST_F(StartUpTest, AMeasuringStartCalibratesAgainstTheAlignmentSpectrumAndLeavesItsFileAlone) {
  WriteSettings(false);
  WriteMeasuringMethod();
  const std::string alignment = Read(Standard("Autoalign.bsp"));
  const auto events = Play({"start"});
  EXPECT_THAT(events.Messages(), IsEmpty());
  EXPECT_THAT(events.Statuses(), ElementsAre(" Calibrating (May take a couple of minutes)"));
  EXPECT_THAT(Calls(),
              ElementsAre("Interactive(false)", "OpenDocument(" + Standard("Autoalign.bsp") + ")",
                          "LoadCollectMethod(" + Standard("Initial.clm") + ")", "SetScanParameter(1)",
                          "SetSubParameter(0)", "AutoAlign", "CloseDocument(false)"));
  EXPECT_EQ(program_->State().isVantor, state::kTrue);
  EXPECT_EQ(Read(Standard("Autoalign.bsp")), alignment);
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
  EXPECT_FALSE(IsVisible("frmVeritane.fraSpectrum"));
  EXPECT_EQ(program_->Caption(), "Veritane - Version 1.0.0");
}

TEST_F(StartUpTest, ACalibrationThatFailsOnceTellsAYoungerInstrumentApart) {
  WriteSettings(false);
  WriteMeasuringMethod();
  SetFault(5, 1);
  EXPECT_THAT(Play({"start"}).Messages(), IsEmpty());
  EXPECT_EQ(program_->State().isVantor, state::kFalse);
  EXPECT_THAT(Calls(),
              ElementsAre("Interactive(false)", HasSubstr("OpenDocument"), HasSubstr("LoadCollectMethod"),
                          "SetScanParameter(1)", "SetSubParameter(0)", "AutoAlign", "SetCollectOption(NI)",
                          "SetScanParameter(1)", "SetSubParameter(0)", "AutoAlign", "CloseDocument(false)"));
}

TEST_F(StartUpTest, ACalibrationThatFailsTwiceIsReportedAndTheOperatorScreenOpensAllTheSame) {
  WriteSettings(false);
  WriteMeasuringMethod();
  SetFault(77, 2);
  const auto events = Play({"start", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(" Spectrometer reported an error. Error #77"));
  EXPECT_EQ(events.Last("message")["title"], " Warning");
  EXPECT_EQ(events.Last("message")["icon"], "critical");
  const auto calls = Calls();
  ASSERT_GE(calls.size(), 2U);
  EXPECT_EQ(calls[calls.size() - 2], "Interactive(true)");
  EXPECT_EQ(calls.back(), "CloseDocument(false)");
  EXPECT_TRUE(IsVisible("frmVeritane.cmdSample"));
  EXPECT_EQ(run_.Screen().MousePointer(), platform::Pointer::kDefault);
}

TEST_F(StartUpTest, ASecondProgramOnTheSameDataSaysSoAndEndsWithoutTouchingThem) {
  WriteMeasuringMethod();
  Play({"start"});
  Calls();
  Write(Data("Meth.tbl"), " 1 \r\nP1,Disc,PLS,[VERITANE_TARGETDIR]a.cal\r\n");
  const std::string settings = Read(Data("settings.ini"));
  platform::ScriptRun second;
  platform::ScriptRun third;
  std::unique_ptr<shell::FrmVeritane> program;  // goes before the screens it stands on
  second.program.start = Starter(second, program);
  const auto events = second.Lines({"start"});
  EXPECT_THAT(events.Messages(), ElementsAre("Veritane is running already with the data in " + Data("") +
                                             "\r\nPlease go on in its window."));
  EXPECT_EQ(events.Last("exit")["status"], 1);
  EXPECT_THAT(Calls(), IsEmpty()) << "the first one's Spectrometer application";
  EXPECT_THAT(Table(), HasSubstr("[VERITANE_TARGETDIR]"));
  EXPECT_EQ(Read(Data("settings.ini")), settings);
  // The first one has gone when the next one starts.
  program.reset();
  program_.reset();
  third.program.start = Starter(third, program);
  EXPECT_THAT(third.Lines({"start"}).Messages(), IsEmpty());
}

TEST_F(StartUpTest, WithoutItsCalibrationMethodTheProgramSaysSoAndEnds) {
  WriteSettings(false);
  WriteMeasuringMethod();
  machine_.files.DeleteFile(Standard("Initial.clm"));
  const auto events = Play({"start", "answer OK"});
  EXPECT_THAT(
      events.Messages(),
      ElementsAre("A file required by Veritane is not present (Initial.clm). Please re-install Veritane."));
  EXPECT_EQ(events.Last("message")["title"], "Notice");
  EXPECT_TRUE(run_.Screen().Ended());
  EXPECT_EQ(LastCall(), "QuitApplication");
  EXPECT_EQ(run_.Finish(), 0);
}

TEST_F(StartUpTest, AMissingAlignmentSpectrumStopsTheStart) {
  WriteSettings(false);
  WriteMeasuringMethod();
  machine_.files.DeleteFile(Standard("Autoalign.bsp"));
  const auto error = Play({"start"}).Last("error");
  ASSERT_FALSE(error.is_null());
  EXPECT_EQ(error["number"], 53);
  EXPECT_THAT(std::string(error["text"]), HasSubstr(Standard("Autoalign.bsp")));
  EXPECT_EQ(run_.Finish(), 1);
}

TEST_F(StartUpTest, AMissingTableStopsTheStartBeforeAnyWindow) {
  machine_.files.DeleteFile(Data("Meths.tbl"));
  const auto events = Play({"start"});
  EXPECT_EQ(events.Last("error")["number"], 53);
  EXPECT_THAT(events.Named("form"), IsEmpty());
  EXPECT_EQ(run_.Finish(), 1);
}

TEST_F(StartUpTest, DemonstrationNeedsNoInstrumentFiles) {
  WriteSettings(true);
  EXPECT_THAT(Play({"start"}).Messages(), IsEmpty());
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(program_->State().isVantor, state::kFalse);
}

TEST_F(StartUpTest, TheInstallersMarkerIsReplacedEverywhereOnceAndForAll) {
  WriteSettings(true);
  Write(Data("Meth.tbl"),
        " 1 \r\nP1,[VERITANE_TARGETDIR],PLS,[VERITANE_TARGETDIR]x.cal\r\n[veritane_targetdir]\xFF");
  Write(Data("Meths.tbl"), " 0 \r\n");
  Play({"start"});
  const std::string concrete =
      " 1 \r\nP1," + Data("") + ",PLS," + Data("") + "x.cal\r\n[veritane_targetdir]\xFF\r\n";
  EXPECT_EQ(Table(), concrete);
  EXPECT_EQ(Read(Data("Meths.tbl")), " 0 \r\n") << "without the marker a table stays as it is";
}

TEST_F(StartUpTest, TheInstrumentSeriesChoosesTheNamesOfFoldersAndTables) {
  WriteSettings(true);
  std::ofstream(folder_.Path() / "registry.reg")
      << "REGEDIT4\n[HKEY_LOCAL_MACHINE\\Software\\Tarnex\\Spectrometer]\n\"Obe Type\"=dword:00000006\n";
  Write(Data("NexaMeth.tbl"), " 1 \r\nNEXA,Disc,Euclidean,\r\n");
  Write(Data("NexaMeths.tbl"), " 0 \r\n");
  const auto events = Play({"start", "click frmVeritane.cmdSample", "get frmSamp.cmbStandards",
                            "click frmSamp.cmdSampleCancelled"});
  EXPECT_THAT(events.LastGot("frmSamp.cmbStandards")["items"], ElementsAre("NEXA"));
  EXPECT_TRUE(machine_.files.FolderExists(Data("NexaStandards"))) << "made when missing";
  EXPECT_TRUE(machine_.files.FolderExists(Data("NexaSamples")));
}

TEST_F(StartUpTest, WithoutADataFolderTheProgramSaysSoAndLooksForItsTablesWhereItStands) {
  folders_.commonDataMissing = true;
  const auto events = Play({"start", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre("Couldn't find AppData directory"));
  EXPECT_EQ(events.Last("error")["number"], 53);
}

TEST_F(StartUpTest, AStalePrintViewBesideTheProgramIsDeleted) {
  WriteSettings(true);
  Write("C:\\Program\\current.pv", "old");
  Play({"start"});
  EXPECT_FALSE(Exists("C:\\Program\\current.pv"));
}

TEST_F(StartUpTest, ListsGridAndCaptionsAreFilledAtTheStart) {
  WriteSettings(true);
  Play({"start"});
  EXPECT_THAT(run_.Get("frmVeritane.cmbAlg")["items"],
              ElementsAre("Euclidean", "Fourier", "Lumivar", "PLS", "Mark Peaks"));
  EXPECT_EQ(run_.Get("frmVeritane.cmbAlg")["text"], "Euclidean");
  EXPECT_THAT(run_.Get("frmVeritane.lstMeths")["items"], ElementsAre(Standard("Disc.clm")));
  EXPECT_THAT(run_.Get("frmVeritane.cmbCollectMethod")["items"], ElementsAre("Disc"));
  const auto grid = run_.Get("frmVeritane.grid");
  EXPECT_EQ(grid["rows"][0][1], "Col 1");
  EXPECT_EQ(grid["rows"][1][0], "Row 1");
  EXPECT_EQ(grid["row"], 1);
  EXPECT_EQ(Caption("frmNullRegion.lblNullEnd"), "End of Null Region (low wavenumber");
}

TEST_F(StartUpTest, ExitSavesHandsBackAndQuitsOnce) {
  WriteSettings(true);
  Play({"start", "click frmVeritane.cmdExit"});
  EXPECT_THAT(Calls(), ElementsAre("Interactive(true)", "QuitApplication"));
  EXPECT_EQ(run_.Finish(), 0);
}

TEST_F(StartUpTest, ClosingTheWindowQuitsBeforeAndAfterTheLogIsClosedWithoutHandingBack) {
  WriteSettings(true);
  Play({"start", "close frmVeritane"});
  EXPECT_THAT(Calls(), ElementsAre("QuitApplication", "QuitApplication"));
  EXPECT_EQ(run_.Finish(), 0);
}

TEST_F(StartUpTest, AnExitThatCannotSaveAsksAndTheProgramGoesOnWithItsLogOpen) {
  WriteSettings(true);
  Play({"start"});
  // A folder in the place of the settings cannot be written over.
  machine_.files.DeleteFile(Data("settings.ini"));
  machine_.files.CreateFolder(Data("settings.ini"));
  const auto events = Play({"click frmVeritane.cmdExit", "answer No", "close frmVeritane", "answer No",
                            "click frmVeritane.cmdSupervisor"});
  EXPECT_THAT(std::string(events.Last("message")["text"]), HasSubstr("The settings cannot be saved."));
  EXPECT_THAT(Read(Data("log.txt")), HasSubstr("Supervisor Mode accessed on 11/21/26 at 10:59:00\r\n"));
  Play({"click frmVeritane.cmdExpertMode", "tab frmVeritane.SSTab1 6", "click frmVeritane.cmdExpertMode",
        "answer No"});
  Calls();
  Play({"tab frmVeritane.SSTab1 0", "close frmVeritane", "answer Yes"});
  EXPECT_TRUE(run_.Screen().Ended());
  EXPECT_THAT(Calls(), ElementsAre("QuitApplication", "QuitApplication"))
      << "the way to expert mode was called off";
}

TEST_F(StartUpTest, ADataFolderThatGoesAwayIsAnErrorAndNoCrashAndTheLogComesBackWithIt) {
  WriteSettings(true);
  Play({"start"});
  const auto folder = folder_.Path() / "drive_c" / "ProgramData" / "Kestrova";
  std::filesystem::rename(folder, folder_.Path() / "away");
  Play({"click frmVeritane.cmdExit", "answer No"});
  EXPECT_EQ(Play({"click frmVeritane.cmdSupervisor", "answer OK"}).Last("error")["number"], 76);
  std::filesystem::rename(folder_.Path() / "away", folder);
  Play({"click frmVeritane.cmdSupervisor"});
  EXPECT_THAT(Read(Data("log.txt")), HasSubstr("Supervisor Mode accessed"));
}

}  // namespace
}  // namespace veritane::tests
