// Mean centring and scaling.
#include "plslibrary/preprocessing.h"

#include <cmath>

namespace veritane::plslibrary {

Preprocessing LearnPreprocessing(const Eigen::MatrixXd& spectra, bool scaling) {
  Preprocessing learnt{spectra.colwise().mean().transpose(), Eigen::VectorXd::Ones(spectra.cols())};
  if (!scaling || spectra.rows() < 2) return learnt;
  for (Eigen::Index point = 0; point < spectra.cols(); ++point) {
    const double squares = (spectra.col(point).array() - learnt.mean(point)).square().sum();
    const double deviation = std::sqrt(squares / static_cast<double>(spectra.rows() - 1));
    // The mean of equal numbers may differ from them by rounding, which must not be blown up.
    const bool varies = deviation > 1e-12 * std::abs(learnt.mean(point));
    if (varies) learnt.factor(point) = 1 / deviation;
  }
  return learnt;
}

Eigen::MatrixXd Preprocess(const Preprocessing& preprocessing, const Eigen::MatrixXd& spectra) {
  return (spectra.rowwise() - preprocessing.mean.transpose()) * preprocessing.factor.asDiagonal();
}

}  // namespace veritane::plslibrary
