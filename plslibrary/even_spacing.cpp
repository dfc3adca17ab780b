// Whether the points of a spectrum are evenly spaced.
#include "plslibrary/even_spacing.h"

#include "plslibrary/measured_spectrum.h"

#include <cmath>

namespace veritane::plslibrary {

void RequireLimits(double first_x, double last_x, std::uint64_t points, const std::string& what) {
  if (points == 0) throw SpectrumReadError(what + "there are no points");
  // The distance overflows where both limits are finite but absurd.
  if (!std::isfinite(first_x) || !std::isfinite(last_x) || !std::isfinite(last_x - first_x)) {
    throw SpectrumReadError(what + "the first or last x is not a number");
  }
  if (points > 1 && first_x == last_x) {
    throw SpectrumReadError(what + "the first and the last of " + std::to_string(points) +
                            " points have the same x");
  }
  if (points == 1 && first_x != last_x) {
    throw SpectrumReadError(what + "one point cannot have two x");
  }
}

void RequireEvenSpacing(std::span<const double> x, const std::string& what) {
  RequireLimits(x.empty() ? 0 : x.front(), x.empty() ? 0 : x.back(), x.size(), what);
  if (x.size() < 3) return;
  const double step = (x.back() - x.front()) / static_cast<double>(x.size() - 1);
  for (std::size_t i = 1; i + 1 < x.size(); ++i) {
    const double even = x.front() + static_cast<double>(i) * step;
    // Written so that an x that is no number misses too.
    if (!(std::abs(x[i] - even) <= kSpacingTolerance * std::abs(step))) {
      throw SpectrumReadError(what + "the points are not evenly spaced: point " + std::to_string(i + 1) +
                              " lies at " + std::to_string(x[i]) + ", not at " + std::to_string(even));
    }
  }
}

}  // namespace veritane::plslibrary
