// What every step of a comparison asks of the ordinates before it touches them.
#pragma once

#include "shell/state/spectrum_buffer.h"

namespace veritane::identification {

// Point numbers are 16-bit integers throughout the comparisons. Error 9 when there is no ordinate; error 6
// when there are more than 32,767, or when a point number does not fit a signed 16-bit integer.
void RequireSixteenBitPointNumbers(const state::Ordinates& ordinates);

}  // namespace veritane::identification
