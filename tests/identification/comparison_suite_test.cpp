// What every comparison must do with every kind of spectrum that can reach it.
#include "identification/correlation.h"
#include "tests/identification/reference.h"
#include "tests/support/errors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <ostream>
#include <utility>

namespace veritane::identification {
namespace {

using reference::TwoBands;
using state::SpectrumBuffer;

// A comparison as a sample run uses it, of two spectra as measured (for "Fourier": of two transforms).
struct Comparison {
  const char* name;
  double (*compare)(SpectrumBuffer standard, SpectrumBuffer sample);
  double (*reference)(const SpectrumBuffer& standard, const SpectrumBuffer& sample);
  bool removesAnOffset;
  int constantError;         // what a constant spectrum is refused with; 0 when it is compared
  int shorterStandardError;  // the same for a Standard that ends before its sample
};

std::ostream& operator<<(std::ostream& out, const Comparison& comparison) {
  return out << comparison.name;
}

double Euclidean(SpectrumBuffer standard, SpectrumBuffer sample) {
  PrepareForEuclidean(standard, {});
  PrepareForEuclidean(sample, {});
  return EuclideanComparison(standard.Data, sample.Data);
}

double Fourier(SpectrumBuffer standard, SpectrumBuffer sample) {
  return FourierComparison(standard.Data, sample.Data);
}

// The number of the error that `compare` ends with, 0 when it returns a value.
int ErrorOf(const Comparison& comparison, const SpectrumBuffer& standard, const SpectrumBuffer& sample) {
  return tests::ErrorOf([&] { comparison.compare(standard, sample); });
}

SpectrumBuffer Constant(double value, std::size_t points = 800) {
  SpectrumBuffer spectrum = TwoBands(400, points);
  for (double& ordinate : spectrum.Data.values) ordinate = value;
  return spectrum;
}

class EveryComparison : public ::testing::TestWithParam<Comparison> {};

TEST_P(EveryComparison, GivesExactly100ForIdenticalSpectra) {
  for (const std::size_t points : {156U, 157U, 158U, 159U, 3601U, 32'767U}) {
    const SpectrumBuffer spectrum = TwoBands(points == 32'767 ? 0 : 400, points);
    EXPECT_EQ(GetParam().compare(spectrum, spectrum), 100) << points;
  }
  EXPECT_EQ(GetParam().compare(TwoBands(-32'768, 32'767), TwoBands(-32'768, 32'767)), 100);
}

TEST_P(EveryComparison, GivesExactly100ForAScaledSpectrum) {
  for (const double factor : {0.001, 0.3, 7.0, 1e6}) {
    SpectrumBuffer scaled = TwoBands(400, 3601);
    for (double& value : scaled.Data.values) value *= factor;
    EXPECT_EQ(GetParam().compare(TwoBands(400, 3601), scaled), 100) << factor;
    EXPECT_EQ(GetParam().compare(scaled, TwoBands(400, 3601)), 100) << factor;
  }
}

TEST_P(EveryComparison, SeesAnOffsetOnlyWhereNothingRemovesIt) {
  const SpectrumBuffer standard = TwoBands(400, 200);
  SpectrumBuffer offset = standard;
  for (double& value : offset.Data.values) value += 0.25;
  const double quality = GetParam().compare(standard, offset);
  EXPECT_NEAR(quality, GetParam().reference(standard, offset), 0.005001);
  if (GetParam().removesAnOffset) {
    EXPECT_EQ(quality, 100);
  } else {
    EXPECT_LT(quality, 90);
  }
}

TEST_P(EveryComparison, AgreesWithItsDefinitionInLongDouble) {
  for (const std::size_t points : {200U, 3601U}) {
    for (const double shift : {0.1, 0.5, 3.0, 20.0, 80.0}) {
      const SpectrumBuffer standard = TwoBands(400, points);
      const SpectrumBuffer sample = TwoBands(400, points, shift);
      EXPECT_NEAR(GetParam().compare(standard, sample), GetParam().reference(standard, sample), 0.005001)
          << points << " points shifted by " << shift;
    }
  }
}

TEST_P(EveryComparison, RefusesAConstantSpectrumWhereNothingIsLeftOfIt) {
  const SpectrumBuffer spectrum = TwoBands(400, 800);
  // 0.1 and 1/3 are no binary fractions: their baseline leaves rounding, which must not pass for a spectrum.
  for (const double level : {0.5, 0.1, 1.0 / 3, -273.15, 1e9}) {
    EXPECT_EQ(ErrorOf(GetParam(), Constant(level), Constant(level)), GetParam().constantError) << level;
    EXPECT_EQ(ErrorOf(GetParam(), spectrum, Constant(level)), GetParam().constantError) << level;
    EXPECT_EQ(ErrorOf(GetParam(), Constant(level), spectrum), GetParam().constantError) << level;
  }
  EXPECT_EQ(ErrorOf(GetParam(), Constant(0), spectrum), 11);
  EXPECT_EQ(ErrorOf(GetParam(), spectrum, Constant(0)), 11);
}

TEST_P(EveryComparison, RefusesASpectrumWithTooFewPoints) {
  const SpectrumBuffer spectrum = TwoBands(400, 800);
  SpectrumBuffer empty = TwoBands(400, 0);
  EXPECT_EQ(ErrorOf(GetParam(), empty, spectrum), 9);
  EXPECT_EQ(ErrorOf(GetParam(), spectrum, empty), 9);
  EXPECT_EQ(ErrorOf(GetParam(), empty, empty), 9);
  const int one_point = GetParam().constantError == 11 ? 11 : 9;  // no baseline, or no coefficients
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(400, 1), spectrum), one_point);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(400, 1), TwoBands(400, 1)), one_point);
}

TEST_P(EveryComparison, RefusesAnOrdinateThatIsNoFiniteNumber) {
  const SpectrumBuffer spectrum = TwoBands(400, 803);
  for (const double bad :
       {std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
    for (const std::size_t place : {55U, 56U, 100U, 155U}) {
      SpectrumBuffer spoilt = spectrum;
      spoilt.Data.values[place] = bad;
      EXPECT_EQ(ErrorOf(GetParam(), spectrum, spoilt), 6) << bad << " at " << place;
      EXPECT_EQ(ErrorOf(GetParam(), spoilt, spectrum), 6) << bad << " at " << place;
      EXPECT_EQ(ErrorOf(GetParam(), spoilt, spoilt), 6) << bad << " at " << place;
    }
    EXPECT_EQ(ErrorOf(GetParam(), spectrum, Constant(bad)), 6) << bad;
  }
}

TEST_P(EveryComparison, RefusesPointNumbersBeyond16Bits) {
  const SpectrumBuffer spectrum = TwoBands(0, 32'767);
  EXPECT_EQ(ErrorOf(GetParam(), spectrum, TwoBands(0, 32'768)), 6);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(0, 32'768), spectrum), 6);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(-20'000, 40'000), spectrum), 6);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(32'000, 769), TwoBands(32'000, 769)), 6);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(-32'769, 800), TwoBands(-32'769, 800)), 6);
  const std::int32_t last = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(last, 800), TwoBands(last, 800)), 6);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(32'767 - 799, 800), TwoBands(32'767 - 799, 800)), 0);
}

TEST_P(EveryComparison, NeverReadsBeyondTheStandard) {
  const int error = GetParam().shorterStandardError;
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(400, 799), TwoBands(400, 800)), error);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(401, 800), TwoBands(400, 800)), error);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(400, 800), TwoBands(401, 800)), error);
  EXPECT_EQ(ErrorOf(GetParam(), TwoBands(400, 800), TwoBands(5000, 800)), error);
}

TEST_P(EveryComparison, ComparesAShorterSampleOverItsOwnPoints) {
  const SpectrumBuffer standard = TwoBands(400, 3601);
  SpectrumBuffer sample = TwoBands(400, 3601, 3);
  sample.Data.values.resize(3000);
  sample.NumPts = 3000;
  const double quality = GetParam().compare(standard, sample);
  EXPECT_NEAR(quality, GetParam().reference(standard, sample), 0.005001);
}

INSTANTIATE_TEST_SUITE_P(
    Of, EveryComparison,
    ::testing::Values(Comparison{"Euclidean", &Euclidean,
                                 [](const SpectrumBuffer& standard, const SpectrumBuffer& sample) {
                                   return reference::EuclideanQuality(standard, sample, {});
                                 },
                                 true, 11, 9},
                      Comparison{"Fourier", &Fourier,
                                 [](const SpectrumBuffer& standard, const SpectrumBuffer& sample) {
                                   return reference::FourierQuality(standard.Data, sample.Data);
                                 },
                                 false, 0, 0}),
    [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace veritane::identification
