// What the fuzz targets share: how they take their bytes, and how they report a finding.
#pragma once

#include "platform/run_time_error.h"

#include <cstdint>
#include <cstdlib>
#include <map>
#include <string_view>

namespace veritane::fuzz {

// A demand that does not hold stops the target, which the fuzzer reports with the bytes that led there.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

inline std::string_view BytesOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

using Reader = void (*)(std::string_view bytes);

// Hands the bytes behind the first to the reader that the first one names. A reader refuses with a
// RunTimeError.
inline void Feed(const std::map<char, Reader>& readers, const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = BytesOf(data, size);
  const auto reader = bytes.empty() ? readers.end() : readers.find(bytes.front());
  if (reader == readers.end()) return;
  try {
    reader->second(bytes.substr(1));
  } catch (const platform::RunTimeError&) {
  }
}

}  // namespace veritane::fuzz
