// The spectrum that all benchmarks use; numpy_comparison.py makes the same one.
#pragma once

#include "shell/state/spectrum_buffer.h"

#include <cmath>

namespace veritane::benchmarks {

// 3,601 points from 400 to 4000 cm⁻¹: two bands, moved by `shift`, on a sloping background.
inline state::SpectrumBuffer MadeUpSpectrum(double shift) {
  constexpr int kPoints = 3601;
  state::SpectrumBuffer spectrum;
  spectrum.Res = 1;
  spectrum.NumPts = kPoints;
  spectrum.Data.lower = 400;
  for (int i = 0; i < kPoints; ++i) {
    const double first_band = std::exp(-std::pow((i - 1500 - shift) / 40, 2));
    const double second_band = 0.5 * std::exp(-std::pow((i - 2500 - shift) / 20, 2));
    spectrum.Data.values.push_back(0.1 + 1e-5 * i + first_band + second_band);
  }
  return spectrum;
}

}  // namespace veritane::benchmarks
