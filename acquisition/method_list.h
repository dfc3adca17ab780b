// The methods list: the ".clm" files that may be used, and their short names.
#pragma once

#include "platform/controls.h"
#include "platform/file_system.h"
#include "shell/state/program_state.h"

#include <string>
#include <vector>

namespace veritane::acquisition {

// Where the list lies.
std::string MethodListPath(const state::ProgramState& state);

// The text behind the last "\" without its last four characters. A path without "\" keeps the name that came
// before it.
std::string MethodShortName(const std::string& path, const std::string& previous);

// Where the list shows: full paths in the list box, short names in the combo boxes.
struct MethodListControls {
  platform::ListBox& lstMeths;
  std::vector<platform::ComboBox*> shortNames;
};

// Reads the list, the count and then a full path a line, into the state's arrays and all its controls. Errors
// 62 and 13 as for every table.
void LoadMethodList(const platform::FileSystem& files, state::ProgramState& state,
                    const MethodListControls& controls);

// Writes these paths as the list.
void SaveMethodList(platform::FileSystem& files, const state::ProgramState& state,
                    const std::vector<std::string>& paths);

}  // namespace veritane::acquisition
