// Numbers and ordinates of SPC files.
#include "plslibrary/spc_bytes.h"

#include "plslibrary/measured_spectrum.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veritane::plslibrary {

namespace {

// A 32-bit value whose 16-bit words stand in the other order.
std::uint32_t WordsSwapped(std::uint32_t bits) {
  return bits << 16 | bits >> 16;
}

double Integer(const SpcBytes& bytes, std::uint64_t offset, const SpcCoding& coding) {
  if (coding.is16Bit) return bytes.At<std::int16_t>(offset);
  const auto bits = bytes.At<std::uint32_t>(offset);
  return static_cast<std::int32_t>(coding.highWordFirst ? WordsSwapped(bits) : bits);
}

std::vector<double> IeeeNumbers(const SpcBytes& bytes, std::uint64_t offset, std::size_t points,
                                bool swap_words) {
  std::vector<double> y(points);
  for (std::size_t i = 0; i < points; ++i) {
    const auto bits = bytes.At<std::uint32_t>(offset + 4 * i);
    y[i] = std::bit_cast<float>(swap_words ? WordsSwapped(bits) : bits);
  }
  return y;
}

// Whether these can be a spectrum's ordinates. Numbers whose words stand in the wrong order are strewn over
// the whole range of exponents, far outside these bounds.
bool ArePlausible(const std::vector<double>& y) {
  return std::ranges::all_of(
      y, [](double value) { return value == 0 || (std::abs(value) > 1e-15 && std::abs(value) < 1e15); });
}

// Writers of the old form do not agree whether IEEE numbers, too, have their high word first. Only one order
// gives a spectrum; where both do, and differ, nobody can say which one is right.
std::vector<double> OldIeeeNumbers(const SpcBytes& bytes, std::uint64_t offset, std::size_t points,
                                   const std::string& what) {
  std::vector<double> plain = IeeeNumbers(bytes, offset, points, false);
  std::vector<double> swapped = IeeeNumbers(bytes, offset, points, true);
  const bool is_plain = ArePlausible(plain);
  const bool is_swapped = ArePlausible(swapped);
  if (is_plain && is_swapped && plain != swapped) {
    throw SpectrumReadError(what + "the order of the bytes in its IEEE numbers cannot be told");
  }
  if (!is_plain && !is_swapped) throw SpectrumReadError(what + "its IEEE numbers are no spectrum");
  return is_plain ? plain : swapped;
}

}  // namespace

void SpcBytes::RequireRange(std::uint64_t offset, std::uint64_t size) const {
  if (size > Remaining(offset)) {
    throw SpectrumReadError("the SPC file ends after " + std::to_string(Size()) + " bytes, but " +
                            std::to_string(size) + " bytes from " + std::to_string(offset) +
                            " on belong to it");
  }
}

std::vector<double> ReadOrdinates(const SpcBytes& bytes, std::uint64_t offset, std::uint64_t point_count,
                                  const SpcCoding& coding, const std::string& what) {
  // What lies in the file lies in memory too, so that a number of points which a size cannot hold is not
  // there.
  if (!std::in_range<std::size_t>(point_count) ||
      point_count > bytes.Remaining(offset) / coding.BytesAPoint()) {
    throw SpectrumReadError(what + "its " + std::to_string(point_count) +
                            " points reach beyond the end of the file");
  }
  const auto points = static_cast<std::size_t>(point_count);
  std::vector<double> y;
  if (coding.IsIeee()) {
    y = coding.highWordFirst ? OldIeeeNumbers(bytes, offset, points, what)
                             : IeeeNumbers(bytes, offset, points, false);
  } else {
    const int scale = coding.exponent - (coding.is16Bit ? 16 : 32);
    y.resize(points);
    for (std::size_t i = 0; i < points; ++i) {
      y[i] = std::ldexp(Integer(bytes, offset + coding.BytesAPoint() * i, coding), scale);
    }
  }
  const auto wrong = std::ranges::find_if(y, [](double value) { return !std::isfinite(value); });
  if (wrong != y.end()) {
    throw SpectrumReadError(what + "point " + std::to_string(wrong - y.begin() + 1) + " is not a number");
  }
  return y;
}

}  // namespace veritane::plslibrary
