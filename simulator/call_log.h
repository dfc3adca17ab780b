// The operations that the program called, in order: "OpenDocument(C:\…)", "CollectInto",
// "CloseDocument(true)".
#pragma once

#include "platform/number_text.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace veritane::simulator {

class CallLog {
public:
  // Notes one call. Truth values are written true and false, numbers in their shortest form, texts as they
  // are.
  template <typename... Arguments>
  void Note(std::string_view operation, const Arguments&... arguments) {
    if (!keeps_) return;
    std::string call(operation);
    if constexpr (sizeof...(arguments) > 0) {
      std::string_view separator = "(";
      ((call.append(separator).append(Text(arguments)), separator = ", "), ...);
      call += ')';
    }
    calls_.push_back(std::move(call));
  }

  // The calls since the last taking.
  std::vector<std::string> Take() { return std::exchange(calls_, {}); }

  // Lets go of the calls from now on: where nobody takes them, they would grow as long as the program runs.
  void KeepNothing() {
    keeps_ = false;
    calls_.clear();
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

  std::vector<std::string> calls_;
  bool keeps_ = true;
};

}  // namespace veritane::simulator
