// Null regions: bands of wavenumbers that the Euclidean comparison is to leave out.
#pragma once

#include "shell/state/null_region.h"
#include "shell/state/spectrum_buffer.h"

#include <span>

namespace veritane::identification {

using state::NullRegion;

// Sets to 0 every ordinate whose wavenumber, point number × `resolution`, lies in one of the regions, both
// ends included. The ordinates thus add nothing to the comparison's sums, and the spectrum keeps its bounds.
//
// A region typed the other way round means the same band: its lower number is the low end. The laboratory
// asked for the band to be left out, and a comparison that silently kept it would judge by what the
// laboratory distrusts.
//
// Error 9 for no ordinates; 6 for point numbers beyond 16 bits and for a region's end that is infinite or not
// a number; 5 for a `resolution` that is not above 0 while there are regions. The ordinates are then as they
// were.
void ApplyNullRegions(state::Ordinates& ordinates, double resolution, std::span<const NullRegion> regions);

}  // namespace veritane::identification
