// Where the simulated instrument's sample compartment lies: one file for the program, the panel and the
// server.
#pragma once

#include "platform/system/system_machine.h"
#include "shell/state/data_folders.h"

#include <string>

namespace veritane::apps {

// Beside drive C in the data root; in the data folder where the paths are the system's own.
inline std::string CompartmentPath(const platform::SystemMachine& machine) {
  const std::filesystem::path& root = machine.paths.Root();
  if (!root.empty()) return machine.paths.ToWindows(root / "compartment.txt");
  return state::DataFolderBelow(machine.folders.CommonApplicationData(false)) + "compartment.txt";
}

}  // namespace veritane::apps
