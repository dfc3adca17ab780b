// The numbered files that a product's full sample files become.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "platform/file_system.h"
#include "shell/state/program_state.h"

#include <string>

namespace veritane::identification {

// The path of the first number from 1 to 1000 that is free, "" where none is.
std::string FirstFreeNumberedFile(const platform::FileSystem& files, const state::ProgramState& state);

// Where the name of the numbered file is noted for as long as a full sample file moves there.
std::string MoveNotePath(const state::ProgramState& state);
// The numbered file of the note, "" where there is none: a program that ended during the move leaves it.
std::string MoveUnderWay(const platform::FileSystem& files, const state::ProgramState& state);

// Whether a file holds what the open document holds, spectrum by spectrum: a program that ended while it
// moved the document aside leaves such a copy. A file that cannot be read is none.
bool IsCopyOf(acquisition::Document& document, acquisition::SpectrometerApp& application,
              const std::string& path);

}  // namespace veritane::identification
