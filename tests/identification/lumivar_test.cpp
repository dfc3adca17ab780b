// Lumivar's numbers against its definition, what must hold for every pair of spectra, and what it refuses.
#include "identification/lumivar.h"

#include "tests/identification/lumivar_reference.h"
#include "tests/identification/reference.h"
#include "tests/support/errors.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace veritane::identification {
namespace {

using reference::MaterialsByFirstWavenumber;
using reference::MeasuredSpectrum;
using reference::Resampled;
using state::SpectrumBuffer;
using tests::ErrorOf;

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

LumivarComparison Compare(const SpectrumBuffer& standard, const SpectrumBuffer& sample) {
  return CompareByLumivar(standard.Data, sample.Data, standard.Res);
}

// Points of the value 1 from `first` to `last` (cm⁻¹).
SpectrumBuffer Flat(double first, double last, double spacing, double value = 1) {
  SpectrumBuffer spectrum{.Data = {}, .Res = spacing};
  spectrum.Data.lower = static_cast<std::int32_t>(std::lround(first / spacing));
  spectrum.Data.values.assign(static_cast<std::size_t>(std::lround((last - first) / spacing)) + 1, value);
  return spectrum;
}

std::vector<LumivarBand> BandsOf(const std::vector<double>& measures) {
  std::vector<LumivarBand> bands;
  for (const double measure : measures) bands.push_back({.measure = measure});
  return bands;
}

SpectrumBuffer Times(SpectrumBuffer spectrum, double factor) {
  for (double& value : spectrum.Data.values) value *= factor;
  return spectrum;
}

TEST(Lumivar, AgreesWithItsDefinitionOnMeasuredSpectraOfEverySpacing) {
  // 5 is the grid that they were measured on; the others do not divide 100, 8 and 40 round half to even.
  for (const double spacing : {5.0, 1.928474, 0.96424, 3.857, 7.7, 8.0, 33.0, 40.0}) {
    for (const std::vector<std::string>& materials : MaterialsByFirstWavenumber()) {
      const SpectrumBuffer standard = Resampled(MeasuredSpectrum(materials.front()), spacing);
      for (const std::string& material : materials) {
        const SpectrumBuffer sample = Resampled(MeasuredSpectrum(material), spacing);
        const LumivarComparison got = Compare(standard, sample);
        const reference::LumivarOutcome expected = reference::Lumivar(standard, sample);
        ASSERT_EQ(got.bands.size(), expected.bands.size()) << material << " at " << spacing;
        for (std::size_t k = 0; k < got.bands.size(); ++k) {
          EXPECT_EQ(got.bands[k].low, expected.bands[k].low);
          EXPECT_EQ(got.bands[k].high, expected.bands[k].low + 100);
          EXPECT_NEAR(got.bands[k].measure, static_cast<double>(expected.bands[k].measure),
                      1e-12 * (1 + got.bands[k].measure))
              << material << " at " << spacing << ", band " << k;
        }
        EXPECT_NEAR(got.quality, static_cast<double>(expected.quality), 0.00501) << material;
        EXPECT_EQ(Compare(sample, sample).quality, 100) << material << " at " << spacing;
      }
    }
  }
}

TEST(Lumivar, BandsBeginAboveTheFirstWavenumberAndEndAHundredBelowTheLastWholeHundred) {
  const auto ends = [](const SpectrumBuffer& spectrum) {
    const auto bands = Compare(spectrum, spectrum).bands;
    return std::pair(bands.front().low, bands.back().high);
  };
  EXPECT_EQ(ends(Flat(400, 4000, 1)), std::pair(500.0, 4000.0)) << "a whole hundred is not above itself";
  EXPECT_EQ(ends(Flat(399, 3999, 1)), std::pair(400.0, 3900.0));
  EXPECT_EQ(ends(Flat(-150, 120, 10)), std::pair(-100.0, 100.0));
  EXPECT_EQ(ends(MeasuredSpectrum("polystyrene")), std::pair(500.0, 3900.0));
  EXPECT_EQ(ends(Flat(450, 600, 5)), std::pair(500.0, 600.0)) << "a single band";
}

TEST(Lumivar, ABandHasBothItsEndsAndNothingBeyond) {
  const SpectrumBuffer standard = Flat(450, 750, 5);
  const auto touched = [&](double wavenumber) {
    SpectrumBuffer sample = standard;
    sample.Data.values[static_cast<std::size_t>((wavenumber - 450) / 5)] += 0.5;
    std::string bands;
    for (const LumivarBand& band : Compare(standard, sample).bands) bands += band.measure > 0 ? 'x' : '-';
    return bands;
  };
  EXPECT_EQ(touched(495), "--");
  EXPECT_EQ(touched(500), "x-");
  EXPECT_EQ(touched(600), "xx") << "the end of one is the beginning of the next";
  EXPECT_EQ(touched(700), "-x");
  EXPECT_EQ(touched(705), "--");
}

TEST(Lumivar, TheMeasureIsTheLargestDifferenceOverTheLargerSum) {
  EXPECT_DOUBLE_EQ(LumivarMeasure(std::vector{1.0, 2.0, 3.0}, std::vector{1.0, 2.5, 2.75}), 0.5 / 6.25);
  EXPECT_DOUBLE_EQ(LumivarMeasure(std::vector{1.0, 2.0, 3.0}, std::vector{1.0, 1.0, 3.5}), 1.0 / 6);
  EXPECT_DOUBLE_EQ(LumivarMeasure(std::vector{-1.0, -2.0}, std::vector{-1.0, -3.0}), 1.0 / 3)
      << "no sign, also where the sums have one";
  // Every place counts, in the vectorised part as in what is left over.
  for (std::size_t points = 1; points <= 13; ++points) {
    for (std::size_t place = 0; place < points; ++place) {
      const std::vector<double> standard(points, 1.0);
      std::vector<double> sample = standard;
      sample[place] = -1;
      EXPECT_DOUBLE_EQ(LumivarMeasure(standard, sample), 2 / static_cast<double>(points));
      EXPECT_DOUBLE_EQ(LumivarMeasure(sample, standard), 2 / static_cast<double>(points));
    }
  }
}

TEST(Lumivar, ASumOfZeroIsGuardedForTheSampleAndDividesForTheStandard) {
  EXPECT_EQ(LumivarMeasure(std::vector{0.0, 0.0}, std::vector{0.0, 0.0}), 0);
  EXPECT_DOUBLE_EQ(LumivarMeasure(std::vector{-0.5, -0.5}, std::vector{1.0, -1.0}), 1.5e50);
  EXPECT_EQ(ErrorOf([] { LumivarMeasure(std::vector{1.0, -1.0}, std::vector{-0.5, -0.5}); }), 11);
}

TEST(Lumivar, LaterBandsWeighMoreInTheQuality) {
  const auto quality = [](const std::vector<double>& measures) { return LumivarQuality(BandsOf(measures)); };
  EXPECT_EQ(quality({0, 0, 0}), 100);
  EXPECT_EQ(quality({0.0005}), 50);
  EXPECT_EQ(quality({0.001, 0}), 50);
  EXPECT_EQ(quality({0, 0.001}), 50);
  EXPECT_EQ(quality({0.001, 0, 0}), 83.33);
  EXPECT_EQ(quality({0, 0, 0.001}), 66.67);
  EXPECT_EQ(quality({0.001}), 0);
  EXPECT_EQ(quality({0.0035}), -250) << "not cut off at 0";
  EXPECT_EQ(ErrorOf([&] { quality({1e308}); }), 6);
}

TEST(Lumivar, NeitherOrderNorAPowerOfTwoChangesABit) {
  const SpectrumBuffer standard = Resampled(MeasuredSpectrum("polystyrene"), 1.928474);
  const SpectrumBuffer sample = Resampled(MeasuredSpectrum("pmma"), 1.928474);
  const LumivarComparison got = Compare(standard, sample);
  const auto expect_same = [&](const LumivarComparison& other) {
    EXPECT_EQ(other.quality, got.quality);
    for (std::size_t k = 0; k < got.bands.size(); ++k)
      EXPECT_EQ(other.bands[k].measure, got.bands[k].measure);
  };
  expect_same(Compare(sample, standard));
  for (const double factor : {0x1p-20, 0.5, 2.0, 0x1p30}) {
    expect_same(Compare(Times(standard, factor), Times(sample, factor)));
  }
  EXPECT_NEAR(Compare(Times(standard, 0.3), Times(sample, 0.3)).quality, got.quality, 0.011);
  EXPECT_NE(Compare(standard, Times(sample, 2)).quality, got.quality) << "a factor of one of them counts";
}

TEST(Lumivar, NothingToCompareIsAnErrorAndNotAHundredPercent) {
  const auto error = [](const SpectrumBuffer& spectrum) {
    return ErrorOf([&] { Compare(spectrum, spectrum); });
  };
  EXPECT_EQ(error(Flat(400, 400, 1)), 9) << "one point";
  EXPECT_EQ(error(Flat(400, 599, 1)), 9);
  EXPECT_EQ(error(Flat(410, 590, 1)), 9);
  EXPECT_EQ(error(Flat(400, 600, 1)), 0);
  EXPECT_EQ(error(SpectrumBuffer{.Data = {}, .Res = 1}), 9) << "no point";
  EXPECT_EQ(error(Flat(0, 6000, 60)), 0) << "two points and the one at the low end";
  EXPECT_EQ(error(Flat(0, 6000, 75)), 11) << "one point and that";
  EXPECT_EQ(error(Flat(0, 60'000, 400)), 11);
  for (const double spacing : {0.0, -1.0, kNoNumber}) {
    SpectrumBuffer spectrum = Flat(400, 4000, 1);
    spectrum.Res = spacing;
    EXPECT_EQ(error(spectrum), spacing == 0 ? 11 : 5) << spacing;
  }
  SpectrumBuffer dense = Flat(400, 4000, 1);
  dense.Res = 0.003;
  EXPECT_EQ(error(dense), 6) << "more points a band than 16 bits count";
}

TEST(Lumivar, NeverReadsBeyondASpectrum) {
  const SpectrumBuffer standard = Flat(400, 4000, 1);
  EXPECT_EQ(ErrorOf([&] { Compare(standard, Flat(400, 4000, 1)); }), 0);
  EXPECT_EQ(ErrorOf([&] { Compare(standard, Flat(400, 3999, 1)); }), 9);
  EXPECT_EQ(ErrorOf([&] { Compare(standard, Flat(501, 4000, 1)); }), 9);
  EXPECT_EQ(ErrorOf([&] { Compare(standard, Flat(8000, 12'000, 1)); }), 9);
  EXPECT_EQ(ErrorOf([&] { Compare(standard, SpectrumBuffer{}); }), 9);
  EXPECT_EQ(ErrorOf([&] { Compare(Flat(0, 40'000, 1), Flat(0, 40'000, 1)); }), 6);

  // Whatever the grid, the definition is met to the letter, or the band that lacks a point is told of.
  for (int i = 0; i < 3000; ++i) {
    const double spacing = 0.31 + 0.0173 * i;
    const std::int32_t lower = static_cast<std::int32_t>((350 + i % 120) / spacing);
    SpectrumBuffer spectrum{.Data = {.lower = lower, .values = {}}, .Res = spacing};
    spectrum.Data.values.assign(static_cast<std::size_t>((900 + i % 77) / spacing), 1.0);
    bool is_inside = true;
    try {
      reference::Lumivar(spectrum, spectrum);
    } catch (const std::out_of_range&) {
      is_inside = false;
    }
    EXPECT_EQ(ErrorOf([&] { Compare(spectrum, spectrum); }), is_inside ? 0 : 9)
        << spacing << " from " << lower;
  }
}

TEST(Lumivar, AnOrdinateThatIsNoFiniteNumberIsRefusedWhereverItLiesInABand) {
  const SpectrumBuffer spectrum = Flat(400, 900, 5);
  for (const double bad : {kNoNumber, kInfinite, -kInfinite}) {
    for (std::size_t place = 20; place <= 100; ++place) {
      SpectrumBuffer spoilt = spectrum;
      spoilt.Data.values[place] = bad;
      EXPECT_EQ(ErrorOf([&] { Compare(spectrum, spoilt); }), 6) << bad << " at " << place;
      EXPECT_EQ(ErrorOf([&] { Compare(spoilt, spectrum); }), 6) << bad << " at " << place;
      EXPECT_EQ(ErrorOf([&] { Compare(spoilt, spoilt); }), 6) << bad << " at " << place;
    }
  }
  const std::vector<double> largest(3, std::numeric_limits<double>::max());
  EXPECT_EQ(ErrorOf([&] { LumivarMeasure(largest, largest); }), 6) << "a sum beyond all numbers";
  const std::vector<double> up{1.7e308, -1.7e308};
  const std::vector<double> down{-1.7e308, 1.7e308};
  EXPECT_EQ(ErrorOf([&] { LumivarMeasure(up, down); }), 6) << "a difference beyond all numbers";
}

TEST(Lumivar, TheReportHasALineABand) {
  const std::vector<LumivarBand> bands{
      {500, 600, 0}, {600, 700, 0.0123}, {700, 800, 0.00000049}, {800, 900, 1.5}};
  EXPECT_EQ(LumivarReport(bands),
            "500 - 600     .\r\n600 - 700     .0123\r\n700 - 800     .\r\n800 - 900     1.5\r\n");
}

}  // namespace
}  // namespace veritane::identification
