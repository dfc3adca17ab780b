// The objects of the Spectrometer application that the program holds.
#pragma once

#include "acquisition/spectrometer_app.h"

#include <memory>

namespace veritane::acquisition {

struct SpectrometerSession {
  std::unique_ptr<acquisition::SpectrometerApp> SpectrometerApp;
  // The spectrum file in use; every opening or creating replaces it.
  std::shared_ptr<Document> CurrentDocument;
  // How the next collection measures.
  std::shared_ptr<CollectMethod> scan;
  std::shared_ptr<Spectrum> spect;
  std::shared_ptr<SpectrumData> Data;

  // Opens or creates a document and makes it the current one; the application is told first that the program
  // drives it.
  void Open(const std::string& path);
  void Create(const std::string& path);

  // Reads the current document's current spectrum. Error 5 for one whose spacing is not above 0.
  state::SpectrumBuffer ReadSpectrum();
  // Replaces the current document's current spectrum by its transform and reads that.
  state::Ordinates ReadTransform();

  // Lets go of every object, the application first.
  void Release();
};

}  // namespace veritane::acquisition
