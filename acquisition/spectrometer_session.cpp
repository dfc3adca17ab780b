// Opening documents and reading spectra through the Spectrometer application.
#include "acquisition/spectrometer_session.h"

#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <cmath>

namespace veritane::acquisition {

void SpectrometerSession::Open(const std::string& path) {
  SpectrometerApp->Interactive(false);
  CurrentDocument = SpectrometerApp->OpenDocument(path);
}

void SpectrometerSession::Create(const std::string& path) {
  SpectrometerApp->Interactive(false);
  CurrentDocument = SpectrometerApp->NewDocument(path);
}

state::SpectrumBuffer SpectrometerSession::ReadSpectrum() {
  spect = CurrentDocument->GetSpectrum();
  Data = spect->SpectrumData();
  state::SpectrumBuffer spectrum{
      .Data = Data->Values(), .Res = Data->Spacing(), .NumPts = static_cast<double>(Data->NumberOfPoints())};
  // Without it every two spectra would seem to have the same wavenumbers.
  if (!std::isfinite(spectrum.Res) || spectrum.Res <= 0) {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, state::Text(state::TextId::kNoSpacing));
  }
  return spectrum;
}

state::Ordinates SpectrometerSession::ReadTransform() {
  const auto operation = CurrentDocument->CreateOperation(kUnaryOperation);
  operation->SetOperation(kTransformOperation);
  CurrentDocument->ApplyOperation(*operation);
  // A transform has no wavenumbers, so its spacing may be anything.
  spect = CurrentDocument->GetSpectrum();
  Data = spect->SpectrumData();
  return Data->Values();
}

void SpectrometerSession::Release() {
  SpectrometerApp.reset();
  CurrentDocument.reset();
  scan.reset();
  spect.reset();
  Data.reset();
}

}  // namespace veritane::acquisition
