// How long the program goes on asking a busy server, and waiting for an answer.
#pragma once

#include "platform/automation.h"

#include <cstdint>
#include <optional>

namespace veritane::platform {

// The milliseconds after which a refused call is made again; nothing when the server has refused it for
// `elapsed` milliseconds and that is long enough.
std::optional<std::int32_t> RetryDelay(const AutomationWaiting& waiting, std::int64_t elapsed);

// Whether an answer that has been waited for `elapsed` milliseconds is given up.
bool IsOverdue(const AutomationWaiting& waiting, std::int64_t elapsed);

}  // namespace veritane::platform
