// The checksum that tells a damaged calibration from a whole one.
#pragma once

#include <cstdint>
#include <string_view>

namespace veritane::plslibrary {

// CRC-32 as in ISO/IEC 8802-3: "123456789" gives CBF43926.
constexpr std::uint32_t Crc32(std::string_view bytes) {
  std::uint32_t sum = 0xFFFFFFFFU;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) {
      sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
  }
  return ~sum;
}

}  // namespace veritane::plslibrary
