// A clock that goes with the system's, or stands.
#include "platform/system/system_clock.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"

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

std::chrono::system_clock::time_point MomentAt(std::int64_t seconds) {
  using Moment = std::chrono::system_clock::time_point;
  const auto whole_seconds = [](Moment moment) {
    return std::chrono::duration_cast<std::chrono::seconds>(moment.time_since_epoch()).count();
  };
  // A fraction of the last second still has to fit.
  if (seconds < whole_seconds(Moment::min()) || seconds >= whole_seconds(Moment::max())) {
    throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kDate));
  }
  return Moment(std::chrono::seconds(seconds));
}

}  // namespace veritane::platform
