// The prediction form: its steps in their order, its results, and what it does when a step fails.
#include "pls/main_form.h"

#include "platform/run_time_error.h"
#include "platform/system/system_machine.h"
#include "tests/pls/scripted_library.h"
#include "tests/support/script_run.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace veritane::pls {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Steps = std::vector<platform::ScriptRun::Step>;

// The form from which a sample run shows the prediction.
class BenchForm : public platform::Form {
public:
  explicit BenchForm(platform::Desktop& desktop) : Form(desktop, "frmBench") {}
  platform::Button cmdShow{*this, "cmdShow"};
};

class MainFormTest : public ::testing::Test {
protected:
  MainFormTest() {
    std::filesystem::create_directories(folder_.Path() / "drive_c" / "Data");
    state_.folders.appDir = "C:\\Data\\";
    state_.calfilename = "C:\\gas.cal";
    library_.items["constituent_names"] = NameBlocks({"Octane", "Ethanol"});
    library_.items["ncomp"] = {2};
    library_.items["concentration"] = {91.5, 0.123456789};
    run_.program.start = [this] {
      run_.Screen().AttachForms();
      bench_.Show();
    };
    bench_.cmdShow.OnClick = [this] {
      form_.Hide();
      form_.Show();
    };
  }

  PredictionSurroundings Surroundings() {
    return {.files = machine_.files,
            .state = state_,
            .library = library_,
            .sampleName = [] { return std::string("Lot 7"); },
            .exportSpectrum =
                [this](const std::string& path) {
                  EXPECT_FALSE(machine_.files.FileExists(path)) << "the old export is gone first";
                  library_.calls.push_back("export " + path);
                  if (export_fails_) throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall);
                },
            .driveApplication = [this] { library_.calls.emplace_back("drive"); },
            .endProgram = [this] { run_.Screen().End(0); }};
  }

  // Shows the form, which predicts; `answers` are for the boxes that come up.
  std::vector<std::string> Predict(Steps answers = {}) {
    Steps steps{"click frmBench.cmdShow"};
    steps.insert(steps.end(), answers.begin(), answers.end());
    const platform::Events events = run_.Lines(std::move(steps));
    EXPECT_THAT(events.Refusals(), IsEmpty());
    return events.Messages();
  }
  static Steps Okays(std::size_t count) { return Steps(count, std::string("answer OK")); }

  tests::TemporaryFolder folder_;
  platform::SystemMachine machine_{folder_.Path(), "C"};
  state::ProgramState state_;
  ScriptedLibrary library_;
  bool export_fails_ = false;
  platform::ScriptRun run_;
  BenchForm bench_{run_.Screen()};
  MainForm form_{run_.Screen(), Surroundings()};
};

TEST_F(MainFormTest, ShowingItExportsAndPredictsInTheFixedOrderAndItsResultsCountFromOne) {
  machine_.files.WriteBytes("C:\\temp.spc", "of the sample before");
  EXPECT_THAT(Predict(), IsEmpty());
  EXPECT_THAT(library_.Calls(),
              ElementsAre("export c:\\temp.spc", "LoadCalFile(C:\\gas.cal)", "GetCalTotal(5)",
                          "GetCalMemo(5,1)", "LoadSpcDiskFile(5,c:\\temp.spc)", "PlsIqPredic(5,1)",
                          "GetItemSize(5,ncomp)", "CopyItem(5,ncomp,1)", "GetItemSize(5,constituent_names)",
                          "CopyItem(5,constituent_names,64)", "GetItemSize(5,concentration)",
                          "CopyItem(5,concentration,2)", "UnLoadCalFile(5)", "drive"));
  EXPECT_TRUE(form_.Succeeded());
  EXPECT_THAT(state_.PLSConstituentNames, ElementsAre("", "Octane", "Ethanol"));
  EXPECT_THAT(state_.PLSConcentrations, ElementsAre(0, 91.5, 0.123456789));
  EXPECT_EQ(form_.lblCalFileName.Caption(), "C:\\gas.cal");
  EXPECT_THAT(form_.iqoutput.Items(),
              ElementsAre("Sample Name = Lot 7", "Octane = 91.5", "Ethanol = .123457"));
  EXPECT_EQ(form_.Combo1.Count(), 0) << "the calibration is unloaded";
  EXPECT_TRUE(form_.cmdPrint.Enabled());
}

TEST_F(MainFormTest, TheCountIsThatOfThePredictionBefore) {
  Predict();
  EXPECT_EQ(state_.PLSConstituentCount, 0);
  library_.items["constituent_names"] = NameBlocks({"Water"});
  library_.items["ncomp"] = {1};
  library_.items["concentration"] = {4};
  Predict();
  EXPECT_EQ(state_.PLSConstituentCount, 2);
  EXPECT_THAT(state_.PLSConcentrations, ElementsAre(0, 4));
  EXPECT_THAT(state_.PLSConstituentNames, ElementsAre("", "Water", "")) << "sized by the count before";
  Predict();
  EXPECT_EQ(state_.PLSConstituentCount, 1);
}

TEST_F(MainFormTest, ANameThatIsMissingKeepsItsPlace) {
  library_.items["ncomp"] = {3};
  library_.items["constituent_names"] = NameBlocks({"a", "", "c"});
  library_.items["concentration"] = {1, 2, 3};
  Predict();
  EXPECT_THAT(state_.PLSConstituentNames, ElementsAre("", "a", "", "c"));
  EXPECT_THAT(form_.iqoutput.Items(), ElementsAre("Sample Name = Lot 7", "a = 1", " = 2", "c = 3"));
}

TEST_F(MainFormTest, EveryCalibrationIsListedAndTheFirstPredicts) {
  library_.memos = {"Octane", "Water", "Lead"};
  library_.codes["GetCalTotal"] = 3;
  // The list is seen in the box that a failing step shows.
  library_.codes["LoadSpcDiskFile"] = 4;
  std::vector<std::string> memos;
  int selected = -1;
  Predict({[&] {
             memos = form_.Combo1.Items();
             selected = form_.Combo1.Selected();
           },
           "answer OK", "answer OK", "answer OK", "answer OK"});
  EXPECT_THAT(memos, ElementsAre("Octane", "Water", "Lead"));
  EXPECT_EQ(selected, 0);
  library_.codes["LoadSpcDiskFile"] = 0;
  library_.Calls();
  Predict();
  EXPECT_THAT(library_.calls, ::testing::Contains("PlsIqPredic(5,1)"));
}

TEST_F(MainFormTest, EachFaultIsToldAndTheFollowingStepsRunAllTheSame) {
  library_.codes["LoadCalFile"] = 0;
  const std::string none = "No Calibration file Loaded";
  const std::string no_prediction = "No prediction structure present";
  EXPECT_THAT(Predict(Okays(6)), ElementsAre("Calibration file did not load. It cannot be read only.", none,
                                             none, none, no_prediction, no_prediction));
  EXPECT_EQ(library_.calls.back(), "drive");
  EXPECT_FALSE(form_.Succeeded());
  EXPECT_THAT(form_.iqoutput.Items(), IsEmpty());
}

TEST_F(MainFormTest, AFaultUnloadsTheCalibration) {
  library_.codes["LoadSpcDiskFile"] = 4;
  EXPECT_THAT(Predict(Okays(4)),
              ElementsAre("Source data open error", "No Calibration file Loaded",
                          "No prediction structure present", "No prediction structure present"));
  library_.Calls();
  library_.codes["LoadSpcDiskFile"] = 0;

  library_.codes["PlsIqPredic"] = 6;
  EXPECT_THAT(Predict(Okays(3)),
              ElementsAre("Source data does not match data information stored in the calibration file",
                          "No prediction structure present", "No prediction structure present"));
  EXPECT_EQ(std::ranges::count(library_.calls, "UnLoadCalFile(5)"), 1);
  EXPECT_FALSE(form_.Succeeded());

  library_.codes["UnLoadCalFile"] = 3;
  library_.codes["PlsIqPredic"] = 0;
  EXPECT_THAT(Predict(Okays(1)), ElementsAre("Calibration file read error"));
  EXPECT_TRUE(form_.Succeeded()) << "what was predicted holds when only the unloading fails";
}

TEST_F(MainFormTest, AFailedPredictionLeavesNoResultOfTheOneBefore) {
  Predict();
  library_.codes["LoadSpcDiskFile"] = 5;
  Predict(Okays(4));
  EXPECT_FALSE(form_.Succeeded());
  EXPECT_THAT(state_.PLSConcentrations, Each(0));
  EXPECT_THAT(state_.PLSConstituentNames, Each(""));
  EXPECT_THAT(form_.iqoutput.Items(), IsEmpty());
  library_.codes["LoadSpcDiskFile"] = 0;
  Predict();
  EXPECT_EQ(state_.PLSConstituentCount, 0) << "the prediction before found none";
  EXPECT_TRUE(form_.Succeeded());
}

TEST_F(MainFormTest, AnExportThatFailsPredictsNoSpectrumOfBefore) {
  Predict();
  library_.Calls();
  machine_.files.WriteBytes("C:\\temp.spc", "of the sample before");
  export_fails_ = true;
  EXPECT_THAT(Predict(Okays(1)), ElementsAre("Run-time error 5: Invalid procedure call or argument"));
  EXPECT_FALSE(form_.Succeeded());
  EXPECT_THAT(library_.calls, ElementsAre("export c:\\temp.spc"));
  EXPECT_FALSE(machine_.files.FileExists("C:\\temp.spc"));
}

TEST_F(MainFormTest, AConcentrationThatIsNoNumberIsNoResult) {
  library_.items["concentration"] = {91.5, std::nan("")};
  Predict();
  EXPECT_FALSE(form_.Succeeded());
  EXPECT_THAT(form_.iqoutput.Items(), IsEmpty());
}

TEST_F(MainFormTest, ARunTimeErrorOfTheLibraryEndsThePredictionOnly) {
  library_.broken = "PlsIqPredic";
  EXPECT_THAT(Predict(Okays(1)),
              ElementsAre("Run-time error 5: Invalid procedure call or argument: PlsIqPredic"));
  EXPECT_FALSE(form_.Succeeded());
  library_.broken.clear();
  library_.sizes["concentration"] = -7;
  EXPECT_THAT(Predict(Okays(1)),
              ElementsAre("Run-time error 9: Subscript out of range: an array of -7 values"));
  EXPECT_FALSE(form_.Succeeded());
  library_.sizes.clear();
  Predict();
  EXPECT_TRUE(form_.Succeeded());
}

TEST_F(MainFormTest, AnotherCalibrationFileIsChosenForTheNextPrediction) {
  EXPECT_FALSE(form_.cmdPredict.Enabled());
  state_.calfilename = "";
  Predict();
  EXPECT_FALSE(form_.cmdPredict.Enabled()) << "there is no calibration file";
  library_.Calls();
  const auto dialog = run_.Lines({"click MainForm.cmdNewCalFile", "cancel"}).Last("file-dialog");
  EXPECT_EQ(dialog["title"], "Select calibration file");
  EXPECT_EQ(dialog["filter"], "*.cal|*.cal");
  EXPECT_EQ(form_.lblCalFileName.Caption(), "");
  EXPECT_FALSE(form_.cmdPredict.Enabled());

  run_.Lines({"click MainForm.cmdNewCalFile", "file \"C:\\other.cal\"", "click MainForm.cmdPredict"});
  EXPECT_EQ(form_.lblCalFileName.Caption(), "C:\\other.cal");
  ASSERT_FALSE(library_.calls.empty());
  EXPECT_EQ(library_.calls.front(), "LoadCalFile(C:\\other.cal)") << "nothing is exported again";
  run_.Lines({"click MainForm.cmdNewCalFile", "cancel"});
  EXPECT_EQ(form_.lblCalFileName.Caption(), "C:\\other.cal");
}

TEST_F(MainFormTest, DoneRemembersTheCalibrationFileAndEndsTheProgram) {
  machine_.files.WriteBytes("C:\\Data\\PredictSettings.ini",
                            "a longer line of an earlier time\r\nand more\r\n");
  Predict();
  const auto events = run_.Lines({"click MainForm.cmdDone"});
  EXPECT_EQ(machine_.files.ReadBytes("C:\\Data\\PredictSettings.ini"), "C:\\gas.cal\r\n");
  EXPECT_EQ(events.Last("exit")["status"], 0);
}

TEST_F(MainFormTest, WhenTheSettingsCannotBeWrittenTheProgramGoesOn) {
  state_.folders.appDir = "C:\\Missing\\";
  Predict();
  const auto events = run_.Lines({"click MainForm.cmdDone", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(::testing::StartsWith("Run-time error 76: Path not found")));
  EXPECT_TRUE(events.Named("exit").empty());
}

}  // namespace
}  // namespace veritane::pls
