// Min-max normalisation: a spectrum on a scale from 0 to 1.
#include "identification/normalisation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>

#include "identification/correlation_bounds.h"
#include "identification/correlation_sums.h"
#include "platform/run_time_error.h"

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;

namespace {

struct Extremes {
  double min;
  double max;
};

// Every ordinate must be a number: comparisons alone would pass over one that is not in silence.
void RequireFinite(std::span<const double> values) {
  // 0 times an ordinate is 0, unless the ordinate is infinite or not a number.
  const auto [zeros] =
      SumsOverPoints<1>(values.size(), [&](auto position) { return std::array{0.0 * position.Of(values)}; });
  if (zeros != 0) throw RunTimeError(ErrorNumber::kOverflow, "an ordinate is infinite or not a number");
}

Extremes FindExtremes(std::span<const double> values) {
  Extremes extremes{values.front(), values.front()};
  Pair even_min{extremes.min, extremes.min};
  Pair odd_min = even_min;
  Pair even_max = even_min;
  Pair odd_max = even_min;
  std::size_t point = 0;
  for (; point + 4 <= values.size(); point += 4) {
    const Pair even = PairAt{point, {}}.Of(values);
    const Pair odd = PairAt{point + 2, {}}.Of(values);
    even_min = Smaller(even, even_min);
    even_max = Larger(even, even_max);
    odd_min = Smaller(odd, odd_min);
    odd_max = Larger(odd, odd_max);
  }
  const Pair min = Smaller(even_min, odd_min);
  const Pair max = Larger(even_max, odd_max);
  extremes = {Smaller(min[0], min[1]), Larger(max[0], max[1])};
  for (; point < values.size(); ++point) {
    extremes.min = Smaller(values[point], extremes.min);
    extremes.max = Larger(values[point], extremes.max);
  }
  return extremes;
}

}  // namespace

void NormaliseToUnitRange(state::Ordinates& ordinates) {
  RequireSixteenBitPointNumbers(ordinates);
  RequireFinite(ordinates.values);
  const auto [min, max] = FindExtremes(ordinates.values);
  const double range = max - min;
  if (std::isinf(range)) throw RunTimeError(ErrorNumber::kOverflow, "the range of a spectrum");
  if (range == 0) {
    std::ranges::fill(ordinates.values, 0.0);
    return;
  }
  std::span<double> values = ordinates.values;
  std::size_t point = 0;
  for (; point + 2 <= values.size(); point += 2) {
    const PairAt pair{point, {}};
    pair.Put(values, (pair.Of(values) - min) / range);
  }
  for (; point < values.size(); ++point) values[point] = (values[point] - min) / range;
}

}  // namespace veritane::identification
