// A spectrum as the prediction library takes it in, whatever file it came from.
#pragma once

#include <stdexcept>
#include <vector>

namespace veritane::plslibrary {

// Evenly spaced from firstX to lastX. The unit codes are those of SPC files: xType 1 is cm⁻¹, 3 is nm;
// yType 2 is absorbance, 128 transmittance, 0 arbitrary.
struct MeasuredSpectrum {
  double firstX = 0;
  double lastX = 0;
  std::vector<double> y;
  int xType = 0;
  int yType = 0;
};

// What is wrong with a spectrum file, in words for the person who chose it.
struct SpectrumReadError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace veritane::plslibrary
