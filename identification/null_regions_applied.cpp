// Null regions: bands of wavenumbers that the Euclidean comparison is to leave out.
#include "identification/null_regions_applied.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ranges>

#include "identification/correlation_bounds.h"
#include "platform/run_time_error.h"

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;

void ApplyNullRegions(state::Ordinates& ordinates, double resolution, std::span<const NullRegion> regions) {
  RequireSixteenBitPointNumbers(ordinates);
  if (regions.empty()) return;
  if (!(resolution > 0) || std::isinf(resolution)) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "null regions of a spectrum without a spacing");
  }
  for (const NullRegion& region : regions) {
    if (!std::isfinite(region.start) || !std::isfinite(region.end)) {
      throw RunTimeError(ErrorNumber::kOverflow, "a null region without bounds");
    }
  }

  // Wavenumbers rise with the point number, so each band is one run of points.
  const auto point_numbers = std::views::iota(ordinates.lower, ordinates.Upper() + 1);
  const auto wavenumber = [resolution](std::int32_t point_number) { return point_number * resolution; };
  for (const NullRegion& region : regions) {
    const auto [low, high] = std::minmax(region.start, region.end);
    const auto first = std::ranges::lower_bound(point_numbers, low, {}, wavenumber) - point_numbers.begin();
    const auto behind = std::ranges::upper_bound(point_numbers, high, {}, wavenumber) - point_numbers.begin();
    std::fill(ordinates.values.begin() + first, ordinates.values.begin() + behind, 0.0);
  }
}

}  // namespace veritane::identification
