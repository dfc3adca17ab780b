// The calibration that ships: polystyrene and polyethylene in a blend, from simulated measurements.
#pragma once

#include "simulator/collect_method.h"

#include <string>

namespace veritane::setup {

// The text of a ".cal" file for spectra of this collect method, built from blends of known shares that are
// measured with the noise of the instrument as delivered. Constituents in percent.
std::string BlendCalibration(const simulator::CollectMethodSettings& method);

}  // namespace veritane::setup
