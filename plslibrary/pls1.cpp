// PLS1 by orthogonal scores.
#include "plslibrary/pls1.h"

#include <algorithm>

namespace veritane::plslibrary {

namespace {

// What is smaller than this part of its origin is rounding.
constexpr double kNegligible = 1e-12;

void Resize(Pls1Model& model, Eigen::Index factors) {
  model.rotations.conservativeResize(Eigen::NoChange, factors);
  model.scores.conservativeResize(Eigen::NoChange, factors);
  model.scoreSquares.conservativeResize(factors);
  model.inner.conservativeResize(factors);
}

}  // namespace

Pls1Model FitPls1(const Eigen::MatrixXd& x, const Eigen::VectorXd& y, Eigen::Index most_factors) {
  const Eigen::Index most = std::min({most_factors, x.rows(), x.cols()});
  const double x_length = x.norm();
  const double y_length = y.norm();
  Pls1Model model;
  model.rotations.resize(x.cols(), most);
  model.scores.resize(x.rows(), most);
  model.scoreSquares.resize(most);
  model.inner.resize(most);

  Eigen::VectorXd rest = y;
  Eigen::VectorXd weights(x.cols());
  Eigen::VectorXd score(x.rows());
  Eigen::Index found = 0;
  for (; found < most; ++found) {
    weights.noalias() = x.transpose() * rest;
    const double covariance = weights.norm();
    if (!(covariance > kNegligible * x_length * y_length)) break;
    weights /= covariance;
    score.noalias() = x * weights;

    // The projections onto earlier scores carry over to the rotations, which map x itself to the scores.
    for (int pass = 0; pass < 2; ++pass) {
      const Eigen::VectorXd shares =
          (model.scores.leftCols(found).transpose() * score).cwiseQuotient(model.scoreSquares.head(found));
      score.noalias() -= model.scores.leftCols(found) * shares;
      weights.noalias() -= model.rotations.leftCols(found) * shares;
    }
    const double squares = score.squaredNorm();
    if (!(squares > kNegligible * kNegligible * x_length * x_length)) break;

    model.rotations.col(found) = weights;
    model.scores.col(found) = score;
    model.scoreSquares(found) = squares;
    model.inner(found) = score.dot(rest) / squares;
    rest -= model.inner(found) * score;
  }
  Resize(model, found);
  model.loadings.noalias() = x.transpose() * model.scores * model.scoreSquares.cwiseInverse().asDiagonal();
  return model;
}

Eigen::VectorXd Coefficients(const Pls1Model& model, Eigen::Index factors) {
  return model.rotations.leftCols(factors) * model.inner.head(factors);
}

}  // namespace veritane::plslibrary
