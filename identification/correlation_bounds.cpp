// What every step of a comparison asks of the ordinates before it touches them.
#include "identification/correlation_bounds.h"

#include <cstdint>
#include <limits>

#include "platform/run_time_error.h"

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;

void RequireSixteenBitPointNumbers(const state::Ordinates& ordinates) {
  if (ordinates.Empty()) throw RunTimeError(ErrorNumber::kSubscript, "a spectrum without points");
  // The size comes first: only then is the upper bound sure to fit its own type.
  if (ordinates.Size() > kMostPoints) {
    throw RunTimeError(ErrorNumber::kOverflow, "a spectrum of more than 32,767 points");
  }
  const std::int64_t upper = std::int64_t{ordinates.lower} + static_cast<std::int64_t>(ordinates.Size()) - 1;
  if (ordinates.lower < std::numeric_limits<std::int16_t>::min() ||
      upper > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError(ErrorNumber::kOverflow, "a point number beyond 16 bits");
  }
}

}  // namespace veritane::identification
