// What every step of a comparison asks of the ordinates before it touches them.
#include "identification/point_numbers.h"

#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <cstdint>
#include <limits>

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

void RequireSixteenBitPointNumbers(const state::Ordinates& ordinates) {
  if (ordinates.Empty()) throw RunTimeError(ErrorNumber::kSubscript, Text(TextId::kNoPoints));
  // The size comes first: only then is the upper bound sure to fit its own type.
  constexpr std::size_t kMostPoints = 32'767;
  if (ordinates.Size() > kMostPoints) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kTooManyPoints));
  }
  const std::int64_t upper = std::int64_t{ordinates.lower} + static_cast<std::int64_t>(ordinates.Size()) - 1;
  if (ordinates.lower < std::numeric_limits<std::int16_t>::min() ||
      upper > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kPointNumberTooLarge));
  }
}

}  // namespace veritane::identification
