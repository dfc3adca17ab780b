// Measuring on the simulated instrument without its documents.
#pragma once

#include "shell/state/spectrum_buffer.h"
#include "simulator/collect_method.h"

#include <cstdint>
#include <string>

namespace veritane::setup {

// The single beam of a material or mixture by name, with the noise of this seed.
state::Ordinates MeasureSingleBeam(const std::string& sample, const simulator::CollectMethodSettings& method,
                                   std::uint64_t seed);

// Its absorbance against a background of its own.
state::Ordinates MeasureAbsorbance(const std::string& sample, const simulator::CollectMethodSettings& method,
                                   std::uint64_t seed);

}  // namespace veritane::setup
