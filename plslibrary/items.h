// The named arrays of doubles that the library's interface hands out; docs/pls-library.md describes each.
#pragma once

#include "plslibrary/calibration.h"
#include "plslibrary/prediction.h"

#include <optional>
#include <string_view>
#include <vector>

namespace veritane::plslibrary {

// Doubles in one record of "bands".
inline constexpr std::size_t kBandRecord = 5;

// A prediction with what it was made by and from.
struct PredictedSpectrum {
  const Calibration& calibration;
  const Axis& axis;
  const Eigen::VectorXd& source;
  const Prediction& prediction;
};

// Items that a calibration has by itself; nothing for any other name.
std::optional<std::vector<double>> CalibrationItem(const Calibration& calibration, std::string_view name);

// Items that only a prediction has; nothing for any other name.
std::optional<std::vector<double>> PredictionItem(const PredictedSpectrum& predicted, std::string_view name);

}  // namespace veritane::plslibrary
