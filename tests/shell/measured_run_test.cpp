// The measuring branch: call by call, the instrument's errors, and sample files that fill up.
#include "platform/number_text.h"
#include "tests/shell/program_fixture.h"

#include <algorithm>
#include <fstream>

namespace veritane::tests {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class MeasuredRunTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(false);
    WriteProducts({"PS,Disc,Euclidean,"});
    WriteMeasuringMethod();
    Write(Standard("Disc.pro"), " Empty it.\r\n Fill it.\r\n");
    WriteSpectrum(Standard("PS.bsp"), 100, 4, Bands(301));
    SetInstrument("polystyrene");
    Play({"start"});
    Calls();
  }

  // A sample with its background there already.
  platform::Events Measure(int boxes = 1) {
    WriteSpectrum(Standard("backDisc.bsp"), 100, 4, std::vector<double>(301, 50.0));
    return MeasureAsItIs(boxes);
  }
  platform::Events MeasureAsItIs(int boxes) {
    if (program_->fraSpectrum.Visible()) Play({"click frmVeritane.cmdBacktoMainMenu"});
    return Play(WithOkays(EnterSample("PS"), boxes));
  }
  std::size_t CountIn(const std::string& path) { return Spectra(path).size(); }
};

TEST_F(MeasuredRunTest, EveryCallComesInItsOrder) {
  const auto events = MeasureFirst("PS", "polystyrene");
  EXPECT_THAT(events.Messages(),
              ElementsAre(" A new Background is required. Empty it. Click on OK when ready to collect "
                          "the background spectrum.",
                          " Background Done", " Ready for Sample. Fill it. Click OK to scan Sample."));
  EXPECT_THAT(
      Calls(),
      ElementsAre(
          // The Standard.
          "Interactive(false)", "OpenDocument(" + Standard("PS.bsp") + ")", "SetDocumentShown(0)",
          "SelectSpectrum(1)", "GetSpectrum", "SpectrumData", "CloseDocument(false)",
          // The background, measured against nothing.
          "Interactive(false)", "NewDocument(" + Standard("backDisc.bsp") + ")", "Interactive(false)",
          "LoadCollectMethod(" + Standard("Disc.clm") + ")", "CollectInto", "GetSpectrum", "SpectrumData",
          "CloseDocument(true)",
          // The sample, measured against it, named and filed.
          "Interactive(false)", "NewDocument(" + Sample("PS.bsp") + ")", "Interactive(false)",
          "LoadCollectMethod(" + Standard("Disc.clm") + ")",
          "SetBackgroundFile(" + Standard("backDisc.bsp") + "(1))", "CollectInto", "GetSpectrum",
          "SpectrumData", "GetParameter(SpectName)", "SetValue(Lot 7)",
          "SaveDocumentAs(" + Sample("PS.bsp") + ")", "CloseDocument(false)",
          // What a print template shows.
          "Interactive(false)", "OpenDocument(" + Sample("PS.bsp") + ")", "GetSpectrumCount",
          "SelectSpectrum(1)", "GetSpectrum", "GetParameterList", "AddParameter(Comparison, 1)",
          "AddParameter(Sample Name, 1)", "GetParameter(Comparison)",
          "SetValue(" + platform::PlainNumberText(program_->State().comparison) + ")",
          "GetParameter(Sample Name)", "SetValue(Lot 7)", "CloseDocument(true)", "Interactive(true)"));
}

TEST_F(MeasuredRunTest, AnInstrumentOfTheYoungerFamilyGetsItsOptionBeforeEveryCollection) {
  Play({"click frmVeritane.cmdExit"});
  ASSERT_EQ(run_.Finish(), 0);
  // A program of its own, whose first calibration fails.
  SetInstrument("polystyrene", 5, 1);
  platform::ScriptRun second;
  std::unique_ptr<shell::FrmVeritane> program;
  program_.reset();
  second.program.start = Starter(second, program);
  Calls();
  second.Lines(WithOkays(EnterSample("PS"), 3));
  const auto calls = Calls();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "SetCollectOption(NI)"), 3)
      << "calibration, background, sample";
}

TEST_F(MeasuredRunTest, TheWrongAccessoryIsAskedAboutUntilItIsRightAndTheSampleThenFiled) {
  SetInstrument("polystyrene", 11079, 2);
  const auto events = Measure(3);
  EXPECT_THAT(events.Messages(),
              ElementsAre(StartsWith(" Ready for Sample."), StartsWith(" Incorrect sampling accessory"),
                          StartsWith(" Incorrect sampling accessory")));
  EXPECT_EQ(CountIn(Sample("PS.bsp")), 1U);
  EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
}

TEST_F(MeasuredRunTest, GivingUpOnTheAccessoryOrAnInstrumentErrorFilesNothing) {
  SetInstrument("polystyrene", 11079, 1);
  Steps steps = EnterSample("PS");
  steps.insert(steps.end(), {"answer OK", "answer Cancel"});
  EXPECT_THAT(Play(steps).Messages(),
              ElementsAre(StartsWith(" A new Background"), StartsWith(" Incorrect sampling")));
  EXPECT_FALSE(Exists(Standard("backDisc.bsp")));
  EXPECT_THAT(Calls(), Contains("CloseDocument(false)"));

  SetInstrument("polystyrene", 5, 1);
  const auto events = Measure(2);
  EXPECT_EQ(events.Last("message")["text"], " Spectrometer reported an error. Error #5");
  EXPECT_EQ(events.Last("message")["title"], " Warning");
  EXPECT_EQ(LastCall(), "Interactive(true)");
  EXPECT_THAT(machine_.files.ListFiles(Data("Samples")), IsEmpty());
  EXPECT_EQ(Read(Data("log.txt")), "");
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
}

TEST_F(MeasuredRunTest, AResultBeyondSixteenBitsIsAnOverflowAndNoSuccess) {
  SetInstrument("polystyrene", 65536, 1);
  const auto events = Measure(2);
  EXPECT_EQ(events.Last("error")["number"], 6);
  EXPECT_THAT(machine_.files.ListFiles(Data("Samples")), IsEmpty());
  EXPECT_FALSE(run_.Screen().Find("frmStatus")->Shown());
  EXPECT_EQ(run_.Screen().MousePointer(), platform::Pointer::kDefault);
}

TEST_F(MeasuredRunTest, AFailedBackgroundLeavesTheOldOneAsItWas) {
  WriteSpectrum(Standard("backDisc.bsp"), 100, 4, std::vector<double>(301, 50.0));
  const std::string old = Read(Standard("backDisc.bsp"));
  Play({"click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 1",
        "click frmVeritane.optBackBeforeSample", "click frmVeritane.cmdMainMenu"});
  SetInstrument("empty", 5, 1);
  EXPECT_EQ(MeasureAsItIs(2).Last("message")["text"], " Spectrometer reported an error. Error #5");
  EXPECT_EQ(Read(Standard("backDisc.bsp")), old);
  SetInstrument("empty");
  // The sample is empty too, which is nothing to compare; the background is filed before that shows.
  EXPECT_EQ(MeasureAsItIs(4).Last("error")["number"], 11);
  EXPECT_NE(Read(Standard("backDisc.bsp")), old) << "before every sample";
}

TEST_F(MeasuredRunTest, ABackgroundThatIsGoneWhenTheSampleLiesReadyIsNamed) {
  Measure();
  Play({"click frmVeritane.cmdBacktoMainMenu"});
  Steps steps = EnterSample("PS");
  steps.insert(steps.end(), {[this] { machine_.files.DeleteFile(Standard("backDisc.bsp")); }, "answer OK",
                             "answer OK", "answer OK"});
  EXPECT_THAT(Play(steps).Messages(),
              ElementsAre(StartsWith(" Ready for Sample."), " Spectrometer reported an error. Error #11081",
                          HasSubstr("The background " + Standard("backDisc.bsp") +
                                    " cannot be used. Please collect")));
  EXPECT_EQ(CountIn(Sample("PS.bsp")), 1U);
}

TEST_F(MeasuredRunTest, TheFiftiethSpectrumGoesIntoTheSameFileAndTheNextStartsANewOne) {
  WriteSpectra(Sample("PS.bsp"), 49, Bands(301));
  Measure();
  EXPECT_EQ(CountIn(Sample("PS.bsp")), 50U);
  EXPECT_FALSE(Exists(Sample("PS-1.bsp")));

  const std::string full = Read(Sample("PS.bsp"));
  Write(Sample("PS-1.bsp"), "an older file");
  Measure();
  EXPECT_EQ(CountIn(Sample("PS.bsp")), 1U);
  EXPECT_EQ(Read(Sample("PS-2.bsp")), full) << "the first free number";
  EXPECT_EQ(Read(Sample("PS-1.bsp")), "an older file");
}

TEST_F(MeasuredRunTest, WithEveryNumberTakenNothingIsFiledAndTheOperatorIsTold) {
  WriteSpectra(Sample("PS.bsp"), 50, Bands(301));
  for (int number = 1; number <= 1000; ++number) {
    std::ofstream(folder_.Path() / "drive_c/ProgramData/Kestrova/Veritane/Samples" /
                  ("PS-" + std::to_string(number) + ".bsp"))
        << "full";
  }
  const std::string before = Read(Sample("PS.bsp"));
  const auto events = Measure(2);
  EXPECT_EQ(
      events.Last("message")["text"],
      " You have exceeded 50,000 spectra. Please inform your Supervisor that backup files must be removed.");
  EXPECT_EQ(events.Last("message")["title"], " Warning");
  EXPECT_EQ(Read(Sample("PS.bsp")), before);
  EXPECT_EQ(Read(Data("log.txt")), "");
  EXPECT_THAT(Calls(), Not(Contains("CollectInto")));
  EXPECT_FALSE(IsVisible("frmVeritane.fraSpectrum"));
}

TEST_F(MeasuredRunTest, AStopBetweenTheStepsOfARollOverLosesNothingAndTheNextRunGoesOn) {
  WriteSpectra(Sample("PS.bsp"), 50, Bands(301));
  const std::string full = Read(Sample("PS.bsp"));
  // Stopped after the copy was written and before the full file went; PS-1 is somebody's own copy.
  Write(Sample("PS-1.bsp"), full);
  Write(Sample("PS-2.bsp"), full);
  Write(Sample("PS.moving"), "PS-2.bsp");
  Measure();
  EXPECT_THAT(machine_.files.ListFiles(Data("Samples")),
              ElementsAre("PS-1.bsp", "PS-2.bsp", "PS.bsp", "PS.his"));
  EXPECT_EQ(Read(Sample("PS-2.bsp")), full);
  EXPECT_EQ(CountIn(Sample("PS.bsp")), 1U);
  // What a note leads to is no copy: other spectra, nothing that can be read, the full file itself.
  for (const char* noted : {"PS-1.bsp", "PS.his", "PS.bsp"}) {
    WriteSpectra(Sample("PS.bsp"), 50, Bands(301, 1));
    const std::string other = Read(Sample("PS.bsp"));
    Write(Sample("PS.moving"), noted);
    Measure();
    EXPECT_EQ(Read(Sample("PS-1.bsp")), full);
    EXPECT_EQ(Read(Sample("PS-3.bsp")), other) << noted;
    machine_.files.DeleteFile(Sample("PS-3.bsp"));
  }
  // Stopped after the full file went and before the new one was written.
  machine_.files.DeleteFile(Sample("PS.bsp"));
  Measure();
  EXPECT_EQ(CountIn(Sample("PS.bsp")), 1U);
  EXPECT_EQ(Read(Sample("PS-2.bsp")), full);
}

TEST_F(MeasuredRunTest, ADemonstrationDestroysNothingThatWasMeasured) {
  Measure();
  const std::string measured = Read(Sample("PS.bsp"));
  Play({"click frmVeritane.cmdBacktoMainMenu", "click frmVeritane.cmdExit"});
  WriteSettings(true);
  WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(301));
  platform::ScriptRun second;
  std::unique_ptr<shell::FrmVeritane> program;
  program_.reset();
  second.program.start = Starter(second, program);
  second.Lines(WithOkays(EnterSample("PS", "shown")));
  EXPECT_EQ(Read(Sample("PS-1.bsp")), measured);
  EXPECT_EQ(CountIn(Sample("PS.bsp")), 1U);
}

TEST_F(MeasuredRunTest, TheSupervisorCollectsABackgroundOfAChosenMethodOnDemand) {
  Write(Data("Meths.tbl"), " 2 \r\n" + Standard("Disc.clm") + "\r\nC:\\Program\\Film.clm\r\n");
  Write("C:\\Program\\Film.clm", Read(Standard("Disc.clm")));
  SetInstrument("empty");
  Steps steps{"click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 1", "click frmVeritane.cmdBack",
              "click frmSelectMethod.cmdSelectMethodCancel"};
  EXPECT_THAT(Play(steps).Messages(), IsEmpty());
  EXPECT_THAT(Calls(), IsEmpty());

  const auto events = Play({"click frmVeritane.cmdBack", "choose frmSelectMethod.cmbSelectMethod \"Film\"",
                            "click frmSelectMethod.cmdSelectMethodOK", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(" Background Done"));
  EXPECT_EQ(Caption("frmVeritane.fraSpectrum"), " Background");
  EXPECT_THAT(Calls(), ElementsAre("Interactive(false)", "NewDocument(" + Standard("backFilm.bsp") + ")",
                                   "Interactive(false)", "LoadCollectMethod(C:\\Program\\Film.clm)",
                                   "CollectInto", "GetSpectrum", "SpectrumData", "CloseDocument(true)"));
  EXPECT_TRUE(Exists(Standard("backFilm.bsp")));
  EXPECT_FALSE(Exists(Standard("backDisc.bsp"))) << "each method has its own";
}

}  // namespace
}  // namespace veritane::tests
