// MainForm: one PLS prediction of the spectrum that the Spectrometer application holds.
#pragma once

#include "platform/controls.h"
#include "platform/file_system.h"
#include "platform/form.h"
#include "pls/pls_pred.h"
#include "shell/state/program_state.h"

#include <functional>
#include <memory>
#include <string>

namespace veritane::pls {

// What the form needs of the program around it. References outlive the form.
struct PredictionSurroundings {
  platform::FileSystem& files;
  state::ProgramState& state;
  PredictionLibrary& library;
  std::function<std::string()> sampleName;
  // Writes the current spectrum to a path as an SPC file.
  std::function<void(const std::string& path)> exportSpectrum;
  // Tells the Spectrometer application that the program drives it.
  std::function<void()> driveApplication;
  // Ends the whole program as its own exit does.
  std::function<void()> endProgram;
};

// Showing the form predicts, by the product's calibration file (calfilename). Results go into ProgramState:
// the arrays PLSConcentrations and PLSConstituentNames, both with a first element that is not used, so that
// element k is constituent k of both. PLSConstituentCount is one prediction late: it is the number that this
// form's previous prediction found, 0 at the first. Whoever shows results goes by the size of
// PLSConcentrations, and only when Succeeded().
class MainForm : public platform::Form {
public:
  MainForm(platform::Desktop& desktop, PredictionSurroundings surroundings);

  platform::Label lblCalFileName{*this, "lblCalFileName"};
  platform::Button cmdNewCalFile{*this, "cmdNewCalFile"};
  // The memos of the calibrations in the file, while it is loaded.
  platform::ComboBox Combo1{*this, "Combo1"};
  platform::ListBox iqoutput{*this, "iqoutput"};
  platform::Button cmdPredict{*this, "cmdPredict"};
  platform::Button cmdPrint{*this, "cmdPrint"};
  platform::Button cmdDone{*this, "cmdDone"};

  void cmdNewCalFile_Click();
  // Every fault of a step is told in a message box; the following steps run all the same.
  void cmdPredict_Click();
  void cmdPrint_Click();
  void cmdDone_Click();

  // Whether the last prediction found concentrations and no step of it failed. Without that, what the arrays
  // hold is no result.
  bool Succeeded() const { return succeeded_; }

protected:
  void Form_Activate() override;

private:
  void TakeCalibrationFile(const std::string& path);
  void LoadCalibration();
  void ReadNames();
  void ReadConcentrations();
  void ListResults();
  void CheckError(std::int32_t code);
  void Unload();

  PredictionSurroundings surroundings_;
  std::string calibration_path_;
  std::string sample_name_;
  // Memos and constituent names as they come.
  std::string text_;
  std::unique_ptr<PLSPred> pls_;
  std::int32_t concentration_count_ = 0;
  bool faulted_ = false;
  bool succeeded_ = false;
};

}  // namespace veritane::pls
