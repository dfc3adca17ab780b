// What a command line of veritane-calibrate asks for: samples, reference values and the plan of a
// calibration.
#pragma once

#include "apps/command_line.h"
#include "apps/veritane_calibrate/samples.h"
#include "plslibrary/calibration_builder.h"

#include <string>
#include <vector>

namespace veritane::calibrate {

struct CalibrationRequest {
  std::vector<Sample> samples;
  plslibrary::CalibrationPlan plan;
  Eigen::MatrixXd spectra;  // a row a sample, on the plan's axis
};

// Reads the files that the command line names. apps::UsageError for options that contradict or make no sense,
// SampleError for files.
CalibrationRequest ReadRequest(const apps::CommandLine& line);

}  // namespace veritane::calibrate
