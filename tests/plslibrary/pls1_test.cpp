// The regression against a reference implementation, against one written differently, and on awkward data.
#include "plslibrary/pls1.h"

#include "plslibrary/cross_validation.h"
#include "plslibrary/f_distribution.h"
#include "plslibrary/pls_error.h"
#include "plslibrary/prediction.h"
#include "tests/plslibrary/gasoline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace veritane::plslibrary {
namespace {

using LongVector = Eigen::Matrix<long double, Eigen::Dynamic, 1>;
using LongMatrix = Eigen::Matrix<long double, Eigen::Dynamic, Eigen::Dynamic>;

// The textbook's way: X itself is deflated, and the sample to predict goes through the same deflations.
long double PredictByDeflation(LongMatrix x, LongVector y, LongVector sample, int factors) {
  const LongVector mean = x.colwise().mean().transpose();
  long double predicted = y.mean();
  x.rowwise() -= mean.transpose();
  y.array() -= predicted;
  sample -= mean;
  for (int factor = 0; factor < factors; ++factor) {
    const LongVector weights = (x.transpose() * y).normalized();
    const LongVector scores = x * weights;
    const LongVector loadings = x.transpose() * scores / scores.squaredNorm();
    const long double inner = y.dot(scores) / scores.squaredNorm();
    x -= scores * loadings.transpose();
    y -= inner * scores;
    const long double score = sample.dot(weights);
    predicted += inner * score;
    sample -= score * loadings;
  }
  return predicted;
}

// Normally distributed numbers, the same in every run.
Eigen::MatrixXd Noise(Eigen::Index rows, Eigen::Index columns, unsigned seed) {
  std::mt19937 generator(seed);
  std::normal_distribution<double> normal;
  return Eigen::MatrixXd::NullaryExpr(rows, columns, [&] { return normal(generator); });
}

Eigen::MatrixXd Centred(const Eigen::MatrixXd& x) {
  return x.rowwise() - x.colwise().mean();
}

TEST(Pls1, PredictionsEqualTheReference) {
  const Gasoline gasoline;
  const Eigen::MatrixXd reference = NumbersOf("gasoline_reference_predictions.csv");
  ASSERT_EQ(reference.rows(), 10);
  for (Eigen::Index factors = 1; factors <= 6; ++factors) {
    const Calibration calibration = gasoline.Calibrate(factors).calibration;
    Prediction prediction = RoomForPrediction(calibration);
    for (Eigen::Index row = 0; row < 10; ++row) {
      Predict(calibration, OnAxis(calibration.axis, gasoline.Measured(50 + row)), prediction);
      EXPECT_NEAR(prediction.sets[0].concentration, reference(row, 1 + factors), 1e-9)
          << factors << " factors";
    }
  }
}

TEST(Pls1, PressOfLeavingOneOutEqualsTheReference) {
  const Gasoline gasoline;
  const Eigen::MatrixXd reference = NumbersOf("gasoline_reference_press.csv");
  const CrossValidation validation =
      CrossValidate(gasoline.spectra.topRows(50), gasoline.octane.head(50), 6, 50, false);
  ASSERT_EQ(validation.Factors(), 6);
  EXPECT_LT((validation.press - reference.col(1)).cwiseAbs().maxCoeff(), 1e-9);
  EXPECT_NEAR(validation.Rmsecv()(2), std::sqrt(reference(2, 1) / 50), 1e-9);
}

TEST(Pls1, AgreesWithDeflationInLongDoubleOnNearlyCollinearSpectra) {
  // 2,000 points, 15 components whose sizes fall by half each: a condition number of 3e4 within the model.
  const Eigen::MatrixXd shares = Noise(40, 15, 1);
  const Eigen::VectorXd sizes =
      Eigen::VectorXd::NullaryExpr(15, [](Eigen::Index i) { return std::exp2(-i); });
  const Eigen::MatrixXd x = shares * sizes.asDiagonal() * Noise(15, 2000, 2) + 1e-7 * Noise(40, 2000, 3);
  const Eigen::VectorXd y = shares * Noise(15, 1, 4);
  const Eigen::MatrixXd kept = x.topRows(39);
  const Eigen::VectorXd kept_y = y.head(39);
  const Pls1Model model = FitPls1(Centred(kept), kept_y.array() - kept_y.mean(), 15);
  ASSERT_EQ(model.Factors(), 15);

  const Eigen::VectorXd left_out = x.row(39).transpose() - kept.colwise().mean().transpose();
  for (const int factors : {1, 5, 10, 15}) {
    const auto expected = PredictByDeflation(kept.cast<long double>(), kept_y.cast<long double>(),
                                             x.row(39).transpose().cast<long double>(), factors);
    EXPECT_NEAR(kept_y.mean() + Coefficients(model, factors).dot(left_out), static_cast<double>(expected),
                1e-7);
  }
  Eigen::MatrixXd cosines = model.scoreSquares.cwiseSqrt().cwiseInverse().asDiagonal() *
                            (model.scores.transpose() * model.scores) *
                            model.scoreSquares.cwiseSqrt().cwiseInverse().asDiagonal();
  cosines.diagonal().setZero();
  EXPECT_LT(cosines.cwiseAbs().maxCoeff(), 1e-12);
  EXPECT_LT((Centred(kept) * model.rotations - model.scores).norm(), 1e-9 * model.scores.norm());
}

TEST(Pls1, AsManyFactorsAsTheDataHoldAndNoMore) {
  const Eigen::MatrixXd shares = Noise(12, 2, 5);
  const Eigen::MatrixXd x = Centred(shares * Noise(2, 300, 6));
  const Eigen::VectorXd y = Centred(shares * Eigen::Vector2d(1, 2));
  const Pls1Model model = FitPls1(x, y, 8);
  EXPECT_EQ(model.Factors(), 2);
  EXPECT_LT((x * Coefficients(model, 2) - y).norm(), 1e-10 * y.norm());

  EXPECT_EQ(FitPls1(x, Eigen::VectorXd::Zero(12), 8).Factors(), 0) << "y that does not vary";
  EXPECT_EQ(FitPls1(Eigen::MatrixXd::Zero(12, 300), y, 8).Factors(), 0) << "spectra that do not vary";
  EXPECT_EQ(FitPls1(x * 1e-150, y, 8).Factors(), 2) << "the scale of the spectra does not matter";
  EXPECT_EQ(CrossValidate(x, y, 8, 12, false).Factors(), 2);
}

TEST(Pls1, ModelsOfSpectraInTheirOwnAxesAreThoseOfTheSpectra) {
  // With fewer points than samples cross-validation takes the spectra as they are: repeating every point,
  // shrunk to keep lengths, changes the number of points and nothing else.
  const Eigen::MatrixXd few = Noise(20, 12, 7);
  Eigen::MatrixXd many(20, 48);
  for (Eigen::Index i = 0; i < 4; ++i) many.middleCols(12 * i, 12) = few / 2;
  const Eigen::VectorXd y = few * Noise(12, 1, 8) + 0.3 * Noise(20, 1, 9);
  const CrossValidation direct = CrossValidate(few, y, 5, 7, false);
  const CrossValidation turned = CrossValidate(many, y, 5, 7, false);
  ASSERT_EQ(direct.Factors(), turned.Factors());
  EXPECT_LT((direct.predicted - turned.predicted).norm(), 1e-10);
  EXPECT_LT((direct.residuals - turned.residuals).norm(), 1e-9);
  EXPECT_LT((direct.distances - turned.distances).norm(), 1e-9);
}

TEST(Pls1, ScalingMakesTheUnitsOfPointsIrrelevant) {
  const Gasoline gasoline;
  Eigen::VectorXd units = Eigen::VectorXd::LinSpaced(401, 0.01, 40);
  const Eigen::MatrixXd other = gasoline.spectra.topRows(50) * units.asDiagonal();
  const Eigen::VectorXd press =
      CrossValidate(gasoline.spectra.topRows(50), gasoline.octane.head(50), 4, 50, true).press;
  EXPECT_LT((CrossValidate(other, gasoline.octane.head(50), 4, 50, true).press - press).norm(), 1e-8);
  EXPECT_GT((CrossValidate(other, gasoline.octane.head(50), 4, 50, false).press - press).norm(), 1e-2);
}

TEST(Pls1, ProbabilitiesOfTheFDistributionEqualItsClosedForms) {
  for (const double ratio : {1e-9, 0.01, 0.3, 1.0, 2.5, 40.0, 1e6}) {
    EXPECT_NEAR(FProbability(ratio, 1, 1), 2 / std::acos(-1.0) * std::atan(std::sqrt(ratio)), 1e-12);
    EXPECT_NEAR(FProbability(ratio, 2, 47), 1 - std::pow(1 + 2 * ratio / 47, -23.5), 1e-12);
    EXPECT_NEAR(FProbability(ratio, 50, 50) + FProbability(1 / ratio, 50, 50), 1, 1e-12);
  }
  EXPECT_EQ(FProbability(0, 1, 10), 0);
  EXPECT_EQ(FProbability(std::numeric_limits<double>::infinity(), 1, 10), 1);
  EXPECT_NEAR(FProbability(4.964603, 1, 10), 0.95, 1e-7) << "the table's 5 % point";
}

TEST(Pls1, TheSuggestedNumberIsTheSmallestThatIsNotSignificantlyWorse) {
  CrossValidation validation;
  validation.predicted = Eigen::MatrixXd::Zero(50, 5);
  // With 50 and 50 degrees of freedom the 75 % point of F lies at 1.21.
  validation.press = (Eigen::VectorXd(5) << 90, 5, 3.6, 3, 3.1).finished();
  EXPECT_EQ(SuggestedFactors(validation), 3);
  validation.press(2) = 3.7;
  EXPECT_EQ(SuggestedFactors(validation), 4);
  validation.press = (Eigen::VectorXd(3) << 2, 0, 0).finished();
  EXPECT_EQ(SuggestedFactors(validation), 2) << "exact data";
}

TEST(Pls1, TooLittleToCalibrateIsSaid) {
  const Gasoline gasoline;
  const auto code_of = [&](CalibrationPlan plan, Eigen::Index samples) {
    try {
      plan.axis = gasoline.axis;
      BuildCalibration(plan, gasoline.spectra.topRows(samples));
    } catch (const PlsError& error) {
      return error.Code();
    }
    return PlsCode::kNoError;
  };
  const auto plan = [](const Eigen::VectorXd& reference, Eigen::Index factors) {
    return CalibrationPlan{.mostFactors = 3, .constituents = {{"octane", reference, factors}}};
  };
  EXPECT_EQ(code_of(plan(gasoline.octane.head(6), 3), 6), PlsCode::kNoError);
  EXPECT_EQ(code_of(plan(gasoline.octane.head(6), 4), 6), PlsCode::kNotEnoughInformation);
  EXPECT_EQ(code_of(plan(gasoline.octane.head(3), 1), 3), PlsCode::kNotEnoughInformation);
  EXPECT_EQ(code_of(plan(Eigen::VectorXd::Constant(20, 88), 1), 20), PlsCode::kNotEnoughInformation);
  EXPECT_EQ(code_of({}, 20), PlsCode::kNotEnoughInformation);
  Eigen::VectorXd hole = gasoline.octane.head(20);
  hole(3) = std::nan("");
  EXPECT_EQ(code_of(plan(hole, 1), 20), PlsCode::kPreprocessing);
}

TEST(Pls1, AWrongReferenceValueAndAForeignSpectrumAreOutliers) {
  Gasoline gasoline;
  gasoline.octane(11) += 3;
  gasoline.spectra.row(20).segment(300, 40).array() += 0.2;
  const std::vector<SampleStatistics> samples = gasoline.Calibrate(3).studies[0].samples;
  EXPECT_TRUE(samples[11].highResidual);
  EXPECT_GT(samples[20].residualProbability, 0.99);
  EXPECT_TRUE(samples[20].unusualSpectrum || samples[20].highLeverage);
  EXPECT_FALSE(samples[5].IsOutlier());
}

}  // namespace
}  // namespace veritane::plslibrary
