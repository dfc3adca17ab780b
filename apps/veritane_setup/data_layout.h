// Laying out the data folder as an installer does: tables, collect methods, prompts, Standards and
// demonstration spectra.
#pragma once

#include <string>
#include <vector>

#include "platform/machine.h"

namespace veritane::setup {

// Creates what is missing below the common application data folder and leaves every file that is there as it
// is. Spectra are computed by the simulator. Returns the Windows paths of the files that were made.
std::vector<std::string> LayOutData(const platform::Machine& machine);

// Makes the first line of settings.ini say whether the program demonstrates (true) or measures. A missing
// file is made with the usual settings; every other line stays.
void SetDemonstrationMode(const platform::Machine& machine, bool demonstration);

}  // namespace veritane::setup
