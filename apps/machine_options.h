// The options that say on which machine a program works: its data root and its time.
#pragma once

#include "apps/command_line.h"
#include "platform/system/system_machine.h"

#include <filesystem>

namespace veritane::apps {

inline constexpr const char* kRootOption = "--root";
inline constexpr const char* kNowOption = "--now";

// The data root, platform::DefaultRoot without the option.
std::filesystem::path RootOption(const CommandLine& line);

// Lets the machine's clock stand still at the time of the option, if there is one. UsageError for what is no
// time.
void SetClock(const CommandLine& line, platform::SystemMachine& machine);

}  // namespace veritane::apps
