// A clock that always shows the same.
#pragma once

#include "platform/machine.h"

namespace veritane::tests {

class StandingClock : public platform::Clock {
public:
  std::chrono::system_clock::time_point Now() const override { return {}; }
  platform::DateTime ToLocal(std::chrono::system_clock::time_point) const override {
    return {2026, 11, 21, 10, 59, 7};
  }
};

}  // namespace veritane::tests
