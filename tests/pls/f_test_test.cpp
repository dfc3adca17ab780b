// The F-test of PLSPred against the formula in long double, the F distribution's tables, and what cannot be
// computed.
#include "tests/pls/f_test_reference.h"
#include "tests/pls/pls_pred_fixture.h"

#include <cmath>
#include <limits>

namespace veritane::pls {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using tests::ErrorOf;

class FTest : public PLSPredTest {
protected:
  // The library's values for sets whose F ratio is `ratio` with `degrees` degrees of freedom: the residual
  // makes the ratio, the first of each pair the degrees.
  void Provide(const std::vector<std::pair<double, double>>& ratios_and_degrees) {
    Array ratios;
    Array factors;
    Array residuals;
    for (const auto& [ratio, degrees] : ratios_and_degrees) {
      const auto factor = static_cast<double>(factors.size() + 1);
      ratios.push_back(degrees + factor + 2);
      ratios.push_back(1);
      factors.push_back(factor);
      residuals.push_back(ratio / ratios[ratios.size() - 2]);
    }
    Provide(ratios, factors, residuals, static_cast<double>(ratios_and_degrees.size()));
  }

  void Provide(Array ratios, Array factors, Array residuals, double sets) {
    library_.items["fratio"] = std::move(ratios);
    library_.copied["calfac"] = static_cast<std::int32_t>(factors.size());
    library_.items["calfac"] = std::move(factors);
    library_.items["residual"] = std::move(residuals);
    library_.items["fsets"] = {sets};
  }

  // The error of the F-test of one set.
  int ErrorOfSet(double ratio_1, double ratio_2, double factor, double residual) {
    Provide({ratio_1, ratio_2}, {factor}, {residual}, 1);
    return ErrorOf([this] { pls_->GetFtest(values_, size_); });
  }

  Array values_;
  std::int32_t size_ = 9;
};

TEST_F(FTest, EachSetHasItsRatioAndItsProbability) {
  Predict();
  std::vector<std::pair<double, double>> sets;
  for (const double ratio : {0.0, 1e-6, 0.01, 0.3, 0.9, 1.0, 2.5, 12.0, 250.0, 1e6}) {
    for (const double degrees : {1.0, 3.0, 17.0, 400.0}) sets.emplace_back(ratio, degrees);
  }
  Provide(sets);
  ASSERT_EQ(pls_->GetFtest(values_, size_), 0);
  ASSERT_EQ(size_, static_cast<std::int32_t>(2 * sets.size()));
  ASSERT_EQ(values_.size(), 2 * sets.size());
  for (std::size_t set = 0; set < sets.size(); ++set) {
    const auto [ratio, degrees] = sets[set];
    EXPECT_NEAR(values_[2 * set], ratio, 1e-12 * ratio);
    EXPECT_NEAR(values_[2 * set + 1], static_cast<double>(FTestProbability(ratio, degrees)), 1e-12)
        << ratio << " with " << degrees;
  }
  // At the ratio 0 z is -7/9 / sqrt(2/9): a reflected polynomial would give a probability near 0.05.
  EXPECT_GT(values_[1], 0.5);
}

TEST_F(FTest, ProbabilitiesAreThoseOfTheTables) {
  Predict();
  // Upper points of the F distribution with 1 and n degrees of freedom, from the usual statistical tables.
  Provide({{4.9646, 10}, {10.0443, 10}, {4.3512, 20}, {8.0960, 20}, {3.9201, 120}, {6.8509, 120}});
  ASSERT_EQ(pls_->GetFtest(values_, size_), 0);
  for (std::size_t set = 0; set < 6; ++set) {
    EXPECT_NEAR(values_[2 * set + 1], set % 2 == 0 ? 0.95 : 0.99, 0.004) << set;
  }
}

TEST_F(FTest, ASetWithoutDegreesOfFreedomHasTheProbabilityMinusOne) {
  Predict();
  Provide({{2.5, 0}, {2.5, 8}});
  ASSERT_EQ(pls_->GetFtest(values_, size_), 0);
  EXPECT_THAT(values_, ElementsAre(2.5, -1, 2.5, ::testing::Gt(0.8)));
}

TEST_F(FTest, WithoutSetsThereAreNoPairs) {
  values_ = {9};
  EXPECT_EQ(pls_->GetFtest(values_, size_), 0) << "nothing is predicted, and the codes are not looked at";
  EXPECT_EQ(size_, 0);
  EXPECT_THAT(values_, IsEmpty());
}

TEST_F(FTest, WhatCannotBeComputedIsARunTimeError) {
  Predict();
  constexpr double kMost = std::numeric_limits<double>::max();
  EXPECT_EQ(ErrorOfSet(20, 0, 1, 2), 11) << "a ratio to nothing";
  EXPECT_EQ(ErrorOfSet(0, 0, 1, 2), 6) << "nothing to nothing";
  EXPECT_EQ(ErrorOfSet(kMost, 1, 1, 2), 6) << "the product overflows";
  EXPECT_EQ(ErrorOfSet(20, 1e-300, 1, 1e10), 6) << "the ratio overflows";
  EXPECT_EQ(ErrorOfSet(20, -1, 1, 2), 5) << "a broken power of a negative ratio";
  EXPECT_EQ(ErrorOfSet(3.5, 1, 2, 100), 5) << "the root of a negative number";
  EXPECT_EQ(ErrorOfSet(20, 1, std::nan(""), 1), 6);
  EXPECT_EQ(ErrorOfSet(20, 1, 1, std::numeric_limits<double>::infinity()), 6);
  EXPECT_EQ(ErrorOfSet(20, 1, 1, 0.1), 0);
}

TEST_F(FTest, CountsThatCannotBeAreRunTimeErrors) {
  Predict();
  const auto error_of_sets = [&](double sets) {
    Provide({20, 1}, {1}, {2}, sets);
    return ErrorOf([&] { pls_->GetFtest(values_, size_); });
  };
  EXPECT_EQ(error_of_sets(2), 9) << "there are values for one set alone";
  EXPECT_EQ(error_of_sets(-1), 9);
  EXPECT_EQ(error_of_sets(16384), 6) << "the counter of 16 bits";
  EXPECT_EQ(error_of_sets(1e8), 7);
  EXPECT_EQ(error_of_sets(1e300), 6);
  EXPECT_EQ(error_of_sets(std::nan("")), 6);
}

}  // namespace
}  // namespace veritane::pls
