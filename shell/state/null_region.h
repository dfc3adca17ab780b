// A band of wavenumbers that comparisons leave out.
#pragma once

namespace veritane::state {

// One band (cm⁻¹) as it was typed. The start is meant to be its high end and the end its low one, but nobody
// checks that.
struct NullRegion {
  double start = 0;
  double end = 0;
};

}  // namespace veritane::state
