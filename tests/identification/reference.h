// The comparisons computed a second time, straight from their definitions in long double, as a check on the
// program's own arithmetic; and spectra to try both on.
#pragma once

#include "shell/state/null_region.h"
#include "shell/state/spectrum_buffer.h"

#include <string>
#include <vector>

namespace veritane::identification::reference {

// The match quality before it is rounded, of spectra as measured.
double EuclideanQuality(const state::SpectrumBuffer& standard, const state::SpectrumBuffer& sample,
                        const std::vector<state::NullRegion>& regions);
// The same of two transforms.
double FourierQuality(const state::Ordinates& standard, const state::Ordinates& sample);

// The real part of the discrete Fourier transform by its defining sum.
std::vector<long double> FourierTransform(const std::vector<double>& values);

// Ordinates after the baseline is taken away that fits the first `count` of them.
std::vector<long double> WithoutBaseline(const state::Ordinates& ordinates, std::size_t count);

// One of the measured spectra of tests/data/ftir, by file name without extension. These are JCAMP-DX files of
// plain numbers in rising order; anything else ends the test with an exception.
state::SpectrumBuffer MeasuredSpectrum(const std::string& name);

// The materials of these spectra in groups of one first wavenumber each: 400, 620 and 720 cm⁻¹.
const std::vector<std::vector<std::string>>& MaterialsByFirstWavenumber();

// A made-up spectrum of `points` points from point number `lower` on: two bands on a sloping background,
// shifted by `shift` points.
state::SpectrumBuffer TwoBands(std::int32_t lower, std::size_t points, double shift = 0);

}  // namespace veritane::identification::reference
