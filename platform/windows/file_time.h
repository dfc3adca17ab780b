// Windows' own count of time, in which its clock and its files tell moments.
#pragma once

#include <windows.h>

#include <chrono>

namespace veritane::platform {

FILETIME FileTimeOf(std::chrono::system_clock::time_point moment);
// Error 6 for a time that the clock cannot tell.
std::chrono::system_clock::time_point MomentOf(FILETIME time);

}  // namespace veritane::platform
