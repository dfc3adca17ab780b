// Lumivar by its definition.
#include "tests/identification/lumivar_reference.h"

#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace veritane::identification::reference {

namespace {

long double OrdinateAt(const state::Ordinates& ordinates, long long point) {
  const long long place = point - ordinates.lower;
  if (place < 0) throw std::out_of_range("a point below the spectrum");
  return ordinates.values.at(static_cast<std::size_t>(place));
}

// Where the definition rounds a half, it goes to the even neighbour; std::lrint does so by default.
long long PointsOfABand(double spacing) {
  return std::lrint(100 / spacing);
}

}  // namespace

LumivarOutcome Lumivar(const state::SpectrumBuffer& standard, const state::SpectrumBuffer& sample) {
  const double spacing = standard.Res;
  const int start = (static_cast<int>(std::floor(standard.Data.lower * spacing / 100)) + 1) * 100;
  const int end = (static_cast<int>(std::floor(standard.Data.Upper() * spacing / 100)) - 1) * 100;
  LumivarOutcome outcome;
  long double fold = 0;
  for (int low = start; low <= end; low += 100) {
    long double standard_sum = 0, sample_sum = 0, signed_difference = 0;
    const auto first = static_cast<long long>(std::floor(low / spacing));
    for (long long point = first; point <= first + PointsOfABand(spacing); ++point) {
      const long double s = OrdinateAt(standard.Data, point);
      const long double x = OrdinateAt(sample.Data, point);
      standard_sum += s;
      sample_sum += x;
      if (std::fabs(s - x) > std::fabs(signed_difference)) signed_difference = s - x;
    }
    const long double guarded = sample_sum == 0 ? 1e-50L : sample_sum;
    const long double ratio =
        standard_sum <= sample_sum ? signed_difference / guarded : signed_difference / standard_sum;
    outcome.bands.push_back({low, std::fabs(ratio)});
    fold = (fold + std::fabs(ratio)) / static_cast<long double>(outcome.bands.size());
  }
  outcome.quality = (0.001L - fold) / 0.001L * 100;
  return outcome;
}

state::SpectrumBuffer Resampled(const state::SpectrumBuffer& spectrum, double spacing) {
  state::SpectrumBuffer other{.Data = {}, .Res = spacing};
  const double low = spectrum.Data.lower * spectrum.Res;
  const double high = spectrum.Data.Upper() * spectrum.Res;
  other.Data.lower = static_cast<std::int32_t>(std::ceil(low / spacing));
  for (std::int32_t point = other.Data.lower; point * spacing <= high; ++point) {
    const double place = (point * spacing - low) / spectrum.Res;
    const auto before = std::min(static_cast<std::size_t>(place), spectrum.Data.Size() - 2);
    const double share = place - static_cast<double>(before);
    other.Data.values.push_back((1 - share) * spectrum.Data.values[before] +
                                share * spectrum.Data.values[before + 1]);
  }
  other.NumPts = static_cast<double>(other.Data.Size());
  return other;
}

}  // namespace veritane::identification::reference
