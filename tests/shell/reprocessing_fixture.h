// The program in supervisor mode on the Reprocess Data tab, with a product, its Standard and a file of
// samples.
#pragma once

#include "simulator/jcamp_writer.h"
#include "simulator/stored_spectrum.h"
#include "tests/shell/program_fixture.h"

#include <cmath>
#include <map>
#include <string>
#include <vector>

namespace veritane::tests {

class ReprocessingTest : public ProgramTest {
protected:
  static constexpr std::size_t kPoints = 301;
  static constexpr const char* kChooseBoth = " Please select a Standard and a Sample Spectrum.";

  void SetUp() override {
    WriteSettings(false);
    WriteProducts({"OTHER,Film,Fourier,", "Tablet-1,Disc,Euclidean,"});
    WriteMeasuringMethod();
    WriteSpectrum(Standard("TABLET-1.bsp"), 100, 4, Bands(kPoints));
    WriteSamples({Bands(kPoints, 3), Bands(kPoints), Bands(kPoints, -5)});
    Write(Data("peaks.txt"), "640\r\n1000\r\n1440\r\n");
    Play({"start", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 5"});
    Calls();
  }

  // The sample file of the tests; its spectra are called "Lot 1", "Lot 2" and so on.
  void WriteSamples(const std::vector<std::vector<double>>& samples) {
    std::vector<simulator::StoredSpectrum> spectra(samples.size());
    std::vector<const simulator::StoredSpectrum*> all;
    for (std::size_t i = 0; i < samples.size(); ++i) {
      const std::string number = std::to_string(i + 1);
      spectra[i].name = "Lot " + number;
      spectra[i].time = "2026/11/2" + number + " 10:59:00";
      spectra[i].spacing = 4;
      spectra[i].ordinates = {.lower = 100, .values = samples[i]};
      all.push_back(&spectra[i]);
    }
    Write(Sample("lots.bsp"), simulator::WriteJcamp(all));
  }

  static Steps ChooseStandard(const std::string& path) {
    return {"click frmVeritane.cmdStandard", "file \"" + path + "\""};
  }
  static Steps ChooseSample(const std::string& path, const std::string& entry = "") {
    Steps steps{"click frmVeritane.cmdSamp", "file \"" + path + "\""};
    if (!entry.empty()) steps.push_back("choose frmSelectSpectrum.lstSpectrum " + entry);
    return steps;
  }
  // Both files as most tests want them, "Lot 2" being the spectrum that equals the Standard.
  void ChooseBoth(const std::string& entry = "#1") {
    Play(ChooseStandard(Standard("TABLET-1.bsp")));
    Play(ChooseSample(Sample("lots.bsp"), entry));
    Calls();
  }
  // Compares the chosen two; the further steps answer what the run asks.
  platform::Events Reprocess(const std::string& algorithm, const Steps& answers = {}) {
    if (IsVisible("frmVeritane.fraSpectrum")) Play(BackToTab(5));
    Steps steps{"choose frmVeritane.cmbAlg \"" + algorithm + "\"", "click frmVeritane.cmdNow"};
    steps.insert(steps.end(), answers.begin(), answers.end());
    return Play(steps);
  }

  const state::ProgramState& State() const { return program_->State(); }
  std::vector<std::string> Header() { return run_.Get("frmVeritane.chart")["header"]; }
  // What every end without a result leaves: the supervisor's panel, and the application the user's.
  void ExpectNoResult() {
    EXPECT_TRUE(IsVisible("frmVeritane.fraSupervisorMode"));
    EXPECT_FALSE(IsVisible("frmVeritane.fraSpectrum"));
    EXPECT_FALSE(run_.Screen().Find("frmStatus")->Shown());
    EXPECT_EQ(run_.Screen().MousePointer(), platform::Pointer::kDefault);
    EXPECT_EQ(Verdict(), "");
    EXPECT_TRUE(std::isnan(State().comparison));
  }
  // All files of the data folder with their bytes.
  std::map<std::string, std::string> AllFiles() const {
    std::map<std::string, std::string> files;
    for (const char* folder : {"", "Standards", "Samples"}) {
      const std::string path = *folder == '\0' ? Data("").substr(0, Data("").size() - 1) : Data(folder);
      for (const std::string& leaf : machine_.files.ListFiles(path)) {
        files[path + "\\" + leaf] = Read(path + "\\" + leaf);
      }
    }
    return files;
  }
};

}  // namespace veritane::tests
