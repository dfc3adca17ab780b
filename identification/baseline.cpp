// Baseline preparation: the straight line that fits a spectrum best is taken away from it.
#include "identification/baseline.h"

#include "identification/point_numbers.h"
#include "identification/point_sums.h"
#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

// What remains of a straight line after the subtraction is below this share of the line's height, on the
// average point; what remains of a measured spectrum is far above it (an instrument that resolves 24 bits:
// 6e-8).
constexpr double kShareOfRounding = 1e-12;

}  // namespace

BaselineFit FitBaseline(const state::Ordinates& ordinates, double point_count) {
  RequireSixteenBitPointNumbers(ordinates);
  const std::int16_t count = platform::ToInt16(point_count);
  if (count > static_cast<std::int64_t>(ordinates.Size())) {
    throw RunTimeError(ErrorNumber::kSubscript, Text(TextId::kBaselineTooLong));
  }
  if (count <= 1) throw RunTimeError(ErrorNumber::kDivisionByZero, Text(TextId::kBaselineThroughPoint));

  // With x counted from the middle of the points their sum is 0, so the normal equations fall apart into a
  // mean and a slope, and their sum of squares has a closed form: n (n² - 1) / 12. Both are exact in a
  // double.
  const double n = count;
  const double middle = (n - 1) / 2;
  const std::span<const double> values = ordinates.values;
  const auto [sum_y, sum_xy] = SumsOverPoints<2>(static_cast<std::size_t>(count), [&](auto position) {
    const auto y = position.Of(values);
    return std::array{y, (position.number - middle) * y};
  });
  const BaselineFit fit{
      .centre = ordinates.lower + middle, .level = sum_y / n, .slope = sum_xy / (n * (n * n - 1) / 12)};
  if (!std::isfinite(fit.level) || !std::isfinite(fit.slope)) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kOrdinateNotFinite));
  }
  return fit;
}

void SubtractBaseline(state::Ordinates& ordinates, double point_count) {
  const BaselineFit fit = FitBaseline(ordinates, point_count);
  const std::span<double> values = ordinates.values;
  const double at_first = fit.At(ordinates.lower);
  const auto [remaining] = SumsOverPoints<1>(values.size(), [&](auto position) {
    const auto line = at_first + fit.slope * position.number;
    const auto rest = position.Of(values) - line;
    position.Put(values, rest);
    return std::array{Larger(rest, -rest)};
  });
  if (!std::isfinite(remaining)) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kOrdinateNotFinite));
  }
  const double height = std::max(std::abs(at_first), std::abs(fit.At(ordinates.Upper())));
  if (remaining <= kShareOfRounding * height * static_cast<double>(values.size())) {
    std::ranges::fill(values, 0.0);
  }
}

}  // namespace veritane::identification
