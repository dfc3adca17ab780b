// Spectra that come with an x for every point are taken only when the points are evenly spaced.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace veritane::plslibrary {

// An x may miss its place on the straight line from the first to the last by this share of a step. Files hold
// x rounded to a decimal or two or to 32-bit floats; points that lie on another scale miss by whole steps.
inline constexpr double kSpacingTolerance = 0.05;

// SpectrumReadError for no points, for x that are not evenly spaced or not finite, and for two or more points
// of which the first and the last have the same x. `what` begins the error's text: "spectrum 2: ".
void RequireEvenSpacing(std::span<const double> x, const std::string& what);

// The same for a spectrum that is given by its first and last x alone.
void RequireLimits(double first_x, double last_x, std::uint64_t points, const std::string& what);

}  // namespace veritane::plslibrary
