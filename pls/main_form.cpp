// The steps of a prediction, in their order.
#include "pls/main_form.h"

#include "platform/desktop.h"
#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/text_printout.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace veritane::pls {

using state::Text;
using state::TextId;

namespace {

constexpr const char* kExportedSpectrum = "c:\\temp.spc";
// Whatever line of the list is selected.
constexpr std::int32_t kCalibrationToPredict = 1;

// Six digits: more than any calibration promises.
std::string ResultText(double value) {
  constexpr int kDigits = 6;
  std::array<char, 32> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, kDigits);
  double rounded = value;
  std::from_chars(digits.data(), end.ptr, rounded);
  return platform::PlainNumberText(rounded);
}

std::string WithoutTrailingBlanks(const std::string& text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace

MainForm::MainForm(platform::Desktop& desktop, PredictionSurroundings surroundings)
    : Form(desktop, "MainForm"), surroundings_(std::move(surroundings)) {
  SetCaption(Text(TextId::kPrediction));
  cmdNewCalFile.SetCaption(Text(TextId::kNewCalibrationFile));
  cmdPredict.SetCaption(Text(TextId::kPredict));
  cmdPrint.SetCaption(Text(TextId::kPrintPrediction));
  cmdDone.SetCaption(Text(TextId::kPredictionDone));
  cmdPredict.SetEnabled(false);
  cmdNewCalFile.OnClick = [this] { cmdNewCalFile_Click(); };
  cmdPredict.OnClick = [this] { cmdPredict_Click(); };
  cmdPrint.OnClick = [this] { cmdPrint_Click(); };
  cmdDone.OnClick = [this] { cmdDone_Click(); };
}

void MainForm::Form_Activate() {
  succeeded_ = false;
  TakeCalibrationFile(surroundings_.state.calfilename);
  sample_name_ = surroundings_.sampleName();
  if (surroundings_.files.FileExists(kExportedSpectrum)) surroundings_.files.DeleteFile(kExportedSpectrum);
  surroundings_.exportSpectrum(kExportedSpectrum);
  cmdPredict_Click();
  surroundings_.driveApplication();
  Screen().ProcessPendingEvents();
}

void MainForm::cmdNewCalFile_Click() {
  const auto path = Screen().ChooseFile({.title = Text(TextId::kSelectCalibrationFile),
                                         .filter = "*.cal|*.cal",
                                         .folder = surroundings_.state.folders.stdsDir});
  if (path) TakeCalibrationFile(*path);
}

void MainForm::TakeCalibrationFile(const std::string& path) {
  calibration_path_ = path;
  lblCalFileName.SetCaption(path);
  cmdPredict.SetEnabled(!path.empty());
}

void MainForm::cmdPrint_Click() {
  std::string text;
  for (const std::string& line : iqoutput.Items()) text += line + std::string(platform::kLineEnd);
  platform::TextPrintout printout(Text(TextId::kPrediction), text);
  Screen().Print(printout);
}

void MainForm::cmdDone_Click() {
  surroundings_.files.WriteBytes(surroundings_.state.folders.appDir + "PredictSettings.ini",
                                 lblCalFileName.Caption() + std::string(platform::kLineEnd));
  surroundings_.endProgram();
}

void MainForm::cmdPredict_Click() {
  succeeded_ = false;
  faulted_ = false;
  iqoutput.Clear();
  pls_ = std::make_unique<PLSPred>(surroundings_.library, Screen());
  LoadCalibration();
  CheckError(pls_->LoadSpcDiskFile(kExportedSpectrum));
  CheckError(pls_->PlsIqPredic(kCalibrationToPredict));
  CheckError(pls_->GetConstituent_Names(text_));
  ReadNames();
  ReadConcentrations();
  const auto is_finite = [](double value) { return std::isfinite(value); };
  succeeded_ = !faulted_ && std::ranges::all_of(surroundings_.state.PLSConcentrations, is_finite);
  if (succeeded_) ListResults();
  Unload();
}

void MainForm::LoadCalibration() {
  pls_->LoadCalFile(calibration_path_);
  std::int16_t total = 0;
  CheckError(pls_->GetCalTotal(total));
  Combo1.Clear();
  for (int calibration = 1; calibration <= total; ++calibration) {
    CheckError(pls_->GetCalMemo(text_, static_cast<std::int16_t>(calibration)));
    // The blanks fill the buffer and are no part of the memo.
    Combo1.Add(WithoutTrailingBlanks(text_));
  }
  if (Combo1.Count() > 0) Combo1.Select(0);
}

// The arrays and the count are sized by the prediction before this one; the names then make their array grow
// as they need.
void MainForm::ReadNames() {
  state::ProgramState& state = surroundings_.state;
  const std::size_t size = static_cast<std::size_t>(concentration_count_) + 1;
  state.PLSConstituentNames.assign(size, "");
  state.PLSConcentrations.assign(size, 0);
  state.PLSConstituentCount = platform::ToInt16(concentration_count_);
  std::size_t k = 1;
  for (const char c : text_) {
    if (c == '\t') {
      ++k;
      continue;
    }
    if (state.PLSConstituentNames.size() <= k) state.PLSConstituentNames.resize(k + 1);
    state.PLSConstituentNames[k] += c;
  }
}

void MainForm::ReadConcentrations() {
  Array concentrations;
  std::int32_t size = 0;
  const std::int32_t code = pls_->GetConcentration(concentrations, size);
  concentration_count_ = size;
  if (code != kNoError) {
    CheckError(code);
    return;
  }
  std::vector<double>& results = surroundings_.state.PLSConcentrations;
  results.assign(1, 0);
  results.insert(results.end(), concentrations.begin(), concentrations.end());
}

void MainForm::ListResults() {
  const state::ProgramState& state = surroundings_.state;
  if (!sample_name_.empty()) iqoutput.Add(Text(TextId::kPredictedSample, {sample_name_}));
  for (std::size_t k = 1; k < state.PLSConcentrations.size(); ++k) {
    const std::string name = k < state.PLSConstituentNames.size() ? state.PLSConstituentNames[k] : "";
    iqoutput.Add(name + " = " + ResultText(state.PLSConcentrations[k]));
  }
}

void MainForm::CheckError(std::int32_t code) {
  if (code == kNoError) return;
  faulted_ = true;
  std::string text;
  PLSPred::GetErrorString(platform::ToInt16(code), text);
  Screen().ShowMessage({.text = text, .title = Text(TextId::kProgramName)});
  Unload();
}

void MainForm::Unload() {
  CheckError(pls_->UnLoadCalFile());
  Combo1.Clear();
}

}  // namespace veritane::pls
