// The bands, their measures and what is shown of them.
#include "identification/lumivar.h"

#include "identification/point_numbers.h"
#include "identification/point_sums.h"
#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

constexpr double kBandWidth = 100;  // cm⁻¹
// Stands for a sum of 0 that would have to divide.
constexpr double kLeastSum = 1e-50;
constexpr const char* kScorePattern = "#.######";

// The largest of many sizes, of single points and of pairs.
class Largest {
public:
  void Add(Pair sizes) { of_pairs_ = Larger(sizes, of_pairs_); }
  void Add(double size) { of_points_ = Larger(size, of_points_); }
  double Value() const { return Larger(Larger(of_pairs_[0], of_pairs_[1]), of_points_); }

private:
  Pair of_pairs_{0, 0};
  double of_points_ = 0;
};

// The bands that a spectrum holds.
struct BandGrid {
  double first = 0;        // low end of the first band
  std::size_t count = 0;   // of bands
  std::size_t points = 0;  // of a band
};

BandGrid LayOutBands(const state::Ordinates& standard, double spacing) {
  if (spacing == 0) throw RunTimeError(ErrorNumber::kDivisionByZero, Text(TextId::kSpacingIsZero));
  if (!(spacing > 0)) throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kNoSpacing));
  const std::int16_t steps = platform::ToInt16(kBandWidth / spacing);
  // No line can be fitted to a single point, so no band is prepared from it.
  if (steps < 2) throw RunTimeError(ErrorNumber::kDivisionByZero, Text(TextId::kBandOfOnePoint));
  const double first = (std::floor(standard.lower * spacing / kBandWidth) + 1) * kBandWidth;
  const double last = (std::floor(standard.Upper() * spacing / kBandWidth) - 1) * kBandWidth;
  if (!(first <= last)) {
    throw RunTimeError(ErrorNumber::kSubscript, Text(TextId::kNoBand));
  }
  return {.first = first,
          .count = static_cast<std::size_t>((last - first) / kBandWidth) + 1,
          .points = static_cast<std::size_t>(steps) + 1};
}

// The band's points; `low` is its low end.
std::span<const double> PointsOfBand(const state::Ordinates& ordinates, double low, double spacing,
                                     std::size_t points) {
  const double before = std::floor(low / spacing) - ordinates.lower;
  if (before < 0 || before + static_cast<double>(points) > static_cast<double>(ordinates.Size())) {
    throw RunTimeError(ErrorNumber::kSubscript,
                       Text(TextId::kBandLacksPoints,
                            {platform::PlainNumberText(low), platform::PlainNumberText(low + kBandWidth)}));
  }
  return std::span(ordinates.values).subspan(static_cast<std::size_t>(before), points);
}

std::string ScoreText(double measure) {
  return platform::FormatPattern(measure, kScorePattern);
}

// How a band is marked, by the power of ten of its measure. A band of kLumivarLimit alone would bring the
// match quality down to 0, one of a tenth of it to 90.
platform::ChartRegion MarkedBand(const LumivarBand& band) {
  using platform::RegionShade;
  platform::ChartRegion region{.low = band.low, .high = band.high, .text = ScoreText(band.measure)};
  if (band.measure < kLumivarLimit / 10) {
    region.shade = RegionShade::kFaint;
    region.meaning = Text(TextId::kDepartsLeast);
  } else if (band.measure < kLumivarLimit) {
    region.shade = RegionShade::kLight;
    region.meaning = Text(TextId::kDepartsLittle);
  } else if (band.measure < kLumivarLimit * 10) {
    region.shade = RegionShade::kMedium;
    region.meaning = Text(TextId::kDepartsClearly);
  } else {
    region.shade = RegionShade::kStrong;
    region.meaning = Text(TextId::kDepartsMost);
  }
  return region;
}

}  // namespace

double LumivarMeasure(std::span<const double> standard, std::span<const double> sample) {
  Largest largest;
  const auto [standard_sum, sample_sum] = SumsOverPoints<2>(standard.size(), [&](auto position) {
    const auto s = position.Of(standard);
    const auto x = position.Of(sample);
    const auto difference = s - x;
    largest.Add(Larger(difference, -difference));
    return std::array{s, x};
  });
  // A sum is finite only where every ordinate is.
  if (!std::isfinite(standard_sum) || !std::isfinite(sample_sum)) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kOrdinateOutOfRange));
  }
  double divisor = std::max(standard_sum, sample_sum);
  if (divisor == 0) {
    if (standard_sum > sample_sum) {
      throw RunTimeError(ErrorNumber::kDivisionByZero, Text(TextId::kStandardAddsUpToZero));
    }
    divisor = kLeastSum;
  }
  const double measure = std::abs(largest.Value() / divisor);
  if (!std::isfinite(measure)) throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kBandMeasure));
  return measure;
}

double LumivarQuality(std::span<const LumivarBand> bands) {
  double fold = 0;
  double bands_so_far = 0;
  for (const LumivarBand& band : bands) fold = (fold + band.measure) / ++bands_so_far;
  const double quality = (kLumivarLimit - fold) / kLumivarLimit * 100;
  if (!std::isfinite(quality)) throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kLumivarQuality));
  return platform::RoundToTwoDecimals(quality);
}

LumivarComparison CompareByLumivar(const state::Ordinates& standard, const state::Ordinates& sample,
                                   double spacing) {
  RequireSixteenBitPointNumbers(standard);
  RequireSixteenBitPointNumbers(sample);
  const BandGrid grid = LayOutBands(standard, spacing);
  LumivarComparison comparison;
  comparison.bands.reserve(grid.count);
  for (std::size_t k = 0; k < grid.count; ++k) {
    const double low = grid.first + static_cast<double>(k) * kBandWidth;
    comparison.bands.push_back({.low = low,
                                .high = low + kBandWidth,
                                .measure = LumivarMeasure(PointsOfBand(standard, low, spacing, grid.points),
                                                          PointsOfBand(sample, low, spacing, grid.points))});
  }
  comparison.quality = LumivarQuality(comparison.bands);
  return comparison;
}

std::string LumivarReport(std::span<const LumivarBand> bands) {
  std::string report;
  for (const LumivarBand& band : bands) {
    report += platform::PlainNumberText(band.low) + " - " + platform::PlainNumberText(band.high) + "     " +
              ScoreText(band.measure) + "\r\n";
  }
  return report;
}

void Lumivar(acquisition::Bench& bench) {
  state::ProgramState& state = bench.state;
  const LumivarComparison comparison = CompareByLumivar(state.Ref.Data, state.Samp.Data, state.Ref.Res);
  state.LumivarBandHigh.clear();
  state.LumivarBandLow.clear();
  state.LumivarBandScore.clear();
  std::vector<platform::ChartRegion> regions;
  for (const LumivarBand& band : comparison.bands) {
    state.LumivarBandHigh.push_back(band.high);
    state.LumivarBandLow.push_back(band.low);
    state.LumivarBandScore.push_back(platform::LeadingNumber(ScoreText(band.measure)));
    regions.push_back(MarkedBand(band));
  }
  state.ctr = platform::ToInt16(static_cast<double>(comparison.bands.size()));
  state.comparison = comparison.quality;
  bench.panel.txtResults.SetText(LumivarReport(comparison.bands));
  bench.panel.chart.SetRegions(std::move(regions));
}

}  // namespace veritane::identification
