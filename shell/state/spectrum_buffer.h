// One spectrum's ordinates by point number, as every part of the program passes them on.
#pragma once

#include <cstdint>
#include <vector>

namespace veritane::state {

// An array of doubles with a lower bound of its own. Element i of a spectrum lies at i × spacing on the x
// axis (wavenumber, cm⁻¹), so the lower bound is the first point's index, generally neither 0 nor 1.
struct Ordinates {
  std::int32_t lower = 0;
  std::vector<double> values;

  std::int32_t Upper() const { return lower + static_cast<std::int32_t>(values.size()) - 1; }
  std::size_t Size() const { return values.size(); }
  bool Empty() const { return values.empty(); }
};

// Ordinates with the spacing of the points (cm⁻¹; the program calls it the resolution) and their number, as
// the Spectrometer application reported them.
struct SpectrumBuffer {
  Ordinates Data;
  double Res = 0;
  double NumPts = 0;

  // In cm⁻¹.
  double FirstWavenumber() const { return Data.lower * Res; }
};

}  // namespace veritane::state
