// The simulator panel, played without a window on a folder of its own.
#include "apps/simulator_panel/frm_simulator.h"
#include "platform/run_time_error.h"
#include "platform/system/system_machine.h"
#include "tests/support/script_run.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <memory>

namespace veritane::simulator_panel {
namespace {

using simulator::CompartmentState;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::string kSamples = "C:\\ProgramData\\Kestrova\\Veritane\\Samples\\";

class PanelTest : public ::testing::Test {
protected:
  PanelTest() {
    for (const char* folder : {"Samples", "Standards"}) std::filesystem::create_directories(Data() / folder);
    machine_.clock.Set({.year = 2026, .month = 11, .day = 21, .hour = 10});
    run_.program.start = [this] {
      form_ = std::make_unique<FrmSimulator>(run_.Screen(), machine_.Facilities(),
                                             machine_.paths.ToWindows(File()));
      run_.Screen().AttachForms();
      form_->Form_Load();
    };
  }

  std::filesystem::path File() const { return folder_.Path() / "compartment.txt"; }
  std::filesystem::path Data() const {
    return folder_.Path() / "drive_c" / "ProgramData" / "Kestrova" / "Veritane";
  }
  CompartmentState InFile() { return compartment_.Read(); }
  // Somebody else changes the file.
  void ChangeElsewhere(const std::function<void(CompartmentState&)>& change) {
    CompartmentState state = InFile();
    change(state);
    compartment_.Write(state);
  }
  static void WriteText(const std::filesystem::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
  }
  // A spectrum of three points that was filed this many seconds after ten o'clock.
  void FileSpectrum(const std::string& leaf, const std::string& title, int second) {
    machine_.clock.Set({.year = 2026, .month = 11, .day = 21, .hour = 10, .second = second});
    machine_.files.WriteBytes(
        "C:\\ProgramData\\Kestrova\\Veritane\\" + leaf,
        "##TITLE=" + title +
            "\n##JCAMP-DX=5.01\n##DATA TYPE=INFRARED SPECTRUM\n##ORIGIN=x\n##OWNER=x\n"
            "##XUNITS=1/CM\n##YUNITS=ABSORBANCE\n##FIRSTX=1000\n##LASTX=1002\n##NPOINTS=3\n"
            "##FIRSTY=1\n##XFACTOR=1\n##YFACTOR=1\n##DELTAX=1\n##XYDATA=(X++(Y..Y))\n"
            "1000 1 5 2\n##END=\n");
  }
  std::string Text(const char* control) { return run_.Get(std::string("frmSimulator.") + control)["text"]; }
  std::string Caption(const char* control) {
    return run_.Get(std::string("frmSimulator.") + control)["caption"];
  }
  bool Checked(const char* control) { return run_.Get(std::string("frmSimulator.") + control)["checked"]; }
  void Play(std::vector<platform::ScriptRun::Step> steps) {
    EXPECT_THAT(run_.Lines(std::move(steps)).Refusals(), ElementsAre());
  }
  void Refresh(int times = 1) {
    for (int i = 0; i < times; ++i) form_->Refresh();
  }

  tests::TemporaryFolder folder_;
  platform::SystemMachine machine_{folder_.Path(), "C"};
  simulator::Compartment compartment_{machine_.files, machine_.paths.ToWindows(File())};
  platform::ScriptRun run_;
  std::unique_ptr<FrmSimulator> form_;
};

TEST_F(PanelTest, EveryChoiceIsWrittenAtOnce) {
  Play({"choose frmSimulator.lstMaterials paracetamol"});
  EXPECT_EQ(InFile().sample, "paracetamol");
  EXPECT_EQ(Text("txtSample"), "paracetamol");

  Play({"set frmSimulator.txtSample \" polystyrene 0.6 + PMMA 0.4 \"", "click frmSimulator.optAtr",
        "type frmSimulator.txtNoise 2.5", "type frmSimulator.txtDuration 0",
        "click frmSimulator.optFixedSeed", "type frmSimulator.txtSeed 4294967295",
        "click frmSimulator.optWrongAccessory", "type frmSimulator.txtFaultCount 3"});
  CompartmentState expected{.sample = "polystyrene 0.6 + PMMA 0.4",
                            .accessory = "ATR",
                            .fault = 11079,
                            .faultCount = 3,
                            .noise = 2.5,
                            .duration = 0,
                            .seed = 4294967295U};
  EXPECT_EQ(InFile(), expected);
  EXPECT_EQ(form_->lstMaterials.Selected(), -1);

  Play({"click frmSimulator.optOtherFault", "type frmSimulator.txtFault -5",
        "click frmSimulator.optOtherAccessory", "type frmSimulator.txtAccessory Diffuse",
        "click frmSimulator.optRandomSeed"});
  expected.fault = -5;
  expected.accessory = "Diffuse";
  expected.seed.reset();
  EXPECT_EQ(InFile(), expected);

  Play({"click frmSimulator.optNoFault"});
  EXPECT_EQ(InFile().fault, 0);
  EXPECT_EQ(InFile().faultCount, 0);
}

TEST_F(PanelTest, ItOpensWithWhatTheFileSays) {
  ChangeElsewhere([](CompartmentState& state) {
    state = {.sample = "WATER", .accessory = "atr", .fault = 77, .faultCount = 2, .noise = 0, .seed = 9};
  });
  Play({"start"});
  EXPECT_EQ(Text("txtSample"), "WATER");
  EXPECT_EQ(form_->lstMaterials.SelectedItem(), "water");
  EXPECT_TRUE(Checked("optAtr") && Checked("optOtherFault") && Checked("optFixedSeed"));
  EXPECT_EQ(Text("txtFault"), "77");
  EXPECT_EQ(Text("txtNoise"), "0");
  EXPECT_EQ(Text("txtSeed"), "9");
  EXPECT_EQ(InFile().accessory, "atr") << "opening the panel must not write";
}

TEST_F(PanelTest, AFaultThatTheInstrumentCountsDownShows) {
  Play({"type frmSimulator.txtNoise 1.5", "click frmSimulator.optWrongAccessory",
        "type frmSimulator.txtFaultCount 2", "click frmSimulator.optAtr"});
  EXPECT_EQ(compartment_.TakeFault(), 11079);
  Refresh(6);
  EXPECT_EQ(Text("txtFaultCount"), "1");
  EXPECT_EQ(Caption("lblFaultsLeft"), "The next collection or alignment reports 11079.");
  EXPECT_EQ(compartment_.TakeFault(), 11079);
  Refresh();
  EXPECT_TRUE(Checked("optNoFault"));
  EXPECT_EQ(Caption("lblFaultsLeft"), "No fault is waiting.");
}

TEST_F(PanelTest, WhatMakesNoSenseIsToldAndNotWritten) {
  Play({"start"});
  const CompartmentState before = InFile();
  const auto refuse = [&](const std::string& line, const char* note, const char* why) {
    Play({line});
    EXPECT_THAT(Caption(note), HasSubstr(why)) << line;
    EXPECT_EQ(InFile(), before) << line;
  };
  refuse("set frmSimulator.txtSample kryptonite", "lblSampleNote", "No material is named \"kryptonite\"");
  refuse("set frmSimulator.txtSample \"\"", "lblSampleNote", "Enter a material");
  refuse("set frmSimulator.txtSample C:\\gone.jdx", "lblSampleNote", "There is no file C:\\gone.jdx");
  refuse("set frmSimulator.txtSample film.jdx", "lblSampleNote", "A path begins with its drive");
  refuse("set frmSimulator.txtNoise 1,5", "lblNoiseNote", "The noise is no number");
  refuse("set frmSimulator.txtNoise -1", "lblNoiseNote", "The noise lies from 0 to 1000");
  refuse("set frmSimulator.txtDuration 1.5", "lblDurationNote", "is a whole number");
  refuse("click frmSimulator.optOtherFault", "lblFaultNote", "Enter the error number");
  refuse("set frmSimulator.txtFault 0", "lblFaultNote", "would be no fault");
  refuse("set frmSimulator.txtFault 2147483648", "lblFaultNote", "lies from");
  refuse("click frmSimulator.optOtherAccessory", "lblAccessoryNote", "Enter the accessory's name");
  Play({"set frmSimulator.txtNoise 2"});
  EXPECT_EQ(Caption("lblNoiseNote"), "");
  EXPECT_EQ(InFile().noise, 2);
  EXPECT_EQ(InFile().fault, 0);
  Play({"click frmSimulator.optFixedSeed"});
  EXPECT_EQ(InFile().seed, 1U);
  Play({"set frmSimulator.txtSeed random"});
  EXPECT_EQ(InFile().seed, 1U);
}

TEST_F(PanelTest, AForeignChangeAppearsButDoesNotOverwriteTyping) {
  Play({"type frmSimulator.txtSample pe"});
  ChangeElsewhere([](CompartmentState& state) {
    state.sample = "water";
    state.noise = 7;
    state.accessory = "ATR";
  });
  Refresh();
  EXPECT_EQ(Text("txtSample"), "pe");
  EXPECT_THAT(Caption("lblSampleNote"), HasSubstr("water"));
  EXPECT_EQ(Text("txtNoise"), "7");
  EXPECT_TRUE(Checked("optAtr"));
  Refresh(5);
  EXPECT_EQ(Text("txtSample"), "water");
  EXPECT_EQ(Caption("lblSampleNote"), "");
}

TEST_F(PanelTest, AnUnfinishedTextStaysAndItsNoteFollowsTheFile) {
  Play({"type frmSimulator.txtSample polysty", "type frmSimulator.txtNoise 1"});
  ChangeElsewhere([](CompartmentState& state) { state.sample = "caffeine"; });
  Refresh(20);
  EXPECT_EQ(Text("txtSample"), "polysty");
  EXPECT_THAT(Caption("lblSampleNote"), HasSubstr("In force: caffeine."));
  Play({"choose frmSimulator.lstMaterials polystyrene"});
  EXPECT_EQ(InFile().sample, "polystyrene");
  EXPECT_EQ(Caption("lblSampleNote"), "");
}

TEST_F(PanelTest, AnEntryKeepsWhatOthersChangedSinceTheLastLook) {
  Play({"start"});
  ChangeElsewhere([](CompartmentState& state) { state.duration = 42; });
  Play({"choose frmSimulator.lstMaterials pvc"});
  EXPECT_EQ(InFile().duration, 42);
  EXPECT_EQ(Text("txtDuration"), "42");
}

TEST_F(PanelTest, ADamagedFileIsToldAndReplacedByTheNextChange) {
  WriteText(File(), "Noise = much\n");
  Play({"start"});
  EXPECT_THAT(Caption("lblProblem"), HasSubstr("NOISE is no number"));
  Refresh();
  EXPECT_THAT(Caption("lblProblem"), HasSubstr("The next change made here replaces it."));
  Play({"choose frmSimulator.lstMaterials lactose"});
  CompartmentState expected;
  expected.sample = "lactose";
  EXPECT_EQ(InFile(), expected);
  EXPECT_EQ(Caption("lblProblem"), "");
}

TEST_F(PanelTest, AFileThatCannotBeWrittenIsToldBesideTheEntry) {
  std::filesystem::create_directory(File());
  Play({"choose frmSimulator.lstMaterials lactose"});
  EXPECT_THAT(Caption("lblSampleNote"), HasSubstr("could not be written"));
}

TEST_F(PanelTest, AChosenSpectrumFileBecomesTheSample) {
  FileSpectrum("Samples\\lot.bsp", "lot", 0);
  const std::string path = kSamples + "lot.bsp";
  Play({"click frmSimulator.cmdChooseFile", "file \"" + path + "\""});
  EXPECT_EQ(InFile().sample, path);
  Play({"click frmSimulator.cmdChooseFile", "cancel"});
  EXPECT_EQ(InFile().sample, path);
}

TEST_F(PanelTest, TheNewestReadableSpectrumIsShown) {
  Play({"start"});
  EXPECT_EQ(Caption("lblSpectrum"), "No spectrum has been filed yet.");
  FileSpectrum("Standards\\a.bsp", "standard", 10);
  FileSpectrum("Samples\\b.bsp", "first sample", 20);
  Refresh();
  EXPECT_EQ(Caption("lblSpectrum"), "first sample");
  ASSERT_EQ(form_->chtSpectrum.Series().size(), 1U);
  EXPECT_THAT(form_->chtSpectrum.Series()[0].x, ElementsAre(1000, 1001, 1002));
  EXPECT_THAT(form_->chtSpectrum.Series()[0].y, ElementsAre(1, 5, 2));

  // Filed again within the second that its time is told in.
  FileSpectrum("Samples\\b.bsp", "second sample", 20);
  Refresh();
  EXPECT_EQ(Caption("lblSpectrum"), "second sample");

  FileSpectrum("Samples\\c.bsp", "half", 30);
  std::string half = machine_.files.ReadBytes(kSamples + "c.bsp");
  half.resize(half.size() - 20);
  machine_.files.WriteBytes(kSamples + "c.bsp", half);
  Refresh();
  EXPECT_THAT(Caption("lblSpectrum"), HasSubstr("second sample (c.bsp is newer, but cannot be read.)"));

  std::filesystem::remove_all(Data() / "Samples");
  Refresh();
  EXPECT_EQ(Caption("lblSpectrum"), "standard");
}

TEST_F(PanelTest, ASpectrumShowsAlsoWhenTheDataFolderCameAfterThePanel) {
  std::filesystem::remove_all(folder_.Path() / "drive_c");
  Play({"start"});
  Refresh();
  EXPECT_EQ(Caption("lblSpectrum"), "No spectrum has been filed yet.");
  std::filesystem::create_directories(Data() / "Samples");
  FileSpectrum("Samples\\lot.bsp", "lot", 10);
  Refresh();
  EXPECT_EQ(Caption("lblSpectrum"), "lot");
}

TEST_F(PanelTest, ADriveThatIsGoneForAWhileHasNoSpectra) {
  FileSpectrum("Samples\\lot.bsp", "lot", 0);
  bool is_gone = false;
  NewestSpectrum newest(machine_.files, machine_.clock, [&]() -> std::vector<std::string> {
    if (is_gone) throw platform::RunTimeError(platform::ErrorNumber::kDiskNotReady);
    return {"C:\\ProgramData\\Kestrova\\Veritane\\Samples"};
  });
  newest.Look();
  ASSERT_TRUE(newest.Found());
  EXPECT_EQ(newest.Found()->spectrum.name, "lot");

  is_gone = true;
  EXPECT_TRUE(newest.Look());
  EXPECT_FALSE(newest.Found());

  is_gone = false;
  EXPECT_TRUE(newest.Look());
  EXPECT_TRUE(newest.Found());
}

TEST_F(PanelTest, ClosingTheWindowEndsThePanel) {
  Play({"start", "close frmSimulator"});
  EXPECT_TRUE(run_.Screen().Ended());
  EXPECT_EQ(run_.Finish(), 0);
}

}  // namespace
}  // namespace veritane::simulator_panel
