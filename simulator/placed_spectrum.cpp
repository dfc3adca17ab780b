// Spectra on whole multiples of their spacing.
#include "simulator/placed_spectrum.h"

#include "simulator/jcamp_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <span>
#include <stdexcept>
#include <utility>

namespace veritane::simulator {

namespace {

// What the rounding of x in files leaves (up to 2e-7 was seen), and far below what changes an ordinate.
constexpr double kRoundingOfX = 1e-5;
// How far a rounder spacing may move the last point of an interpolated curve, in steps.
constexpr double kRoundingOfSpacing = 0.01;
constexpr double kLargestIndex = std::numeric_limits<std::int32_t>::max();

[[noreturn]] void Refuse(const std::string& reason) {
  throw std::domain_error(reason);
}

// `number` with `digits` significant decimal digits.
double RoundedTo(double number, int digits) {
  std::array<char, 40> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::scientific, digits - 1)
          .ptr;
  double rounded = number;
  std::from_chars(text.data(), end, rounded);
  return rounded;
}

// The decimal number with the fewest digits that `fits`, or `number` itself.
template <typename Fits>
double ShortestDecimal(double number, Fits fits) {
  for (int digits = 1; digits <= 15; ++digits) {
    const double rounded = RoundedTo(number, digits);
    if (rounded > 0 && fits(rounded)) return rounded;
  }
  return number;
}

std::int32_t ToIndex(double index) {
  if (!(std::abs(index) < kLargestIndex)) Refuse("the points lie too many steps away from x = 0");
  return static_cast<std::int32_t>(index);
}

// The cubic through the four points nearest to `place`, counted in points from the first; lower order where
// there are fewer points.
double Interpolated(std::span<const double> values, double place) {
  const auto count = static_cast<std::ptrdiff_t>(std::min<std::size_t>(values.size(), 4));
  const auto size = static_cast<std::ptrdiff_t>(values.size());
  const auto left = static_cast<std::ptrdiff_t>(std::floor(place)) - (count == 4 ? 1 : 0);
  const std::ptrdiff_t begin = std::clamp<std::ptrdiff_t>(left, 0, size - count);
  double sum = 0;
  for (std::ptrdiff_t i = begin; i < begin + count; ++i) {
    double weight = 1;
    for (std::ptrdiff_t j = begin; j < begin + count; ++j) {
      if (j != i) weight *= (place - static_cast<double>(j)) / static_cast<double>(i - j);
    }
    sum += weight * values[static_cast<std::size_t>(i)];
  }
  return sum;
}

PlacedSpectrum Interpolate(const SampledCurve& curve, double step) {
  const auto steps = static_cast<double>(curve.values.size() - 1);
  PlacedSpectrum placed;
  placed.spacing = ShortestDecimal(
      step, [&](double spacing) { return std::abs(spacing - step) * steps <= kRoundingOfSpacing * step; });
  const std::int32_t lower = ToIndex(std::ceil(curve.firstX / placed.spacing - kRoundingOfSpacing));
  const std::int32_t upper = ToIndex(std::floor(curve.lastX / placed.spacing + kRoundingOfSpacing));
  placed.ordinates.lower = lower;
  for (std::int32_t index = lower; index <= upper; ++index) {
    const double place = std::clamp((index * placed.spacing - curve.firstX) / step, 0.0, steps);
    placed.ordinates.values.push_back(Interpolated(curve.values, place));
  }
  if (placed.ordinates.Empty()) Refuse("no whole multiple of the spacing lies within the curve");
  placed.interpolated = "cubic, from " + std::to_string(curve.values.size()) + " points at " +
                        ExactNumber(curve.firstX) + " to " + ExactNumber(curve.lastX) +
                        ", which are no whole multiples of their spacing " + ExactNumber(step);
  return placed;
}

// The index of the first point when the file's own spacing gives both ends to the last bit.
std::optional<double> ExactLower(double spacing, const SampledCurve& curve) {
  if (!(spacing > 0) || !std::isfinite(spacing)) return std::nullopt;
  const double lower = std::nearbyint(curve.firstX / spacing);
  const double upper = lower + static_cast<double>(curve.values.size() - 1);
  const bool exact = lower * spacing == curve.firstX && upper * spacing == curve.lastX;
  return exact ? std::optional(lower) : std::nullopt;
}

PlacedSpectrum OnGrid(double lower, double spacing, std::vector<double> values) {
  ToIndex(lower + static_cast<double>(values.size() - 1));
  PlacedSpectrum placed;
  placed.spacing = spacing;
  placed.ordinates = {ToIndex(lower), std::move(values)};
  return placed;
}

}  // namespace

PlacedSpectrum PlaceOnGrid(SampledCurve curve) {
  if (curve.values.empty()) Refuse("a spectrum without points");
  if (curve.firstX > curve.lastX) {
    std::swap(curve.firstX, curve.lastX);
    std::reverse(curve.values.begin(), curve.values.end());
  }
  const double stated = std::abs(curve.deltaX.value_or(0));
  if (curve.values.size() == 1 && curve.deltaX) curve.lastX = curve.firstX;
  if (const auto lower = ExactLower(stated, curve)) {
    return OnGrid(*lower, stated, std::move(curve.values));
  }
  const auto steps = static_cast<double>(curve.values.size() - 1);
  const double step = steps > 0 ? (curve.lastX - curve.firstX) / steps : stated;
  if (!(step > 0) || !std::isfinite(step)) Refuse("the points have no spacing");
  const double lower = std::nearbyint(curve.firstX / step);
  const double upper = lower + steps;
  const auto fits = [&](double spacing) {
    const double tolerance = kRoundingOfX * spacing;
    return std::abs(lower * spacing - curve.firstX) <= tolerance &&
           std::abs(upper * spacing - curve.lastX) <= tolerance;
  };
  // The end further from 0 tells the spacing best.
  const double best = upper > -lower ? curve.lastX / upper : (lower < 0 ? curve.firstX / lower : step);
  if (!fits(best)) {
    if (steps == 0) Refuse("a single point off the whole multiples of its spacing");
    return Interpolate(curve, step);
  }
  return OnGrid(lower, ShortestDecimal(best, fits), std::move(curve.values));
}

}  // namespace veritane::simulator
