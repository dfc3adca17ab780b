// Sizes and subscripts that are checked.
#include "pls/array_item.h"

#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <new>
#include <string>

namespace veritane::pls {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

constexpr std::int32_t kMostValues = 1 << 24;

[[noreturn]] void Raise(ErrorNumber number, std::int32_t size) {
  throw RunTimeError(number, Text(TextId::kArrayOfValues, {std::to_string(size)}));
}

}  // namespace

void Redimension(std::vector<double>& values, std::int32_t size) {
  if (size < 0) Raise(ErrorNumber::kSubscript, size);
  if (size > kMostValues) Raise(ErrorNumber::kOutOfMemory, size);
  try {
    values.assign(static_cast<std::size_t>(size), 0);
  } catch (const std::bad_alloc&) {
    Raise(ErrorNumber::kOutOfMemory, size);
  }
}

double& ElementOf(std::vector<double>& values, std::int32_t index) {
  if (index < 1 || static_cast<std::size_t>(index) > values.size()) {
    throw RunTimeError(ErrorNumber::kSubscript,
                       Text(TextId::kElementOfArray, {std::to_string(index), std::to_string(values.size())}));
  }
  return values[static_cast<std::size_t>(index) - 1];
}

}  // namespace veritane::pls
