// Builds a calibration from spectra and reference values, and says what the samples are worth.
#pragma once

#include "plslibrary/calibration.h"
#include "plslibrary/cross_validation.h"

#include <Eigen/Core>

#include <string>
#include <vector>

namespace veritane::plslibrary {

struct ConstituentPlan {
  std::string name;
  Eigen::VectorXd reference;  // one value a sample
  Eigen::Index factors = 0;   // 0 for the suggested number
};

struct CalibrationPlan {
  std::string memo = "";
  Axis axis = {};
  std::vector<Band> bands = {};  // none for the whole axis
  bool scaled = false;
  Eigen::Index groups = 0;       // of the cross-validation; 0 leaves out one sample at a time
  Eigen::Index mostFactors = 0;  // that the cross-validation goes up to
  std::vector<ConstituentPlan> constituents = {};
};

// How a sample lies among those of its calibration.
struct SampleStatistics {
  double predicted = 0;            // when it was left out
  double leverage = 0;             // 1/n and its squared share of each factor
  double studentizedResidual = 0;  // of the calibration's own fit
  double distance = 0;             // Mahalanobis, when it was left out
  double residualProbability = 0;  // of the spectrum's residual when it was left out; see ResidualProbability
  // ASTM E1655: more than three times the mean leverage. The other two: beyond 3 standard deviations, above
  // 0.99.
  bool highLeverage = false;
  bool highResidual = false;
  bool unusualSpectrum = false;

  bool IsOutlier() const { return highLeverage || highResidual || unusualSpectrum; }
};

struct ConstituentStudy {
  CrossValidation validation;
  Eigen::Index suggestedFactors = 0;
  Eigen::Index factors = 0;
  // Root mean square error of the calibration's own samples, with n − factors − 1 degrees of freedom.
  double rmsec = 0;
  std::vector<SampleStatistics> samples;
};

struct BuiltCalibration {
  Calibration calibration;
  std::vector<ConstituentStudy> studies;  // one a constituent
};

// Builds from spectra as rows, one value a point of the axis. PlsError kNotEnoughInformation where there are
// too few samples, reference values that do not vary, or fewer factors in the data than planned;
// kPreprocessing for values that are no numbers.
BuiltCalibration BuildCalibration(const CalibrationPlan& plan, const Eigen::MatrixXd& spectra);

}  // namespace veritane::plslibrary
