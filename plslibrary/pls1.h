// Partial least squares regression of one property on spectra (PLS1).
//
// The orthogonal-scores algorithm of Wold, Ruhe, Wold and Dunn, SIAM J. Sci. Stat. Comput. 5 (1984) 735. Only
// y is deflated, which is enough (Dayal and MacGregor, J. Chemometrics 11 (1997) 73); each score vector is
// made orthogonal to those before it twice, so that factors stay exact where spectra are nearly collinear.
#pragma once

#include <Eigen/Core>

namespace veritane::plslibrary {

// A model of centred data; column a belongs to factor a + 1. For a centred spectrum x the scores are
// rotations' · x, the property is their product with `inner`, and loadings · scores is what the factors
// explain of x.
struct Pls1Model {
  Eigen::MatrixXd rotations;     // points × factors
  Eigen::MatrixXd loadings;      // points × factors
  Eigen::MatrixXd scores;        // samples × factors, orthogonal
  Eigen::VectorXd scoreSquares;  // squared length of each column of scores
  Eigen::VectorXd inner;         // property a unit of score

  Eigen::Index Factors() const { return inner.size(); }
};

// Fits up to `most_factors` factors to x (samples × points, columns centred) and y (centred). There are fewer
// where the data support no more: y is explained, or nothing of x is left that varies with it. Both hold
// finite numbers and have as many rows.
Pls1Model FitPls1(const Eigen::MatrixXd& x, const Eigen::VectorXd& y, Eigen::Index most_factors);

// The property a unit of each point, by the first `factors` factors.
Eigen::VectorXd Coefficients(const Pls1Model& model, Eigen::Index factors);

}  // namespace veritane::plslibrary
