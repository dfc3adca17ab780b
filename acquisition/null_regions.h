// Null regions: wavenumber ranges of a collect method that comparisons ignore.
#pragma once

#include "platform/file_system.h"
#include "shell/state/program_state.h"

#include <string>
#include <vector>

namespace veritane::acquisition {

// The region file of a collect method's short name.
std::string NullRegionPath(const state::DataFolders& folders, const std::string& short_name);

// The region lines of a file as they stand ("2400 - 2300"); none when there is no such file. Errors 62 and 13
// for a file that ends too soon or has no count.
std::vector<std::string> ReadNullRegionLines(const platform::FileSystem& files, const std::string& path);

// Reads the regions of `state.clmName` into the state. A method without a file has none. Errors 62 and 13 for
// a file that ends too soon or has no count.
void LoadNullRegions(const platform::FileSystem& files, state::ProgramState& state);

}  // namespace veritane::acquisition
