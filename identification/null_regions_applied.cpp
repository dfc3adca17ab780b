// Null regions: bands of wavenumbers that the Euclidean comparison is to leave out.
#include "identification/null_regions_applied.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

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

  for (const NullRegion& region : regions) {
    const double low = std::min(region.start, region.end);
    const double high = std::max(region.start, region.end);
    for (std::size_t i = 0; i < ordinates.Size(); ++i) {
      const double wavenumber = (ordinates.lower + static_cast<double>(i)) * resolution;
      if (wavenumber >= low && wavenumber <= high) ordinates.values[i] = 0;
    }
  }
}

}  // namespace veritane::identification
