// Opening documents and reading spectra through the Spectrometer application.
#include "acquisition/spectrometer_session.h"

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
  return {
      .Data = Data->Values(), .Res = Data->Spacing(), .NumPts = static_cast<double>(Data->NumberOfPoints())};
}

state::Ordinates SpectrometerSession::ReadTransform() {
  const auto operation = CurrentDocument->CreateOperation(kUnaryOperation);
  operation->SetOperation(kTransformOperation);
  CurrentDocument->ApplyOperation(*operation);
  return ReadSpectrum().Data;
}

void SpectrometerSession::Release() {
  SpectrometerApp.reset();
  CurrentDocument.reset();
  scan.reset();
  spect.reset();
  Data.reset();
}

}  // namespace veritane::acquisition
