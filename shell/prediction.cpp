// Predictions and peaks as the main form runs them, and what the prediction form needs of it: the spectrum at
// hand, and the program's exit.
#include "identification/mark_peaks.h"
#include "identification/pls_prediction.h"
#include "platform/run_time_error.h"
#include "shell/frm_veritane.h"
#include "shell/state/string_table.h"

namespace veritane::shell {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

pls::PredictionSurroundings FrmVeritane::PredictionAround() {
  return {.files = machine_.files,
          .state = state_,
          .library = prediction_library_,
          .sampleName = [this] { return NameOfSpectrum(); },
          .exportSpectrum = [this](const std::string& path) { ExportSpectrum(path); },
          .driveApplication = [this] { session_.SpectrometerApp->Interactive(false); },
          .endProgram = [this] { cmdExit_Click(); }};
}

// The form predicts as it shows, and has nothing to wait for.
bool FrmVeritane::Predict() {
  class HiddenAtLast {
  public:
    explicit HiddenAtLast(platform::Form& form) : form_(form) {}
    ~HiddenAtLast() { form_.Hide(); }
    HiddenAtLast(const HiddenAtLast&) = delete;
    HiddenAtLast& operator=(const HiddenAtLast&) = delete;

  private:
    platform::Form& form_;
  };
  const HiddenAtLast hidden(dialogs_.mainForm);
  dialogs_.mainForm.Show();
  return dialogs_.mainForm.Succeeded();
}

void FrmVeritane::MarkStandard() {
  if (state_.algorithm == state::kMarkPeaks) identification::MarkPeaks(bench_);
  if (state_.algorithm == state::kPls) {
    state_.SpectrumIndex = 1;
    identification::PredictByPls(bench_);
  }
}

// The spectrum that was read last is the one to predict.
std::string FrmVeritane::NameOfSpectrum() {
  if (session_.spect == nullptr) return "";
  const acquisition::ParameterValue value = session_.spect->GetParameter("SpectName")->Value();
  const std::string* const name = std::get_if<std::string>(&value);
  return name == nullptr ? "" : *name;
}

void FrmVeritane::ExportSpectrum(const std::string& path) {
  if (session_.CurrentDocument == nullptr || state_.SpectrumIndex < 1) {
    throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kNoSpectrumToPredict));
  }
  acquisition::Document& document = *session_.CurrentDocument;
  document.SetDocumentShown(0);
  document.SelectSpectrum(state_.SpectrumIndex);
  const auto exporting = document.CreateOperation(acquisition::kExportOperation);
  exporting->SetFileName(path);
  document.ApplyOperation(*exporting);
}

}  // namespace veritane::shell
