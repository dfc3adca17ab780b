// Cross-validation of PLS1 models.
#include "plslibrary/cross_validation.h"

#include "plslibrary/f_distribution.h"
#include "plslibrary/pls1.h"
#include "plslibrary/preprocessing.h"

#include <Eigen/QR>

#include <algorithm>
#include <cmath>
#include <vector>

namespace veritane::plslibrary {

namespace {

// The same spectra in axes that span only them: lengths and angles, all that an unscaled model depends on,
// stay, while thousands of points become as many coordinates as there are samples.
Eigen::MatrixXd InTheirOwnAxes(const Eigen::MatrixXd& spectra) {
  const Eigen::HouseholderQR<Eigen::MatrixXd> decomposition(
      (spectra.rowwise() - spectra.colwise().mean()).transpose());
  return decomposition.matrixQR()
      .topRows(spectra.rows())
      .triangularView<Eigen::Upper>()
      .toDenseMatrix()
      .transpose();
}

struct Split {
  std::vector<Eigen::Index> kept;
  std::vector<Eigen::Index> leftOut;
};

Split LeaveGroupOut(Eigen::Index samples, Eigen::Index groups, Eigen::Index group) {
  Split split;
  for (Eigen::Index sample = 0; sample < samples; ++sample) {
    (sample % groups == group ? split.leftOut : split.kept).push_back(sample);
  }
  return split;
}

// Predicts one preprocessed sample by the first 1, 2, … factors into row `sample` of the result.
void PredictLeftOut(const Pls1Model& model, const Eigen::VectorXd& spectrum, double mean_reference,
                    double freedom, Eigen::Index sample, CrossValidation& result) {
  const Eigen::VectorXd scores = model.rotations.transpose() * spectrum;
  Eigen::VectorXd unexplained = spectrum;
  double predicted = mean_reference;
  double distance = 0;
  for (Eigen::Index factor = 0; factor < model.Factors(); ++factor) {
    predicted += model.inner(factor) * scores(factor);
    unexplained -= scores(factor) * model.loadings.col(factor);
    distance += scores(factor) * scores(factor) / model.scoreSquares(factor) * freedom;
    result.predicted(sample, factor) = predicted;
    result.residuals(sample, factor) = unexplained.squaredNorm();
    result.distances(sample, factor) = std::sqrt(distance);
  }
}

}  // namespace

CrossValidation CrossValidate(const Eigen::MatrixXd& spectra, const Eigen::VectorXd& reference,
                              Eigen::Index most_factors, Eigen::Index groups, bool scaling) {
  const Eigen::Index samples = spectra.rows();
  const Eigen::MatrixXd& points = !scaling && spectra.cols() > samples ? InTheirOwnAxes(spectra) : spectra;
  CrossValidation result;
  result.predicted.resize(samples, most_factors);
  result.residuals.resize(samples, most_factors);
  result.distances.resize(samples, most_factors);
  Eigen::Index factors = most_factors;
  for (Eigen::Index group = 0; group < groups; ++group) {
    const Split split = LeaveGroupOut(samples, groups, group);
    const Eigen::MatrixXd kept = points(split.kept, Eigen::all);
    const Eigen::VectorXd kept_reference = reference(split.kept);
    const Preprocessing preprocessing = LearnPreprocessing(kept, scaling);
    const double mean_reference = kept_reference.mean();
    const Pls1Model model =
        FitPls1(Preprocess(preprocessing, kept), kept_reference.array() - mean_reference, factors);
    factors = std::min(factors, model.Factors());
    const Eigen::MatrixXd left_out = Preprocess(preprocessing, points(split.leftOut, Eigen::all));
    for (std::size_t i = 0; i < split.leftOut.size(); ++i) {
      PredictLeftOut(model, left_out.row(static_cast<Eigen::Index>(i)), mean_reference,
                     static_cast<double>(split.kept.size()) - 1, split.leftOut[i], result);
    }
  }
  result.predicted.conservativeResize(Eigen::NoChange, factors);
  result.residuals.conservativeResize(Eigen::NoChange, factors);
  result.distances.conservativeResize(Eigen::NoChange, factors);
  result.press = (result.predicted.colwise() - reference).colwise().squaredNorm();
  return result;
}

Eigen::Index SuggestedFactors(const CrossValidation& validation) {
  const Eigen::VectorXd& press = validation.press;
  if (press.size() == 0) return 0;
  Eigen::Index best = 0;
  const double least = press.minCoeff(&best);
  const auto freedom = static_cast<double>(validation.predicted.rows());
  for (Eigen::Index factors = 0; factors < best; ++factors) {
    // Exact data have a least PRESS of 0, which every other exceeds significantly.
    if (least > 0 && FProbability(press(factors) / least, freedom, freedom) < 0.75) return factors + 1;
  }
  return best + 1;
}

}  // namespace veritane::plslibrary
