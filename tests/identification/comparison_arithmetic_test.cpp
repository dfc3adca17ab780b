// The steps of a comparison: small cases worked out by hand, measured spectra against a second computation,
// and null regions.
#include "identification/baseline.h"
#include "identification/correlation.h"
#include "identification/normalisation.h"
#include "identification/null_regions_applied.h"
#include "tests/identification/reference.h"
#include "tests/support/errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace veritane::identification {
namespace {

using reference::MeasuredSpectrum;
using reference::TwoBands;
using state::NullRegion;
using state::Ordinates;
using state::SpectrumBuffer;
using ::testing::ElementsAre;
using tests::ErrorOf;

double Compare(SpectrumBuffer standard, SpectrumBuffer sample, const std::vector<NullRegion>& regions = {}) {
  PrepareForEuclidean(standard, regions);
  PrepareForEuclidean(sample, regions);
  return EuclideanComparison(standard.Data, sample.Data);
}

TEST(Normalisation, TakesTheSmallestTo0AndTheLargestTo1) {
  Ordinates spectrum{-3, {2, -2, 6, 0, 4}};
  NormaliseToUnitRange(spectrum);
  EXPECT_THAT(spectrum.values, ElementsAre(0.5, 0, 1, 0.25, 0.75));
  EXPECT_EQ(spectrum.lower, -3);
  // A factor instead of the division would leave the largest below 1 here.
  Ordinates forty_nine{0, {0, 49, 7}};
  NormaliseToUnitRange(forty_nine);
  EXPECT_EQ(forty_nine.values[1], 1);
}

TEST(Normalisation, TakesAFlatSpectrumTo0AndRefusesNaNInIt) {
  Ordinates flat{7, {0.1, 0.1, 0.1, 0.1, 0.1}};
  NormaliseToUnitRange(flat);
  EXPECT_THAT(flat.values, ElementsAre(0, 0, 0, 0, 0));
  for (std::size_t place = 0; place < 5; ++place) {
    Ordinates spoilt{7, {5, 5, 5, 5, 5}};
    spoilt.values[place] = std::nan("");
    EXPECT_EQ(ErrorOf([&] { NormaliseToUnitRange(spoilt); }), 6) << place;
  }
  Ordinates too_wide{0, {-1e308, 1e308}};
  EXPECT_EQ(ErrorOf([&] { NormaliseToUnitRange(too_wide); }), 6);
}

TEST(Baseline, IsTheLeastSquaresLineOverPointNumbers) {
  // Σx = 36, Σy = 20, Σx² = 434, Σxy = 243 and n = 3: the denominator is 6, the slope 1.5, the intercept
  // -34/3.
  const Ordinates spectrum{11, {5, 7, 8}};
  const BaselineFit fit = FitBaseline(spectrum, 3);
  EXPECT_DOUBLE_EQ(fit.slope, 1.5);
  EXPECT_NEAR(fit.At(0), -34.0 / 3, 1e-14);
}

TEST(Baseline, IsFittedToTheFirstPointsAndTakenFromAll) {
  Ordinates spectrum{10, {1, 2, 3, 4, 9, 0}};
  SubtractBaseline(spectrum, 4);
  EXPECT_THAT(spectrum.values, ElementsAre(0, 0, 0, 0, 4, -6));
}

TEST(Baseline, RoundsItsPointCountHalfToEven) {
  const Ordinates spectrum{0, {1, 2, 4, 100}};
  EXPECT_EQ(FitBaseline(spectrum, 2.5).slope, FitBaseline(spectrum, 2).slope);
  EXPECT_EQ(FitBaseline(spectrum, 2.51).slope, FitBaseline(spectrum, 3).slope);
}

TEST(Baseline, NamesWhatItCannotFit) {
  const Ordinates spectrum{0, {1, 2, 4}};
  EXPECT_EQ(ErrorOf([&] { FitBaseline(spectrum, 4); }), 9);
  EXPECT_EQ(ErrorOf([&] { FitBaseline(spectrum, 1); }), 11);
  EXPECT_EQ(ErrorOf([&] { FitBaseline(spectrum, 0); }), 11);
  EXPECT_EQ(ErrorOf([&] { FitBaseline(spectrum, -3); }), 11);
  EXPECT_EQ(ErrorOf([&] { FitBaseline(spectrum, 40'000); }), 6);
  EXPECT_EQ(ErrorOf([&] { FitBaseline(spectrum, std::nan("")); }), 6);
  Ordinates spoilt_behind{0, {1, 2, 4, std::nan("")}};
  EXPECT_EQ(ErrorOf([&] { SubtractBaseline(spoilt_behind, 3); }), 6);
}

TEST(Baseline, AgreesWithLongDoubleFarFromTheOrigin) {
  for (const std::int32_t lower : {-3000, 0, 400, 28'000}) {
    SpectrumBuffer spectrum = TwoBands(lower, 3603);
    const std::vector<long double> expected = reference::WithoutBaseline(spectrum.Data, 3601);
    SubtractBaseline(spectrum.Data, 3601);
    for (std::size_t i = 0; i < expected.size(); ++i) {
      ASSERT_NEAR(spectrum.Data.values[i], static_cast<double>(expected[i]), 1e-12) << lower << " " << i;
    }
  }
}

TEST(Baseline, LeavesExactly0OfAStraightLine) {
  Ordinates line{800, {}};
  for (int i = 0; i < 3601; ++i) line.values.push_back(0.7 - 0.0003 * i);
  SubtractBaseline(line, 3601);
  EXPECT_THAT(line.values, ::testing::Each(0.0));
}

TEST(EuclideanComparison, GivesTheValuesWorkedOutByHand) {
  // r = 4/5, d = sqrt(0.2) = 0.44721; and r = 0.6, d = sqrt(0.4) = 0.63246.
  EXPECT_EQ(EuclideanComparison({0, {1, 0, 0}}, {0, {4, 3, 0}}), 55.28);
  EXPECT_EQ(EuclideanComparison({-1, {3, 4}}, {-1, {5, 0}}), 36.75);
  // At right angles d is 1; in opposite directions d is sqrt(2), and the quality below 0 becomes 0.
  EXPECT_EQ(EuclideanComparison({0, {1, 0}}, {0, {0, 1}}), 0);
  EXPECT_EQ(EuclideanComparison({0, {1, 2}}, {0, {-1, -2}}), 0);
}

TEST(EuclideanComparison, RoundsToTwoDecimalsAndDoesNotCutOff) {
  // r = 1 / sqrt(1 + t²), so 1 - r is about t² / 2: t = 5e-5 makes the quality 99.99646…, t = 1e-4 99.9929….
  EXPECT_EQ(EuclideanComparison({0, {1, 0}}, {0, {1, 5e-5}}), 100);
  EXPECT_EQ(EuclideanComparison({0, {1, 0}}, {0, {1, 1e-4}}), 99.99);
}

TEST(EuclideanComparison, ReadsTheStandardAtTheSamplesPointNumbers) {
  EXPECT_EQ(EuclideanComparison({5, {9, 9, 4, 3, 9}}, {7, {4, 3}}), 100);
  EXPECT_EQ(ErrorOf([] { EuclideanComparison({5, {9, 9, 4}}, {7, {4, 3}}); }), 9);
  EXPECT_EQ(ErrorOf([] { EuclideanComparison({5, {9, 9, 4}}, {4, {4, 3}}); }), 9);
}

TEST(EuclideanComparison, RefusesSumsThatOverflowOrNumbersThatAreNone) {
  EXPECT_EQ(ErrorOf([] { EuclideanComparison({0, {1e200, 1}}, {0, {1e200, 1}}); }), 6);
  EXPECT_EQ(ErrorOf([] { EuclideanComparison({0, {1, 1}}, {0, {std::nan(""), 1}}); }), 6);
}

TEST(FourierComparison, TakesElements55To155AndA0BeforeThem) {
  // 0 before 50 ones and 51 twos: normalised 0, 0.5…, 1…. Only elements outside the span differ in the
  // Standard.
  Ordinates sample{1, std::vector<double>(200, 1)};
  for (std::size_t i = 105; i < 200; ++i) sample.values[i] = 2;
  Ordinates standard = sample;
  standard.values[54] = 1000;
  standard.values[156] = -1000;
  standard.lower = -20;
  EXPECT_EQ(FourierComparison(standard, sample), 100);
  for (const Ordinates& span : {standard, sample}) {
    EXPECT_EQ(span.lower, 0);
    ASSERT_EQ(span.Size(), 102U);
    EXPECT_EQ(span.values[0], 0);
    EXPECT_EQ(span.values[1], 0.5);
    EXPECT_EQ(span.values[50], 0.5);
    EXPECT_EQ(span.values[51], 1);
    EXPECT_EQ(span.values[101], 1);
  }
}

TEST(FourierComparison, LetsTheFirst0CountTowardsTheExtremes) {
  // Below 0 throughout: the 0 is the largest element, becomes 1 and takes part in the sums.
  Ordinates negative{0, std::vector<double>(156, -1)};
  Ordinates positive{0, std::vector<double>(156, 1)};
  // Normalised they are (1, 0, …, 0) and (0, 1, …, 1), at right angles.
  EXPECT_EQ(FourierComparison(negative, positive), 0);
  EXPECT_EQ(negative.values.front(), 1);
  EXPECT_EQ(positive.values.front(), 0);
}

TEST(FourierComparison, LeavesBothTransformsAloneWhenOneIsTooShort) {
  Ordinates enough = TwoBands(0, 156).Data;
  Ordinates short_by_one = TwoBands(0, 155).Data;
  const std::vector<double> before = enough.values;
  EXPECT_EQ(ErrorOf([&] { FourierComparison(enough, short_by_one); }), 9);
  EXPECT_EQ(ErrorOf([&] { FourierComparison(short_by_one, enough); }), 9);
  EXPECT_EQ(enough.values, before);
}

TEST(MeasuredSpectra, CompareAsTheirDefinitionInLongDouble) {
  for (const auto& group : reference::MaterialsByFirstWavenumber()) {
    for (const std::string& standard_name : group) {
      const SpectrumBuffer standard = MeasuredSpectrum(standard_name);
      for (const std::string& sample_name : group) {
        SCOPED_TRACE(standard_name + " and " + sample_name);
        const SpectrumBuffer sample = MeasuredSpectrum(sample_name);
        const double quality = Compare(standard, sample);
        EXPECT_NEAR(quality, reference::EuclideanQuality(standard, sample, {}), 0.005 + 1e-6);
        if (standard_name == sample_name) {
          EXPECT_EQ(quality, 100);
        } else {
          EXPECT_LT(quality, 80);
        }
        Ordinates standard_as_transform = standard.Data;
        Ordinates sample_as_transform = sample.Data;
        EXPECT_NEAR(FourierComparison(standard_as_transform, sample_as_transform),
                    reference::FourierQuality(standard.Data, sample.Data), 0.005 + 1e-6);
      }
    }
  }
}

TEST(NullRegions, MakeASamplePassThatFailsByTheExcludedBandAlone) {
  const SpectrumBuffer standard = MeasuredSpectrum("polystyrene");
  SpectrumBuffer sample = standard;
  // Carbon dioxide at 2350 cm⁻¹, as an unpurged instrument sees it.
  for (std::size_t i = 0; i < sample.Data.Size(); ++i) {
    const double wavenumber = (sample.Data.lower + static_cast<double>(i)) * sample.Res;
    if (wavenumber >= 2300 && wavenumber <= 2400) sample.Data.values[i] += 0.4;
  }
  const std::vector<NullRegion> carbon_dioxide{{.start = 2400, .end = 2300}};
  EXPECT_LT(Compare(standard, sample), 85);
  EXPECT_GT(Compare(standard, sample, carbon_dioxide), 90);
  EXPECT_NEAR(Compare(standard, sample, carbon_dioxide),
              reference::EuclideanQuality(standard, sample, carbon_dioxide), 0.005 + 1e-6);
}

TEST(NullRegions, IncludeBothEndsInEitherOrder) {
  for (const NullRegion region : {NullRegion{120, 110}, NullRegion{110, 120}}) {
    Ordinates spectrum{20, {1, 2, 3, 4, 5, 6}};  // 100, 105, … 125 cm⁻¹
    ApplyNullRegions(spectrum, 5, std::vector{region});
    EXPECT_THAT(spectrum.values, ElementsAre(1, 2, 0, 0, 0, 6));
  }
}

TEST(NullRegions, ReachNoFurtherThanTheirEnds) {
  struct Case {
    NullRegion region;
    std::vector<double> left;
  };
  const std::vector<Case> cases{{{124.9, 120.1}, {1, 2, 3, 4, 5, 6}}, {{99, 0}, {1, 2, 3, 4, 5, 6}},
                                {{9000, 126}, {1, 2, 3, 4, 5, 6}},    {{100, 100}, {0, 2, 3, 4, 5, 6}},
                                {{9000, 125}, {1, 2, 3, 4, 5, 0}},    {{4000, 0}, {0, 0, 0, 0, 0, 0}}};
  for (const Case& c : cases) {
    Ordinates spectrum{20, {1, 2, 3, 4, 5, 6}};
    ApplyNullRegions(spectrum, 5, std::vector{c.region});
    EXPECT_EQ(spectrum.values, c.left) << c.region.start << " - " << c.region.end;
  }
}

TEST(NullRegions, ThatLeaveNothingOfASpectrumEndTheComparison) {
  const SpectrumBuffer spectrum = TwoBands(400, 3601);
  EXPECT_EQ(ErrorOf([&] { Compare(spectrum, spectrum, {{4000, 0}}); }), 11);
}

TEST(NullRegions, AskForASpacingAndForBoundsThatAreNumbers) {
  Ordinates spectrum{0, {1, 2}};
  const std::vector<NullRegion> regions{{2, 1}};
  EXPECT_EQ(ErrorOf([&] { ApplyNullRegions(spectrum, 0, regions); }), 5);
  EXPECT_EQ(ErrorOf([&] { ApplyNullRegions(spectrum, -1, regions); }), 5);
  EXPECT_EQ(ErrorOf([&] { ApplyNullRegions(spectrum, std::nan(""), regions); }), 5);
  EXPECT_EQ(ErrorOf([&] { ApplyNullRegions(spectrum, 0, {}); }), 0);
  EXPECT_EQ(ErrorOf([&] { ApplyNullRegions(spectrum, 1, std::vector<NullRegion>{{std::nan(""), 1}}); }), 6);
  EXPECT_THAT(spectrum.values, ElementsAre(1, 2));
}

}  // namespace
}  // namespace veritane::identification
