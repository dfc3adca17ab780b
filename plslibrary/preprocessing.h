// Mean centring and scaling, learnt from calibration spectra and applied to every later one.
#pragma once

#include <Eigen/Core>

namespace veritane::plslibrary {

// A point x becomes (x − mean) × factor.
struct Preprocessing {
  Eigen::VectorXd mean;
  Eigen::VectorXd factor;  // 1 without scaling, else the reciprocal of the standard deviation
};

// From spectra as rows, at least one. A point that does not vary keeps the factor 1.
Preprocessing LearnPreprocessing(const Eigen::MatrixXd& spectra, bool scaling);

Eigen::MatrixXd Preprocess(const Preprocessing& preprocessing, const Eigen::MatrixXd& spectra);

}  // namespace veritane::plslibrary
