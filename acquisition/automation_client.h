// The Spectrometer application as another program's automation objects: the whole contract, carried out by
// late-bound calls.
#pragma once

#include "acquisition/automation_members.h"
#include "acquisition/spectrometer_app.h"
#include "platform/automation.h"

#include <memory>
#include <string>

namespace veritane::acquisition {

// Creates the application's object. What a call raises beside the contract's own errors: the application's
// numbers and texts, 424, 438, 440, 450 and 462 of platform/automation.h. `automation` outlives whatever
// comes of it. Error 429 when the application cannot be started.
std::unique_ptr<SpectrometerApp> ConnectSpectrometerApp(platform::Automation& automation,
                                                        const std::string& prog_id,
                                                        const AutomationMembers& members);

}  // namespace veritane::acquisition
