// The Euclidean and the Fourier comparison: the match quality of a sample with its Standard, in percent.
//
// Both measure the distance d = sqrt(|1 - r|) from the normalised cross-correlation
// r = sum(S X) / (sqrt(sum(S S)) sqrt(sum(X X))) of Standard S and sample X, and return 100 (1 - d) rounded
// to two decimals. Equal spectra, and spectra that differ by a positive factor, give exactly 100.
//
// Errors of both: 9 where a spectrum has no points or not those that are compared; 11 where one is 0 at all
// points that are compared; 6 for point numbers beyond 16 bits and for an ordinate or a result that is
// infinite or not a number. What is returned is therefore always a finite number, never one that passes by
// accident.
#pragma once

#include "identification/null_regions_applied.h"
#include "shell/state/spectrum_buffer.h"

#include <span>

namespace veritane::identification {

// What the Euclidean comparison asks of a spectrum before it: baseline, normalisation and null regions, in
// this order. `spectrum` is changed in place; NumPts says how many points the baseline is fitted to. Errors
// as the three steps'.
void PrepareForEuclidean(state::SpectrumBuffer& spectrum, std::span<const NullRegion> regions);

// Compares two prepared spectra over the sample's points, each of which the Standard must have (error 9); the
// Standard may reach beyond them. A result below 0 becomes 0.
double EuclideanComparison(const state::Ordinates& standard, const state::Ordinates& sample);

// Compares 101 coefficients of two transforms, from 55 to 155 places above each one's lower bound (error 9
// where there are fewer). A 0 is put before them and the 102 elements are normalised to the range 0 to 1, so
// a factor between the transforms does not count, but an offset does. A result below 0 is kept. Both
// transforms are replaced by their 102 normalised elements with a lower bound of 0; an error 9, and an error
// 6 of an ordinate, leave them as they were.
double FourierComparison(state::Ordinates& standard, state::Ordinates& sample);

}  // namespace veritane::identification
