// The main window: start-up and shut-down, the three modes, and the handlers of its controls.
#pragma once

#include "acquisition/bench.h"
#include "acquisition/method_editor.h"
#include "acquisition/product_editor.h"
#include "platform/machine.h"
#include "pls/loaded_prediction_library.h"
#include "review/reprocessing.h"
#include "shell/main_controls.h"
#include "shell/screen_texts.h"
#include "shell/state/program_state.h"
#include "shell/state/string_table.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace veritane::shell {

class FrmVeritane : public MainControls {
public:
  FrmVeritane(platform::Desktop& desktop, const platform::Machine& machine,
              acquisition::CreateSpectrometerApp create_spectrometer_app);

  // Start-up. When it returns the operator panel shows, or the program has ended. A RunTimeError that leaves
  // it stops the program.
  void Form_Load();

  // Operator panel.
  void cmdSample_Click();
  void cmdSupervisor_Click();
  void cmdExit_Click();

  // Supervisor panel.
  void cmdMainMenu_Click();
  void SSTab1_Change(int previous);
  void optNoPassword_Click();
  void optPassword_Click();
  void optManualBackground_Click();
  void optBackInterval_Click();
  bool txtbackInterval_KeyPress(int key);
  void optBackBeforeSample_Click();
  void cmdBack_Click();
  void lstMeths_Click();
  void cmdAddMeth_Click();
  void cmdDeleteMethod_Click();
  void cmdNullRegions_Click();
  void grid_RowColChange();
  void cmbCollectMethod_Click();
  void cmbAlgorithm_Click();
  void cmdChooseCalFile_Click();
  void cmdDel_Click();
  void cmdCollectStdNow_Click();
  void cmdParse_Click();
  void txtThreshold_Change();
  void optDefaultPrint_Click();
  void optPrintTemplate_Click();
  void cmdSelTemplate_Click();
  void chkPrintPassFail_Click();
  void cmdStandard_Click();
  void cmdSamp_Click();
  void cmdNow_Click();
  void cmdExpertMode_Click();

  // Spectrum panel.
  void chart_MouseMove(double pixel_x, double pixel_y);
  void cmdNextSample_Click();
  void cmdResetLimits_Click();
  void cmdPrint_Click();
  void cmdScreenCopy_Click();
  void cmdBacktoMainMenu_Click();

  const state::ProgramState& State() const { return state_; }
  std::string PrintFolder() const { return state::PrintFolder(state_.folders.appDir); }

protected:
  void Form_QueryUnload() override;

private:
  void ConnectOperatorHandlers();
  void ConnectSupervisorHandlers();
  void ConnectSetUpHandlers();
  void ConnectSpectrumHandlers();
  void ConnectRecovery();

  std::vector<std::string> ProductIds() const;

  pls::PredictionSurroundings PredictionAround();
  bool Predict();
  void MarkStandard();
  std::string NameOfSpectrum();
  void ExportSpectrum(const std::string& path);

  void PrepareGrid();
  void ShowVersionTitle();
  void DeleteStalePrintView();
  void CreateSpectrometerObject();
  // The run log; opened when it is not open yet.
  platform::AppendingFile& Log();
  std::optional<std::string> TakeDataFolder();
  void ClearUnfinishedFiles();
  bool LoadCalibrationMethod();
  void Calibrate();
  void FillAlgorithmLists();

  void LoadSettings();
  void SaveSettings();
  void ApplySettings();
  void LoadMethods();
  void SettlePendingProduct();
  review::Reprocessing Reprocess();
  void TurnBackTo(TabPage page);
  bool SupervisorMayEnter();
  // In upper case; nothing when the dialog was closed.
  std::optional<std::string> AskPassword(state::TextId prompt);
  std::optional<std::string> NewPassword();
  bool PrintOptionsAreComplete();
  bool ThresholdIsRight();
  bool IntervalIsRight();
  bool SaveSettingsOrAsk();
  // Hands the application back to the user, has it quit unless the expert goes on with it, and ends.
  void EndProgram();
  void QuitApplicationAndEnd();

  platform::Machine machine_;
  acquisition::CreateSpectrometerApp create_spectrometer_app_;
  state::ProgramState state_;
  acquisition::SpectrometerSession session_;
  pls::LoadedPredictionLibrary prediction_library_;
  Dialogs dialogs_;
  acquisition::Bench bench_;
  acquisition::MethodEditor methods_;
  acquisition::ProductEditor products_;
  // While the program itself brings a page back, the rules of leaving pages do not apply.
  bool is_turning_back_ = false;
  // Keeps other copies of the program away from the data folder.
  std::unique_ptr<platform::TakenFile> data_folder_lock_;
  std::unique_ptr<platform::AppendingFile> log_;
};

}  // namespace veritane::shell
