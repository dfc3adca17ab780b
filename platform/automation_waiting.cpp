// Waiting for servers.
#include "platform/automation_waiting.h"

namespace veritane::platform {

std::optional<std::int32_t> RetryDelay(const AutomationWaiting& waiting, std::int64_t elapsed) {
  constexpr std::int32_t kDelay = 100;
  if (waiting.busyServerRaisesError && elapsed >= waiting.busyMilliseconds) return std::nullopt;
  return kDelay;
}

bool IsOverdue(const AutomationWaiting& waiting, std::int64_t elapsed) {
  return elapsed >= waiting.pendingMilliseconds;
}

}  // namespace veritane::platform
