// Windows' own times: the count in which its clock and its files tell moments, and moments in parts.
#pragma once

#include "platform/date_time.h"

#include <windows.h>

#include <chrono>

namespace veritane::platform {

FILETIME FileTimeOf(std::chrono::system_clock::time_point moment);
// Error 6 for a time that the clock cannot tell.
std::chrono::system_clock::time_point MomentOf(FILETIME time);

// The same moment in the system's parts, with the day of the week.
SYSTEMTIME SystemTimeOf(const DateTime& moment);

}  // namespace veritane::platform
