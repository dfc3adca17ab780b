// The Lumivar comparison computed a second time, wavenumber by wavenumber in long double, as a check on the
// program's own arithmetic.
#pragma once

#include "shell/state/spectrum_buffer.h"

#include <vector>

namespace veritane::identification::reference {

struct MeasuredBand {
  int low = 0;  // cm⁻¹
  long double measure = 0;
};

struct LumivarOutcome {
  std::vector<MeasuredBand> bands;
  long double quality = 0;  // before it is rounded
};

// Ends the test with std::out_of_range where a band needs a point that a spectrum lacks.
LumivarOutcome Lumivar(const state::SpectrumBuffer& standard, const state::SpectrumBuffer& sample);

// The spectrum on another grid, by straight lines between its points: a spectrum with this spacing.
state::SpectrumBuffer Resampled(const state::SpectrumBuffer& spectrum, double spacing);

}  // namespace veritane::identification::reference
