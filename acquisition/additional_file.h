// The file that two algorithms need beside the Standard: a calibration for "PLS", a peak file for "Mark
// Peaks".
#pragma once

#include "platform/desktop.h"
#include "shell/state/data_folders.h"

#include <optional>
#include <string>

namespace veritane::acquisition {

bool NeedsAdditionalFile(const std::string& algorithm);

// Asks for the file that this algorithm needs. Nothing on Cancel, for an algorithm that needs none (then
// nothing is asked), or for a file whose name cannot stand in the product table, which the user is told.
std::optional<std::string> ChooseAdditionalFile(platform::Desktop& desktop, const state::DataFolders& folders,
                                                const std::string& algorithm);

}  // namespace veritane::acquisition
