// The names of files that prints go into.
#pragma once

#include "platform/file_system.h"

#include <string>
#include <string_view>

namespace veritane::platform {

// The Windows path of a new file in `folder`, "<title> 2026-11-21 10-59-00.pdf", with " (2)" and so on where
// that is taken. What no file name may hold becomes "_" and a long title is cut. The folder is created below
// an existing one; errors of the file system.
std::string NewPrintPath(FileSystem& files, const std::string& folder, std::string_view title,
                         const DateTime& moment);

}  // namespace veritane::platform
