// SPC files put together byte by byte, for tests of their reader.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace veritane::plslibrary {

// Bytes that grow as they are written to. Numbers stand in the byte order given.
class SpcImage {
public:
  explicit SpcImage(std::endian order = std::endian::little) : order_(order) {}

  template <typename Number>
  SpcImage& Set(std::size_t offset, Number number) {
    char raw[sizeof(Number)];
    std::memcpy(raw, &number, sizeof(Number));
    if (bytes.size() < offset + sizeof(Number)) bytes.resize(offset + sizeof(Number), '\0');
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
      bytes[offset + i] = order_ == std::endian::native ? raw[i] : raw[sizeof(Number) - 1 - i];
    }
    return *this;
  }
  template <typename Number>
  SpcImage& Append(Number number) {
    return Set(bytes.size(), number);
  }
  template <typename Number>
  SpcImage& Append(const std::vector<Number>& numbers) {
    for (const Number number : numbers) Append(number);
    return *this;
  }
  // A subheader of 32 bytes with its exponent and number of points.
  SpcImage& AppendSubheader(std::int8_t exponent = 0, std::uint32_t points = 0) {
    const std::size_t begin = bytes.size();
    Set(begin + 31, std::uint8_t{0});
    return Set(begin + 1, exponent).Set(begin + 16, points);
  }

  std::string bytes;

private:
  std::endian order_;
};

struct SpcHead {
  std::uint8_t flags = 0;
  int exponent = -128;
  std::uint32_t points = 0;
  double firstX = 400;
  double lastX = 404;
  std::uint32_t spectra = 1;
};

// The 512 bytes of the new form's header; x in cm⁻¹, y in absorbance.
inline SpcImage NewHeader(const SpcHead& head, std::endian order = std::endian::little) {
  SpcImage image(order);
  image.Set(511, std::uint8_t{0}).Set(0, head.flags);
  image.Set(1, order == std::endian::little ? std::uint8_t{0x4B} : std::uint8_t{0x4C});
  image.Set(3, static_cast<std::int8_t>(head.exponent)).Set(4, head.points);
  image.Set(8, head.firstX).Set(16, head.lastX).Set(24, head.spectra);
  return image.Set(28, std::uint8_t{1}).Set(29, std::uint8_t{2});
}

// The 224 bytes of the old form before its first subheader.
inline SpcImage OldHeader(const SpcHead& head) {
  SpcImage image;
  image.Set(223, std::uint8_t{0}).Set(0, head.flags).Set(1, std::uint8_t{0x4D});
  image.Set(2, static_cast<std::int16_t>(head.exponent)).Set(4, static_cast<float>(head.points));
  image.Set(8, static_cast<float>(head.firstX)).Set(12, static_cast<float>(head.lastX));
  return image.Set(16, std::uint8_t{1}).Set(17, std::uint8_t{128});
}

}  // namespace veritane::plslibrary
