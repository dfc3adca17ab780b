// The bytes of an SPC file as numbers, and its ordinates in their three codings.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace veritane::plslibrary {

// Numbers at places of a file, in the file's byte order. A place that reaches beyond the end is a
// SpectrumReadError, so no field of a file is ever trusted.
class SpcBytes {
public:
  SpcBytes(std::string_view bytes, std::endian order) : bytes_(bytes), order_(order) {}

  std::uint64_t Size() const { return bytes_.size(); }
  // Bytes from `offset` to the end; 0 where it lies beyond.
  std::uint64_t Remaining(std::uint64_t offset) const { return offset < Size() ? Size() - offset : 0; }
  void RequireRange(std::uint64_t offset, std::uint64_t size) const;

  template <typename Number>
  Number At(std::uint64_t offset) const {
    static_assert(sizeof(Number) <= 8);
    RequireRange(offset, sizeof(Number));
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
      const std::size_t place = order_ == std::endian::little ? sizeof(Number) - 1 - i : i;
      bits = bits << 8 | static_cast<unsigned char>(bytes_[static_cast<std::size_t>(offset) + place]);
    }
    return FromBits<Number>(bits);
  }

private:
  template <typename Number>
  static Number FromBits(std::uint64_t bits) {
    if constexpr (std::is_same_v<Number, double>) {
      return std::bit_cast<double>(bits);
    } else if constexpr (std::is_same_v<Number, float>) {
      return std::bit_cast<float>(static_cast<std::uint32_t>(bits));
    } else {
      return static_cast<Number>(bits);
    }
  }

  std::string_view bytes_;
  std::endian order_;
};

// How ordinates stand in a file.
struct SpcCoding {
  // The exponent that says: not scaled integers but IEEE numbers.
  static constexpr int kIeeeExponent = -128;

  int exponent = kIeeeExponent;
  bool is16Bit = false;        // applies to integers alone
  bool highWordFirst = false;  // the old form's 32-bit integers: high 16 bits first, each word little-endian

  bool IsIeee() const { return exponent == kIeeeExponent; }
  std::uint64_t BytesAPoint() const { return is16Bit && !IsIeee() ? 2 : 4; }
};

// `point_count` ordinates from `offset`: integer × 2^(exponent − 32), or − 16 for 16-bit, or IEEE numbers as
// they are. SpectrumReadError when they reach beyond the file or one of them is not finite; `what` begins its
// text.
std::vector<double> ReadOrdinates(const SpcBytes& bytes, std::uint64_t offset, std::uint64_t point_count,
                                  const SpcCoding& coding, const std::string& what);

}  // namespace veritane::plslibrary
