// What a calibration says about one spectrum.
#pragma once

#include "plslibrary/calibration.h"

#include <Eigen/Core>

#include <vector>

namespace veritane::plslibrary {

// By one factor set, in the calibration's order.
struct SetPrediction {
  double concentration = 0;
  double residual = 0;  // sum of squares of residualSpectrum
  double distance = 0;  // Mahalanobis distance from the centre of the calibration's scores
  Eigen::VectorXd scores;
  // What the factors do not explain of the preprocessed spectrum; used points.
  Eigen::VectorXd residualSpectrum;
};

struct Prediction {
  Eigen::VectorXd processed;  // the preprocessed spectrum; used points
  std::vector<SetPrediction> sets;
};

// A prediction with room for everything that Predict computes, so that predicting allocates nothing.
Prediction RoomForPrediction(const Calibration& calibration);

// Cuts the bands out of `source` (one value a point of the calibration's axis) and centres and scales them
// into `processed` (one a used point).
void PrepareSpectrum(const Calibration& calibration, const Eigen::Ref<const Eigen::VectorXd>& source,
                     Eigen::VectorXd& processed);

// The constituent's concentration, from a spectrum of PrepareSpectrum.
double Concentration(const FactorSet& set, const Eigen::VectorXd& processed);

// Predicts everything into `prediction`, which RoomForPrediction made for this calibration. PlsError
// kPreprocessing where a used point is no number, kMathematics where a result would be none.
void Predict(const Calibration& calibration, const Eigen::Ref<const Eigen::VectorXd>& source,
             Prediction& prediction);

// The pair of numbers behind the F test of a factor set: how many samples the calibration has, and the sum of
// their residuals. A spectrum's residual times the first by the second is its F ratio.
struct FRatioPair {
  double samples = 0;
  double residualSum = 0;
};
FRatioPair FRatioOf(const Calibration& calibration, const FactorSet& set);

// The probability that a spectrum which belongs to the calibration has a smaller residual: the F distribution
// with 1 and samples − factors − 2 degrees of freedom.
double ResidualProbability(const Calibration& calibration, const FactorSet& set, double residual);

}  // namespace veritane::plslibrary
