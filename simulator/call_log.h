// The operations that the program called, in order: "OpenDocument(C:\…)", "CollectInto",
// "CloseDocument(true)".
#pragma once

#include "platform/number_text.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace veritane::simulator {

class CallLog {
public:
  // So many calls are kept, the last ones: where nobody takes them, a run may still be as long as it likes.
  static constexpr std::size_t kMostCalls = 10'000;

  // Notes one call. Truth values are written true and false, numbers in their shortest form, texts as they
  // are.
  template <typename... Arguments>
  void Note(std::string_view operation, const Arguments&... arguments) {
    std::string call(operation);
    if constexpr (sizeof...(arguments) > 0) {
      std::string_view separator = "(";
      ((call.append(separator).append(Text(arguments)), separator = ", "), ...);
      call += ')';
    }
    if (calls_.size() == kMostCalls) calls_.pop_front();
    calls_.push_back(std::move(call));
  }

  // The calls since the last taking.
  std::vector<std::string> Take() {
    const auto calls = std::exchange(calls_, {});
    return {calls.begin(), calls.end()};
  }

private:
  template <typename Argument>
  static std::string Text(const Argument& argument) {
    if constexpr (std::is_same_v<Argument, bool>) {
      return argument ? "true" : "false";
    } else if constexpr (std::is_integral_v<Argument>) {
      return std::to_string(argument);
    } else if constexpr (std::is_floating_point_v<Argument>) {
      return platform::PlainNumberText(argument);
    } else {
      return std::string(argument);
    }
  }

  std::deque<std::string> calls_;
};

}  // namespace veritane::simulator
