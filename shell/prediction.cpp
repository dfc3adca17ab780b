// What the prediction form needs of the main form: the spectrum at hand, and the program's exit.
#include "platform/run_time_error.h"
#include "shell/frm_veritane.h"

namespace veritane::shell {

using platform::ErrorNumber;
using platform::RunTimeError;

pls::PredictionSurroundings FrmVeritane::PredictionAround() {
  return {.files = machine_.files,
          .state = state_,
          .library = prediction_library_,
          .sampleName = [this] { return NameOfSpectrum(); },
          .exportSpectrum = [this](const std::string& path) { ExportSpectrum(path); },
          .driveApplication = [this] { session_.SpectrometerApp->Interactive(false); },
          .endProgram = [this] { cmdExit_Click(); }};
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
    throw RunTimeError(ErrorNumber::kInvalidCall, "there is no spectrum to predict");
  }
  acquisition::Document& document = *session_.CurrentDocument;
  document.SetDocumentShown(0);
  document.SelectSpectrum(state_.SpectrumIndex);
  const auto exporting = document.CreateOperation(acquisition::kExportOperation);
  exporting->SetFileName(path);
  document.ApplyOperation(*exporting);
}

}  // namespace veritane::shell
