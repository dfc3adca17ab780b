// A clock that goes with the system's, or stands.
#include "platform/system/system_clock.h"

namespace veritane::platform {

std::chrono::system_clock::time_point SystemClock::Now() const {
  return fixed_ ? *fixed_ : PresentMoment();
}

DateTime SystemClock::ToLocal(std::chrono::system_clock::time_point moment) const {
  return LocalTimeOf(moment);
}

void SystemClock::Set(const DateTime& local) {
  fixed_ = MomentOf(local);
}

}  // namespace veritane::platform
