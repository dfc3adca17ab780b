// Sizes and subscripts that are checked.
#include "pls/array_item.h"

#include <new>
#include <string>

#include "platform/run_time_error.h"

namespace veritane::pls {

using platform::ErrorNumber;
using platform::RunTimeError;

namespace {

constexpr std::int32_t kMostValues = 1 << 24;

[[noreturn]] void RaiseOutOfMemory(std::int32_t size) {
  throw RunTimeError(ErrorNumber::kOutOfMemory, "an array of " + std::to_string(size) + " values");
}

}  // namespace

void Redimension(std::vector<double>& values, std::int32_t size) {
  if (size < 0)
    throw RunTimeError(ErrorNumber::kSubscript, "an array of " + std::to_string(size) + " values");
  if (size > kMostValues) RaiseOutOfMemory(size);
  try {
    values.assign(static_cast<std::size_t>(size), 0);
  } catch (const std::bad_alloc&) {
    RaiseOutOfMemory(size);
  }
}

double& ElementOf(std::vector<double>& values, std::int32_t index) {
  if (index < 1 || static_cast<std::size_t>(index) > values.size()) {
    throw RunTimeError(ErrorNumber::kSubscript,
                       "element " + std::to_string(index) + " of " + std::to_string(values.size()));
  }
  return values[static_cast<std::size_t>(index) - 1];
}

}  // namespace veritane::pls
