// The Lumivar comparison: how far a sample departs from its Standard, band by band.
//
// Both spectra are cut into bands 100 cm⁻¹ wide, from the first whole hundred above the first wavenumber on;
// the last band ends at the last whole hundred. A band's measure is its largest difference
// between the two, divided by the larger of the two sums of ordinates. The measures are folded into one match
// quality, in which later bands weigh more.
//
// Standard and sample must have the same spacing and the same first point; callers have seen to that.
#pragma once

#include "acquisition/bench.h"
#include "shell/state/spectrum_buffer.h"

#include <span>
#include <string>
#include <vector>

namespace veritane::identification {

// What the match quality falls to 0 at.
inline constexpr double kLumivarLimit = 0.001;

struct LumivarBand {
  // Wavenumbers (cm⁻¹), whole hundreds.
  double low = 0;
  double high = 0;
  // Not negative; 0 where the sample is the Standard.
  double measure = 0;
};

struct LumivarComparison {
  std::vector<LumivarBand> bands;  // from low to high, at least one
  // Percent, rounded to two decimals: 100 for identical spectra, below 0 for a fold beyond kLumivarLimit.
  double quality = 0;
};

// The measure of one band: max |standard - sample| / larger of sum(standard) and sum(sample), without a sign.
// A larger sum of exactly 0 counts as 1e-50. Both spans have the same points, at least one.
//
// The sums are taken in four interleaved parts, points 0, 4, 8 …, 1, 5, 9 … and so on, which are then added
// in a fixed order: the result is the same on every machine. No memory is allocated.
//
// Error 11 where the larger sum is the Standard's and 0; 6 for an ordinate or a result that is infinite or
// not a number.
double LumivarMeasure(std::span<const double> standard, std::span<const double> sample);

// The match quality that band measures, from low to high, fold into: each measure is added to the fold so far
// and the sum divided by the number of bands so far. Error 6 where the result is no finite number.
double LumivarQuality(std::span<const LumivarBand> bands);

// Compares two spectra with the same spacing (cm⁻¹). A band has the point at its low end or the last one
// below it, and as many points after it as its width holds, rounded half to even.
//
// Error 9 where a spectrum has no points, where it is too short for a single band (nothing compared must not
// count as nothing found), and where a band needs a point that one of the two lacks; 11 for a spacing of 0
// and for one so wide that a band has fewer than two steps; 6 for point numbers beyond 16 bits; else as
// LumivarMeasure.
LumivarComparison CompareByLumivar(const state::Ordinates& standard, const state::Ordinates& sample,
                                   double spacing);

// One line a band: "500 - 600     .000123".
std::string LumivarReport(std::span<const LumivarBand> bands);

// Compares Standard and sample of the state. The bands go to the state, the report to the results window, and
// the chart marks each band by how far it departs.
void Lumivar(acquisition::Bench& bench);

}  // namespace veritane::identification
