// The spectrometer's physics against laws and published figures.
#include "simulator/instrument_model.h"
#include "simulator/instrument_noise.h"
#include "tests/support/errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace veritane::simulator {
namespace {

using state::Ordinates;

double MeanOf(std::span<const double> values) {
  return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

double DeviationOf(std::span<const double> values) {
  const double mean = MeanOf(values);
  double sum = 0;
  for (double value : values) sum += (value - mean) * (value - mean);
  return std::sqrt(sum / static_cast<double>(values.size() - 1));
}

ScanSettings Noiseless(double resolution = 4) {
  ScanSettings settings;
  settings.resolution = resolution;
  settings.noise = 0;
  return settings;
}

double At(const Ordinates& spectrum, int wavenumber) {
  return spectrum.values.at(static_cast<std::size_t>(wavenumber - spectrum.lower));
}

const WavenumberGrid kMidInfrared = GridOver(400, 4000, 1);

TEST(PlanckRadiance, ObeysTheLawsOfWienAndStefanBoltzmann) {
  constexpr double kKelvin = 1350;
  double total = 0;
  double brightest = 0;
  double brightest_at = 0;
  for (double wavenumber = 0.5; wavenumber < 40000; wavenumber += 1) {
    const double radiance = PlanckRadiance(wavenumber, kKelvin);
    total += radiance;
    if (radiance > brightest) {
      brightest = radiance;
      brightest_at = wavenumber;
    }
  }
  // Wien: 1.96101 cm⁻¹/K; Stefan and Boltzmann: 5.670374e-12 W/(cm² K⁴).
  EXPECT_NEAR(brightest_at, 1.96101 * kKelvin, 1);
  EXPECT_NEAR(std::numbers::pi * total / (5.670374e-12 * std::pow(kKelvin, 4)), 1, 1e-5);
}

TEST(PlanckRadiance, HasTheTabulatedValuesAndNoneAtZero) {
  // 2hc²ν³/(exp(hcν/kT) - 1) by hand for 1000 cm⁻¹: 1.191043e-3 / (exp(1.065761) - 1) at 1350 K and
  // 1.191043e-3 / (exp(4.795923) - 1) at 300 K.
  EXPECT_NEAR(PlanckRadiance(1000, 1350), 6.25861e-4, 1e-9);
  EXPECT_NEAR(PlanckRadiance(1000, 300), 9.92403e-6, 1e-11);
  EXPECT_EQ(PlanckRadiance(0, 1350), 0);
  EXPECT_EQ(PlanckRadiance(-5, 1350), 0);
}

// A at `position` = d/L from 0 to 1, after Happ and Genzel, and after Norton and Beer (the medium one).
double ApodizationAt(Apodization apodization, double position) {
  switch (apodization) {
    case Apodization::kBoxcar:
      return 1;
    case Apodization::kTriangular:
      return 1 - position;
    case Apodization::kHappGenzel:
      return 0.54 + 0.46 * std::cos(std::numbers::pi * position);
    case Apodization::kNortonBeer:
      return 0.152442 - 0.136176 * (1 - position * position) +
             0.983734 * std::pow(1 - position * position, 2);
  }
  return 0;
}

struct ShapeCase {
  Apodization apodization;
  double widthInResolutions;  // published full width at half maximum times the greatest path difference
};

class LineShapes : public ::testing::TestWithParam<ShapeCase> {};

TEST_P(LineShapes, IsTheCosineTransformOfItsApodization) {
  constexpr double kResolution = 4;
  for (double distance : {0.0, 0.3, 1.7, 2.0, 4.0, 9.3, 40.0}) {
    // Simpson's rule over the path difference from 0 to 1/R.
    constexpr int kSteps = 4000;
    double sum = 0;
    for (int k = 0; k <= kSteps; ++k) {
      const double position = static_cast<double>(k) / kSteps;
      const int weight = k == 0 || k == kSteps ? 1 : (k % 2 == 1 ? 4 : 2);
      sum += weight * ApodizationAt(GetParam().apodization, position) *
             std::cos(2 * std::numbers::pi * distance * position / kResolution);
    }
    const double expected = 2 * sum / (3 * kSteps) / kResolution;
    EXPECT_NEAR(LineShape(GetParam().apodization, kResolution, distance), expected, 1e-9) << distance;
  }
}

TEST_P(LineShapes, HasThePublishedHalfWidthAndUnitArea) {
  constexpr double kResolution = 4;
  const auto shape = [](double distance) { return LineShape(GetParam().apodization, kResolution, distance); };
  double half = 0;
  while (shape(half) > shape(0) / 2) half += 1e-4;
  EXPECT_NEAR(2 * half / kResolution, GetParam().widthInResolutions, 0.004);
  double area = 0;
  for (double distance = -2000; distance <= 2000; distance += 0.25) area += 0.25 * shape(distance);
  EXPECT_NEAR(area, 1, 1e-3);
}

// Griffiths and de Haseth, table of apodization functions; Norton and Beer's medium is 1.4 times the boxcar.
INSTANTIATE_TEST_SUITE_P(All, LineShapes,
                         ::testing::Values(ShapeCase{Apodization::kBoxcar, 0.6034},
                                           ShapeCase{Apodization::kTriangular, 0.8859},
                                           ShapeCase{Apodization::kHappGenzel, 0.9076},
                                           ShapeCase{Apodization::kNortonBeer, 1.4 * 0.6034}));

TEST(LineShapeTaps, LeaveAConstantAsItIs) {
  const std::vector<double> taps = LineShapeTaps(Apodization::kBoxcar, 4, 0.5, 48);
  EXPECT_EQ(taps.size() % 2, 1u);
  EXPECT_NEAR(std::accumulate(taps.begin(), taps.end(), 0.0), 1, 1e-12);
}

TEST(Noise, IsNormalAndTheSameForTheSameSeed) {
  NoiseGenerator first(42);
  NoiseGenerator same(42);
  NoiseGenerator other(43);
  std::vector<double> values(100000);
  int differing = 0;
  for (double& value : values) {
    value = first.Next();
    ASSERT_EQ(value, same.Next());
    differing += value != other.Next();
  }
  EXPECT_GT(differing, 99990);
  EXPECT_NEAR(MeanOf(values), 0, 0.012);
  EXPECT_NEAR(DeviationOf(values), 1, 0.01);
  // A normal distribution has 68.27 % within one standard deviation and 0.27 % beyond three.
  const auto beyond = [&values](double limit) {
    return static_cast<double>(
               std::count_if(values.begin(), values.end(), [=](double v) { return std::abs(v) > limit; })) /
           static_cast<double>(values.size());
  };
  EXPECT_NEAR(beyond(1), 0.3173, 0.006);
  EXPECT_NEAR(beyond(3), 0.0027, 0.0006);
}

std::vector<double> NoiseOf(ScanSettings settings) {
  const Ordinates noisy = SingleBeam({}, kMidInfrared, settings);
  settings.noise = 0;
  const Ordinates quiet = SingleBeam({}, kMidInfrared, settings);
  std::vector<double> noise(noisy.Size());
  for (std::size_t i = 0; i < noise.size(); ++i) noise[i] = noisy.values[i] - quiet.values[i];
  return noise;
}

TEST(SingleBeam, NoiseFallsWithTheSquareRootOfScansAndGrowsWithResolution) {
  ScanSettings settings;
  settings.scans = 1;
  settings.seed = 5;
  const double one = DeviationOf(NoiseOf(settings));
  EXPECT_NEAR(one, kNoiseOfOneScan, 0.1 * kNoiseOfOneScan);
  settings.seed = 6;
  settings.scans = 64;
  EXPECT_NEAR(one / DeviationOf(NoiseOf(settings)), 8, 0.8);
  settings.seed = 7;
  settings.scans = 1;
  settings.resolution = 8;
  EXPECT_NEAR(one / DeviationOf(NoiseOf(settings)), 2, 0.3);
  settings.noise = 0;
  EXPECT_EQ(NoiseDeviation(settings), 0);
}

TEST(SingleBeam, NoiseHangsTogetherOverALineShape) {
  ScanSettings settings;
  settings.seed = 11;
  const std::vector<double> noise = NoiseOf(settings);
  const auto correlation = [&noise](std::size_t lag) {
    double sum = 0;
    double power = 0;
    for (std::size_t i = 0; i + lag < noise.size(); ++i) {
      sum += noise[i] * noise[i + lag];
      power += noise[i] * noise[i];
    }
    return sum / power;
  };
  EXPECT_GT(correlation(1), 0.7);
  EXPECT_LT(std::abs(correlation(12)), 0.1);
}

TEST(SingleBeam, OfTheEmptyCompartmentShowsTheAtmosphere) {
  const Ordinates beam = BackgroundOf(kMidInfrared);
  ASSERT_EQ(beam.lower, 400);
  ASSERT_EQ(beam.Size(), 3601u);
  EXPECT_NEAR(*std::max_element(beam.values.begin(), beam.values.end()), 100, 2);
  EXPECT_GT(*std::min_element(beam.values.begin(), beam.values.end()), 10);
  // How far a point lies below the straight line between its neighbours at both sides.
  const auto dip = [&beam](int wavenumber, int reach) {
    return 1 - At(beam, wavenumber) / ((At(beam, wavenumber - reach) + At(beam, wavenumber + reach)) / 2);
  };
  EXPECT_GT(dip(2361, 60), 0.02);  // carbon dioxide, R branch
  EXPECT_GT(dip(2338, 60), 0.02);  // P branch
  EXPECT_GT(dip(667, 15), 0.01);   // bending
  EXPECT_GT(dip(1653, 4), 0.01);   // water vapour
  EXPECT_GT(dip(3854, 5), 0.005);
  EXPECT_LT(std::abs(dip(2100, 30)), 0.003);
}

TEST(SingleBeam, AFinerResolutionSeparatesTheBranchesLinesOfCarbonDioxide) {
  const WavenumberGrid grid = GridOver(2300, 2400, 0.25);
  const auto count_minima = [&grid](double resolution) {
    const Ordinates beam = BackgroundOf(grid, resolution);
    int minima = 0;
    for (std::size_t i = 1; i + 1 < beam.Size(); ++i) {
      minima += beam.values[i] < beam.values[i - 1] && beam.values[i] < beam.values[i + 1];
    }
    return minima;
  };
  // Lines of even J lie 1.6 cm⁻¹ apart: resolved at 0.5, melted into two branches at 8.
  EXPECT_GT(count_minima(0.5), 30);
  EXPECT_EQ(count_minima(8), 2);
}

TEST(SingleBeam, GivesTheSameEnergyAtSharedPointsOfEveryGrid) {
  const Ordinates fine = SingleBeam(SampleOf("caffeine", {}), GridOver(400, 4000, 1), Noiseless());
  const Ordinates coarse = SingleBeam(SampleOf("caffeine", {}), GridOver(600, 3000, 4), Noiseless());
  ASSERT_EQ(coarse.lower, 150);
  for (std::size_t i = 0; i < coarse.Size(); ++i) {
    ASSERT_NEAR(coarse.values[i], fine.values[200 + 4 * i], 1e-9) << i;
  }
}

TEST(Absorbance, AddsUpByBeersLaw) {
  const WavenumberGrid grid = GridOver(600, 3200, 1);
  const std::vector<SamplePart> mixture = SampleOf("polystyrene 0.25 + PMMA 0.5", {});
  const std::vector<double> together = SampleAbsorbance(mixture, grid);
  const std::vector<double> styrene = SampleAbsorbance(SampleOf("polystyrene", {}), grid);
  const std::vector<double> acrylate = SampleAbsorbance(SampleOf("pmma", {}), grid);
  for (std::size_t i = 0; i < together.size(); ++i) {
    ASSERT_NEAR(together[i], 0.25 * styrene[i] + 0.5 * acrylate[i], 1e-12);
  }
  // Through the instrument the law holds as far as the line shape lets it.
  const Ordinates half = AbsorbanceOf("caffeine 0.5", grid, 1);
  const Ordinates whole = AbsorbanceOf("caffeine", grid, 1);
  for (std::size_t i = 0; i < half.Size(); ++i) ASSERT_NEAR(2 * half.values[i], whole.values[i], 0.01);
}

TEST(Absorbance, OfACoarserResolutionHasLowerAndWiderBandsOfTheSameArea) {
  const WavenumberGrid grid = GridOver(620, 780, 1);
  const Ordinates fine = AbsorbanceOf("polystyrene 0.05", grid, 1);
  const Ordinates coarse = AbsorbanceOf("polystyrene 0.05", grid, 16);
  EXPECT_LT(At(coarse, 698), 0.8 * At(fine, 698));
  EXPECT_GT(At(coarse, 685), 1.2 * At(fine, 685));
  EXPECT_NEAR(MeanOf(coarse.values) / MeanOf(fine.values), 1, 0.05);
}

TEST(Absorbance, UnderTotalReflectionFallsWithTheWavenumber) {
  const WavenumberGrid grid = GridOver(600, 3200, 1);
  ScanSettings settings = Noiseless(1);
  const std::vector<SamplePart> sample = SampleOf("polyethylene 0.3", {});
  const Ordinates background = SingleBeam({}, grid, settings);
  const Ordinates straight = AbsorbanceAgainst(background, SingleBeam(sample, grid, settings));
  settings.attenuatedTotalReflection = true;
  const Ordinates reflected = AbsorbanceAgainst(background, SingleBeam(sample, grid, settings));
  EXPECT_NEAR(At(reflected, 2917) / At(straight, 2917), 1000.0 / 2917, 0.01);
  EXPECT_NEAR(At(reflected, 720) / At(straight, 720), 1000.0 / 720, 0.02);
}

TEST(Absorbance, AndTransmittanceStayFiniteWhereNoLightIsLeft) {
  const Ordinates background{10, {50, 50, 0, -1, 50}};
  const Ordinates sample{10, {5, -2, 0, 3, 50}};
  const Ordinates absorbance = AbsorbanceAgainst(background, sample);
  EXPECT_NEAR(absorbance.values[0], 1, 1e-12);
  EXPECT_NEAR(absorbance.values[1], 5, 1e-12);
  EXPECT_NEAR(absorbance.values[2], 0, 1e-12);
  EXPECT_NEAR(absorbance.values[3], -1, 1e-12);
  EXPECT_NEAR(absorbance.values[4], 0, 1e-12);
  EXPECT_NEAR(TransmittanceAgainst(background, sample).values[0], 10, 1e-12);
  EXPECT_EQ(tests::ErrorOf([&] { AbsorbanceAgainst(background, {11, sample.values}); }), 9);
}

TEST(Grid, HoldsTheWholeMultiplesOfItsSpacing) {
  const WavenumberGrid grid = GridOver(400.1, 401, 0.1);
  EXPECT_EQ(grid.lower, 4001);
  EXPECT_EQ(grid.Upper(), 4010);
  EXPECT_EQ(GridOver(401, 409, 4).lower, 101);
  EXPECT_EQ(GridOver(401, 409, 4).points, 2);
  for (const auto& [from, to, spacing] : {std::tuple{400.0, 400.0, 1.0},
                                          {500.0, 400.0, 1.0},
                                          {400.0, 500.0, 0.0},
                                          {0.0, 500.0, 1.0},
                                          {401.0, 403.0, 10.0},
                                          {400.0, std::nan(""), 1.0}}) {
    EXPECT_EQ(tests::ErrorOf([&] { GridOver(from, to, spacing); }), 5) << from << " " << to << " " << spacing;
  }
  EXPECT_EQ(tests::ErrorOf([] { GridOver(1, 1e9, 1e-3); }), 6);
}

TEST(Grid, TakesSpectraOverByStraightLines) {
  const std::vector<double> values =
      InterpolatedOnto({.lower = 3, .points = 6, .spacing = 1}, {2, {1, 3, 7}}, 2);
  EXPECT_EQ(values, (std::vector<double>{1, 1, 2, 3, 5, 7}));
  EXPECT_EQ(tests::ErrorOf([] { InterpolatedOnto({.lower = 3, .points = 6, .spacing = 1}, {}, 2); }), 5);
}

}  // namespace
}  // namespace veritane::simulator
