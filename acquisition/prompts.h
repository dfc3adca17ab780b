// What the operator is told before a background and before a sample, per collect method.
#pragma once

#include "platform/file_system.h"
#include "shell/state/data_folders.h"

#include <string>

namespace veritane::acquisition {

struct Prompts {
  std::string background;
  std::string sample;
};

// The prompts file of a collect method's short name.
std::string PromptsPath(const state::DataFolders& folders, const std::string& short_name);

// The prompts of a method's ".pro" file, or the general ones when it has no such file.
Prompts LoadPrompts(const platform::FileSystem& files, const state::DataFolders& folders,
                    const std::string& short_name);

// Writes the two lines of the method's ".pro" file.
void SavePrompts(platform::FileSystem& files, const state::DataFolders& folders,
                 const std::string& short_name, const Prompts& prompts);

}  // namespace veritane::acquisition
