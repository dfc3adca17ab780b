// Expecting a run-time error by its number.
#pragma once

#include <gtest/gtest.h>

#include "platform/run_time_error.h"

namespace veritane::tests {

// The number of the RunTimeError that `action` raises; 0 when it raises none.
template <typename Action>
int ErrorOf(Action action) {
  try {
    action();
  } catch (const platform::RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace veritane::tests
