// Null regions: bands of wavenumbers that the Euclidean comparison is to leave out.
#include "identification/null_regions_applied.h"

#include "identification/point_numbers.h"
#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

void ApplyNullRegions(state::Ordinates& ordinates, double resolution, std::span<const NullRegion> regions) {
  RequireSixteenBitPointNumbers(ordinates);
  if (regions.empty()) return;
  if (!(resolution > 0) || std::isinf(resolution)) {
    throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kNullRegionsWithoutSpacing));
  }
  for (const NullRegion& region : regions) {
    if (!std::isfinite(region.start) || !std::isfinite(region.end)) {
      throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kNullRegionWithoutBounds));
    }
  }

  // Wavenumbers rise with the point number, so each band is one run of points.
  const double points = static_cast<double>(ordinates.Size());
  // How many points come before the first one for which `is_behind` holds; `estimate` is off by rounding at
  // most.
  const auto points_before = [&](double estimate, auto is_behind) {
    double count = std::clamp(std::floor(estimate) - ordinates.lower, 0.0, points);
    while (count > 0 && is_behind((ordinates.lower + count - 1) * resolution)) --count;
    while (count < points && !is_behind((ordinates.lower + count) * resolution)) ++count;
    return static_cast<std::ptrdiff_t>(count);
  };
  for (const NullRegion& region : regions) {
    const double low = std::min(region.start, region.end);
    const double high = std::max(region.start, region.end);
    const auto first =
        points_before(low / resolution, [low](double wavenumber) { return wavenumber >= low; });
    const auto behind =
        points_before(high / resolution, [high](double wavenumber) { return wavenumber > high; });
    std::fill(ordinates.values.begin() + first, ordinates.values.begin() + behind, 0.0);
  }
}

}  // namespace veritane::identification
