// Telling the user that the program waits for the Spectrometer application.
#pragma once

#include "platform/automation.h"

namespace veritane::platform {
class Desktop;
}

namespace veritane::acquisition {

// Shows the text in the status window, and afterwards what stood there before. The desktop outlives what is
// returned.
platform::ShowWaiting ShowInStatusWindow(platform::Desktop& desktop);

}  // namespace veritane::acquisition
