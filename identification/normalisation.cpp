// Min-max normalisation: a spectrum on a scale from 0 to 1.
#include "identification/normalisation.h"

#include "identification/point_numbers.h"
#include "identification/point_sums.h"
#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

struct Extremes {
  double min;
  double max;
};

// Passes over an ordinate that is not a number, unless it is the first.
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
  const std::span<double> values = ordinates.values;
  const auto [min, max] = FindExtremes(values);
  const double range = max - min;
  if (!std::isfinite(range)) throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kRangeTooLarge));
  if (std::ranges::all_of(values, [flat = min](double value) { return value == flat; })) {
    std::ranges::fill(values, 0.0);
    return;
  }
  const auto [sum] = SumsOverPoints<1>(values.size(), [&, least = min](auto position) {
    const auto normalised = (position.Of(values) - least) / range;
    position.Put(values, normalised);
    return std::array{normalised};
  });
  // Normalised numbers lie between 0 and 1, so only one that is no number can spoil their sum.
  if (!std::isfinite(sum)) throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kOrdinateNotANumber));
}

}  // namespace veritane::identification
