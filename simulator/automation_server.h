// The simulator's objects for other programs: every operation of the contract as a member of an automation
// object.
#pragma once

#include "acquisition/automation_members.h"
#include "acquisition/spectrometer_app.h"
#include "platform/automation.h"

#include <memory>

namespace veritane::simulator {

// The application object under the names of `members`; all others come out of it. They keep alive what they
// stand for.
std::shared_ptr<platform::ServedObject> ServeSpectrometerApp(
    const std::shared_ptr<acquisition::SpectrometerApp>& app,
    const acquisition::AutomationMembers& members = {});

}  // namespace veritane::simulator
