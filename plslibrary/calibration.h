// A calibration: everything that a prediction needs to know about the samples it was built from.
#pragma once

#include "plslibrary/measured_spectrum.h"
#include "plslibrary/preprocessing.h"

#include <Eigen/Core>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::plslibrary {

// Evenly spaced points from firstX to lastX, ascending; unit codes as in MeasuredSpectrum, 0 where not
// stated.
struct Axis {
  double firstX = 0;
  double lastX = 0;
  Eigen::Index points = 0;
  int xType = 0;
  int yType = 0;

  double XOf(Eigen::Index point) const;
  bool operator==(const Axis&) const = default;
};

// Neighbouring points of the axis that the calibration uses, from 0.
struct Band {
  Eigen::Index first = 0;
  Eigen::Index points = 0;

  bool operator==(const Band&) const = default;
};

// The extremes of a quantity over the calibration's samples.
struct Limits {
  double high = 0;
  double low = 0;

  bool operator==(const Limits&) const = default;
};

// The model of one constituent. "Used points" are those in the bands, in their order.
struct FactorSet {
  std::string constituent;
  double meanReference = 0;
  Eigen::VectorXd coefficients;    // used points; concentration a unit of the preprocessed spectrum
  Eigen::MatrixXd rotations;       // used points × factors; scores are rotations' · spectrum
  Eigen::MatrixXd loadings;        // used points × factors
  Eigen::VectorXd scoreVariances;  // of each factor over the calibration's samples
  // Sum over the samples of the unexplained sum of squares of each when it was left out; above 0.
  double residualSum = 0;
  Limits concentrationLimits;       // of the reference values
  std::vector<Limits> scoreLimits;  // one a factor
  Limits residualLimits;            // of samples left out
  Limits distanceLimits;            // of samples left out
  double rmsecv = 0;                // root mean square error of cross-validation

  Eigen::Index Factors() const { return scoreVariances.size(); }
};

struct Calibration {
  std::string memo;
  Axis axis;
  std::vector<Band> bands;  // ascending, apart from each other
  bool scaled = false;
  Preprocessing preprocessing;  // of the used points
  Eigen::Index samples = 0;
  Eigen::Index groups = 0;      // of the cross-validation
  std::vector<FactorSet> sets;  // one a constituent

  Eigen::Index UsedPoints() const { return preprocessing.mean.size(); }
};

// Longest name of a constituent and most factors of a set, as the interface and sensible files allow.
inline constexpr std::size_t kLongestName = 32;
inline constexpr Eigen::Index kMostFactors = 100;

// Throws PlsError when a part is missing, too small, of the wrong size or no number:
// kNotEnoughInformation where there is too little of it (no constituent, no factor, fewer samples than
// factors + 3, which the degrees of freedom of the F test need), else kCalibrationRead.
void RequireSound(const Calibration& calibration);

// The codes of a text's characters, one byte each, as the interface hands text over. Nothing when a character
// is a control character, beyond U+00FF, or no UTF-8.
std::optional<std::string> SingleByteText(std::string_view utf8);

// The spectrum's points in the order of the axis. PlsError kSourceMismatch where number of points, first or
// last x (by more than 0.001 and 1 % of a step) or a stated unit differ. A spectrum that runs the other way
// is turned; one whose first and last x are not known (NaN) needs no more than the number of points.
Eigen::VectorXd OnAxis(const Axis& axis, const MeasuredSpectrum& spectrum);

}  // namespace veritane::plslibrary
