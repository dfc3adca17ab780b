// What was found while calibrating: for people, and as JSON.
#pragma once

#include "apps/veritane_calibrate/samples.h"
#include "plslibrary/calibration_builder.h"

#include <string>
#include <vector>

namespace veritane::calibrate {

// A few lines for the screen: PRESS and RMSECV by factors, the number suggested and taken, outliers.
std::string ReportText(const plslibrary::BuiltCalibration& built, const std::vector<Sample>& samples);

// The same and the statistics of every sample; docs/pls-library.md names the members.
std::string ReportJson(const plslibrary::BuiltCalibration& built, const plslibrary::CalibrationPlan& plan,
                       const std::vector<Sample>& samples);

}  // namespace veritane::calibrate
