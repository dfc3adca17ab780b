// A spectrum that another program holds.
#pragma once

#include "acquisition/automation_object.h"
#include "acquisition/spectrometer_app.h"

#include <memory>

namespace veritane::acquisition {

std::shared_ptr<Spectrum> MakeAutomationSpectrum(ServerObject spectrum);

}  // namespace veritane::acquisition
