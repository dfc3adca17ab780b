// Spectra for other programs, with their data, parameters and markers.
#pragma once

#include "acquisition/automation_members.h"
#include "acquisition/spectrometer_app.h"
#include "simulator/automation_object.h"

#include <memory>

namespace veritane::simulator {

using MemberNames = std::shared_ptr<const acquisition::AutomationMembers>;

std::shared_ptr<SimulatorObject> ServeSpectrum(const MemberNames& names,
                                               const std::shared_ptr<acquisition::Spectrum>& spectrum);

}  // namespace veritane::simulator
