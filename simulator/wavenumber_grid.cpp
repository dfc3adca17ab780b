// Grids of wavenumbers.
#include "simulator/wavenumber_grid.h"

#include "platform/run_time_error.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace veritane::simulator {

using platform::ErrorNumber;
using platform::RunTimeError;

WavenumberGrid GridOver(double from, double to, double spacing) {
  if (!(from > 0 && from < to && spacing > 0 && std::isfinite(to) && std::isfinite(spacing))) {
    throw RunTimeError(ErrorNumber::kInvalidCall,
                       "a range of wavenumbers runs from low to high in positive steps");
  }
  // A limit such as 400.1 counts as a multiple of 0.1 although neither is exact in binary.
  constexpr double kTolerance = 1e-6;
  const double lower = std::ceil(from / spacing - kTolerance);
  const double upper = std::floor(to / spacing + kTolerance);
  if (!(upper < static_cast<double>(std::numeric_limits<std::int32_t>::max()))) {
    throw RunTimeError(ErrorNumber::kOverflow);
  }
  if (upper < lower) throw RunTimeError(ErrorNumber::kInvalidCall, "the range of wavenumbers holds no point");
  return {.lower = static_cast<std::int32_t>(lower),
          .points = static_cast<std::int32_t>(upper - lower) + 1,
          .spacing = spacing};
}

std::vector<double> InterpolatedOnto(const WavenumberGrid& grid, const state::Ordinates& ordinates,
                                     double spacing) {
  if (ordinates.Empty() || !(spacing > 0)) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "a spectrum without points cannot be interpolated");
  }
  const auto last = static_cast<double>(ordinates.Size() - 1);
  std::vector<double> values(grid.Size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    const double position = std::clamp(grid.Wavenumber(i) / spacing - ordinates.lower, 0.0, last);
    const auto left = static_cast<std::size_t>(position);
    const std::size_t right = std::min(left + 1, ordinates.Size() - 1);
    const double share = position - static_cast<double>(left);
    values[i] = (1 - share) * ordinates.values[left] + share * ordinates.values[right];
  }
  return values;
}

}  // namespace veritane::simulator
