// What the fuzz targets share: how they take their bytes, and how they report a finding.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace veritane::fuzz {

// A demand that does not hold stops the target, which the fuzzer reports with the bytes that led there.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

inline std::string_view BytesOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace veritane::fuzz
