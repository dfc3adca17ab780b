// Where the points of a file come to lie.
#include "simulator/placed_spectrum.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace veritane::simulator {
namespace {

using ::testing::ElementsAre;

std::vector<double> Ramp(std::size_t size) {
  std::vector<double> values(size);
  for (std::size_t i = 0; i < size; ++i) values[i] = static_cast<double>(i);
  return values;
}

TEST(PlacedSpectra, RoundingNoiseOfFirstAndLastXDoesNotMatter) {
  for (const double noise : {0.0, 3e-7, -3e-7}) {
    const PlacedSpectrum fives = PlaceOnGrid({400 + noise, 3995 - noise, {}, Ramp(720)});
    EXPECT_EQ(fives.spacing, 5.0);
    EXPECT_EQ(fives.ordinates.lower, 80);
    EXPECT_EQ(fives.ordinates.values, Ramp(720));
    EXPECT_EQ(fives.interpolated, "");
    const PlacedSpectrum twos = PlaceOnGrid({450 + noise, 4400 + noise, 1.9999, Ramp(1976)});
    EXPECT_EQ(twos.spacing, 2.0);
    EXPECT_EQ(twos.ordinates.lower, 225);
    EXPECT_EQ(twos.interpolated, "");
  }
  const PlacedSpectrum tenths = PlaceOnGrid({400.1, 400.7, {}, Ramp(7)});
  EXPECT_EQ(tenths.spacing, 0.1);
  EXPECT_EQ(tenths.ordinates.lower, 4001);
}

TEST(PlacedSpectra, DescendingCurvesAreTurned) {
  const PlacedSpectrum turned = PlaceOnGrid({6, 2, -2.0, {30, 20, 10}});
  EXPECT_EQ(turned.ordinates.lower, 1);
  EXPECT_THAT(turned.ordinates.values, ElementsAre(10, 20, 30));
}

TEST(PlacedSpectra, ACurveBesideTheGridIsInterpolatedWithinItsRange) {
  // A cubic is met exactly: (x/10)^3 at 401, 403, … 419 becomes 402, 404, … 418.
  std::vector<double> cubes;
  for (int x = 401; x <= 419; x += 2) cubes.push_back(std::pow(x / 10.0, 3));
  const PlacedSpectrum placed = PlaceOnGrid({401, 419, 2.0, cubes});
  EXPECT_EQ(placed.spacing, 2);
  EXPECT_EQ(placed.ordinates.lower, 201);
  ASSERT_EQ(placed.ordinates.Size(), 9u);
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_NEAR(placed.ordinates.values[i], std::pow((402.0 + 2 * static_cast<double>(i)) / 10, 3), 1e-9);
  }
  EXPECT_THAT(placed.interpolated, ::testing::HasSubstr("401 to 419"));
}

TEST(PlacedSpectra, ABandFourStepsWideKeepsItsHeightWithinOnePercent) {
  // A Gaussian of 4 steps full width at half height, its top half-way between two points: the worst case.
  const double sigma = 4 / 2.3548200450309493;
  std::vector<double> band;
  for (int i = 0; i < 60; ++i) band.push_back(std::exp(-std::pow((i - 29.5) / sigma, 2) / 2));
  const PlacedSpectrum placed = PlaceOnGrid({1000.5, 1059.5, 1.0, band});
  EXPECT_NEAR(*std::max_element(placed.ordinates.values.begin(), placed.ordinates.values.end()), 1, 0.01);
}

TEST(PlacedSpectra, WhatHasNoGridIsRefused) {
  EXPECT_THROW(PlaceOnGrid({1, 2, {}, {}}), std::domain_error);
  EXPECT_THROW(PlaceOnGrid({1, 1, {}, {1, 2}}), std::domain_error);
  EXPECT_THROW(PlaceOnGrid({1, 1, {}, {1}}), std::domain_error) << "a single point needs a spacing";
  EXPECT_THROW(PlaceOnGrid({1e12, 1e12 + 2, {}, {1, 2, 3}}), std::domain_error) << "beyond 2^31 steps";
  EXPECT_EQ(PlaceOnGrid({6, 6, 2.0, {1}}).ordinates.lower, 3);
}

}  // namespace
}  // namespace veritane::simulator
