// Run-time errors and the conversions that raise them.
#include "platform/run_time_error.h"

#include "platform/number_text.h"
#include "platform/texts.h"

#include <cmath>
#include <limits>

namespace veritane::platform {

std::string ErrorText(ErrorNumber number) {
  constexpr int kMost = 499;
  const int value = static_cast<int>(number);
  const std::string* const text =
      value > 0 && value <= kMost ? Texts().Find(static_cast<int>(TextId::kOtherError) + value) : nullptr;
  return text == nullptr ? Text(TextId::kOtherError) : *text;
}

RunTimeError::RunTimeError(ErrorNumber number, const std::string& detail)
    : std::runtime_error(detail.empty() ? ErrorText(number)
                                        : Text(TextId::kErrorWithDetail, {ErrorText(number), detail})),
      number_(static_cast<int>(number)) {}

RunTimeError::RunTimeError(int number, const std::string& text) : std::runtime_error(text), number_(number) {}

namespace {

template <typename Integer>
Integer ToInteger(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
    throw RunTimeError(ErrorNumber::kOverflow, PlainNumberText(value));
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

std::int16_t ToInt16(double value) {
  return ToInteger<std::int16_t>(value);
}
std::int32_t ToInt32(double value) {
  return ToInteger<std::int32_t>(value);
}

}  // namespace veritane::platform
