// Min-max normalisation: a spectrum on a scale from 0 to 1.
#pragma once

#include "shell/state/spectrum_buffer.h"

namespace veritane::identification {

// Replaces every ordinate by (ordinate - min) / (max - min), so that the smallest becomes 0 and the
// largest 1. All ordinates of a flat spectrum become 0. The bounds stay.
//
// Error 9 for no ordinates, 6 for point numbers beyond 16 bits, for an ordinate that is infinite or not a
// number, and where max - min overflows; the ordinates are of no use after an error 6.
void NormaliseToUnitRange(state::Ordinates& ordinates);

}  // namespace veritane::identification
