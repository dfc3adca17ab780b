// Evenly spaced wavenumbers counted from zero: point i lies at i × spacing, so grids of one spacing share
// points.
#pragma once

#include "shell/state/spectrum_buffer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace veritane::simulator {

// `points` wavenumbers from lower × spacing upwards, in cm⁻¹.
struct WavenumberGrid {
  std::int32_t lower = 0;
  std::int32_t points = 0;
  double spacing = 1;

  std::size_t Size() const { return static_cast<std::size_t>(points); }
  std::int32_t Upper() const { return lower + points - 1; }
  // The wavenumber of the point at `offset`, the first being 0.
  double Wavenumber(std::size_t offset) const {
    return (static_cast<double>(lower) + static_cast<double>(offset)) * spacing;
  }
};

// All whole multiples of `spacing` from `from` to `to`, both ends included when they are multiples
// themselves. Error 5 unless 0 < from < to and spacing > 0, 6 when there are more points than a 32-bit
// integer counts.
WavenumberGrid GridOver(double from, double to, double spacing);

// The spectrum's ordinates at the grid's wavenumbers by straight lines between its points; the first and last
// ordinate continue beyond its ends. Error 5 for a spectrum without points or with a spacing that is not
// positive.
std::vector<double> InterpolatedOnto(const WavenumberGrid& grid, const state::Ordinates& ordinates,
                                     double spacing);

}  // namespace veritane::simulator
