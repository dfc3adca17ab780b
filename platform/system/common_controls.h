// What the system's controls need before the first window opens.
#pragma once

namespace veritane::platform {

// Initialises the extended combo-box class where the system has one; a failure changes nothing.
void InitialiseCommonControls();

}  // namespace veritane::platform
