// Puts the points of a spectrum file on whole multiples of their spacing, as the program requires: element i
// lies at i × spacing.
#pragma once

#include "shell/state/spectrum_buffer.h"

#include <optional>
#include <string>
#include <vector>

namespace veritane::simulator {

// Evenly spaced points in either direction of x.
struct SampledCurve {
  double firstX = 0;
  double lastX = 0;
  std::optional<double> deltaX;  // the file's own statement, taken where it fits first and last x exactly
  std::vector<double> values;
};

struct PlacedSpectrum {
  double spacing = 0;
  state::Ordinates ordinates;
  // Says from where the points were interpolated; "" when they are the file's own values.
  std::string interpolated;
};

// Descending curves are turned. Points that lie within 1e-5 of a step of whole multiples are there but for
// the rounding of their first and last x; they keep their values, and the spacing is the shortest decimal
// number that agrees. Otherwise the curve is interpolated at the whole multiples within its range, at the
// shortest decimal spacing that agrees with the curve's own within 1 % of a step over the whole range.
// Interpolation is cubic through the four nearest points (Lagrange; Abramowitz and Stegun, Handbook of
// Mathematical Functions, 25.2.13): at half a step it misses the top of a band four steps wide by less than 1
// %, where a straight line misses 4 %. std::domain_error when there is no such grid: no points, no range, a
// single point without spacing, or more than 2^31 multiples away from 0.
PlacedSpectrum PlaceOnGrid(SampledCurve curve);

}  // namespace veritane::simulator
