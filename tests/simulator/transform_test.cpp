// The transform against its definition.
#include "simulator/transform.h"

#include "tests/identification/reference.h"

#include <gtest/gtest.h>

#include <cmath>

namespace veritane::simulator {
namespace {

TEST(Transform, EqualsTheDefiningSumForAnyNumberOfPoints) {
  for (const std::size_t size : {1u, 2u, 3u, 4u, 5u, 7u, 8u, 13u, 60u, 277u, 720u, 1976u, 2048u, 3601u}) {
    std::vector<double> ordinates(size);
    double total = 0;
    for (std::size_t i = 0; i < size; ++i) {
      ordinates[i] = std::sin(0.37 * static_cast<double>(i * i)) + 0.25;
      total += std::abs(ordinates[i]);
    }
    const std::vector<long double> expected = identification::reference::FourierTransform(ordinates);
    const std::vector<double> transformed = RealFourierTransform(ordinates);
    ASSERT_EQ(transformed.size(), size);
    for (std::size_t k = 0; k < size; ++k) {
      ASSERT_NEAR(transformed[k], static_cast<double>(expected[k]), 1e-14 * total)
          << size << " points, k = " << k;
    }
  }
}

TEST(Transform, HasAsManyPointsAndBeginsAtIndexZero) {
  StoredSpectrum spectrum;
  spectrum.name = "x";
  spectrum.spacing = 2;
  spectrum.ordinates = {400, {1, 2, 3, 4, 5}};
  const StoredSpectrum transformed = Transformed(spectrum);
  EXPECT_EQ(transformed.ordinates.lower, 0);
  EXPECT_EQ(transformed.ordinates.Size(), 5u);
  EXPECT_DOUBLE_EQ(transformed.ordinates.values[0], 15);
  EXPECT_DOUBLE_EQ(transformed.spacing, 0.1);
  EXPECT_EQ(transformed.name, "x");
}

}  // namespace
}  // namespace veritane::simulator
