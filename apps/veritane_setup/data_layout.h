// Laying out the data folder as an installer does: tables, collect methods, prompts, Standards and
// demonstration spectra.
#pragma once

#include "platform/machine.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace veritane::setup {

// Creates what is missing below the common application data folder and leaves every file that is there as it
// is. Spectra are computed by the simulator. Returns the Windows paths of the files that were made.
std::vector<std::string> LayOutData(const platform::Machine& machine);

struct ProgramIsRunning : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Makes the first line of settings.ini say whether the program demonstrates (true) or measures. A missing
// file is made with the usual settings; every other line stays. Where there is something to change,
// ProgramIsRunning with nothing changed while Veritane is at work on the data folder: it would write its own
// settings when it ends.
void SetDemonstrationMode(const platform::Machine& machine, bool demonstration);

}  // namespace veritane::setup
