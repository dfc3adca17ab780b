// Expecting a run-time error by its number or its text.
#pragma once

#include "platform/run_time_error.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

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

// The text of the RunTimeError that `action` raises; "" when it raises none. One of another number than the
// given one fails the test.
template <typename Action>
std::string ErrorTextOf(Action action, std::optional<int> number = std::nullopt) {
  try {
    action();
  } catch (const platform::RunTimeError& error) {
    EXPECT_EQ(error.Number(), number.value_or(error.Number())) << error.what();
    return error.what();
  }
  return "";
}

}  // namespace veritane::tests
