// How well a PLS1 model predicts samples that it has not seen, for each number of factors.
#pragma once

#include <Eigen/Core>

namespace veritane::plslibrary {

// Row i is sample i, predicted by a model of the samples outside its group; column a is the model of a + 1
// factors. A model refers to its own preprocessing.
struct CrossValidation {
  Eigen::MatrixXd predicted;
  // Sums of squares of what the model does not explain of the preprocessed spectrum.
  Eigen::MatrixXd residuals;
  Eigen::MatrixXd distances;  // Mahalanobis distance from the centre of the model's scores
  Eigen::VectorXd press;      // sum over the samples of (predicted − reference)²

  Eigen::Index Factors() const { return press.size(); }
  // Root mean square error of cross-validation by number of factors.
  Eigen::VectorXd Rmsecv() const { return (press / static_cast<double>(predicted.rows())).cwiseSqrt(); }
};

// Sample i belongs to group i mod `groups`; as many groups as samples leave one out at a time. At least 3
// samples and 2 groups. Covers as many factors up to `most_factors` as every model could be given.
CrossValidation CrossValidate(const Eigen::MatrixXd& spectra, const Eigen::VectorXd& reference,
                              Eigen::Index most_factors, Eigen::Index groups, bool scaling);

// The smallest number of factors whose PRESS is not significantly larger than the smallest PRESS: the F
// probability of their ratio, as many degrees of freedom as samples on both sides, is below 0.75 (Haaland and
// Thomas, Anal. Chem. 60 (1988) 1193). 0 when there are no factors.
Eigen::Index SuggestedFactors(const CrossValidation& validation);

}  // namespace veritane::plslibrary
