// The Euclidean and the Fourier comparison: the match quality of a sample with its Standard, in percent.
#include "identification/correlation.h"

#include "identification/baseline.h"
#include "identification/normalisation.h"
#include "identification/point_numbers.h"
#include "identification/point_sums.h"
#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

// Where the Fourier comparison reads, counted from a transform's lower bound, and what it works on.
constexpr std::size_t kFirstCoefficient = 55;
constexpr std::size_t kCoefficients = 101;
constexpr std::size_t kSpanElements = kCoefficients + 1;

// d = sqrt(|1 - r|), always finite.
double CorrelationDistance(std::span<const double> standard, std::span<const double> sample) {
  const auto [sum_xx, sum_ss, sum_sx] = SumsOverPoints<3>(sample.size(), [&](auto position) {
    const auto x = position.Of(sample);
    const auto s = position.Of(standard);
    return std::array{x * x, s * s, s * x};
  });
  if (!std::isfinite(sum_xx) || !std::isfinite(sum_ss) || !std::isfinite(sum_sx)) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kOrdinateOutOfRange));
  }
  if (sum_xx == 0) throw RunTimeError(ErrorNumber::kDivisionByZero, Text(TextId::kSampleIsZero));
  if (sum_ss == 0) throw RunTimeError(ErrorNumber::kDivisionByZero, Text(TextId::kStandardIsZero));
  return std::sqrt(std::abs(1 - sum_sx / (std::sqrt(sum_ss) * std::sqrt(sum_xx))));
}

state::Ordinates NormalisedSpan(const state::Ordinates& transform) {
  RequireSixteenBitPointNumbers(transform);
  if (transform.Size() < kFirstCoefficient + kCoefficients) {
    throw RunTimeError(ErrorNumber::kSubscript, Text(TextId::kShortTransform));
  }
  state::Ordinates span;
  span.values.assign(kSpanElements, 0.0);
  std::copy_n(transform.values.begin() + kFirstCoefficient, kCoefficients, span.values.begin() + 1);
  NormaliseToUnitRange(span);
  return span;
}

}  // namespace

void PrepareForEuclidean(state::SpectrumBuffer& spectrum, std::span<const NullRegion> regions) {
  SubtractBaseline(spectrum.Data, spectrum.NumPts);
  NormaliseToUnitRange(spectrum.Data);
  ApplyNullRegions(spectrum.Data, spectrum.Res, regions);
}

double EuclideanComparison(const state::Ordinates& standard, const state::Ordinates& sample) {
  RequireSixteenBitPointNumbers(standard);
  RequireSixteenBitPointNumbers(sample);
  if (sample.lower < standard.lower || sample.Upper() > standard.Upper()) {
    throw RunTimeError(ErrorNumber::kSubscript, Text(TextId::kStandardLacksPoints));
  }
  const std::span<const double> same_points =
      std::span(standard.values)
          .subspan(static_cast<std::size_t>(sample.lower - standard.lower), sample.Size());
  const double quality = 100 * (1 - CorrelationDistance(same_points, sample.values));
  return platform::RoundToTwoDecimals(std::clamp(quality, 0.0, 100.0));
}

double FourierComparison(state::Ordinates& standard, state::Ordinates& sample) {
  state::Ordinates standard_span = NormalisedSpan(standard);
  state::Ordinates sample_span = NormalisedSpan(sample);
  standard = std::move(standard_span);
  sample = std::move(sample_span);
  return platform::RoundToTwoDecimals(100 * (1 - CorrelationDistance(standard.values, sample.values)));
}

}  // namespace veritane::identification
