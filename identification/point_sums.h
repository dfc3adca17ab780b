// Walks over the points of a spectrum two at a time, for sums and extremes that keep up with the processor.
//
// Compilers may not reorder floating-point additions, so a plain loop adds one point after the other and
// waits for each. Here two neighbouring points are one value (the width of a vector register on every x86-64
// and ARM), and two such values go side by side. A step is written once, as a generic lambda that takes a
// position: PairAt for two points, PointAt for the last ones.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <span>

namespace veritane::identification {

// Two neighbouring ordinates; arithmetic and comparisons work on both at once.
using Pair [[gnu::vector_size(2 * sizeof(double))]] = double;

struct PairAt {
  std::size_t first;
  Pair number;  // of the two points, counted from 0

  Pair Of(std::span<const double> values) const {
    Pair pair;
    std::memcpy(&pair, values.data() + first, sizeof pair);
    return pair;
  }
  void Put(std::span<double> values, Pair pair) const {
    std::memcpy(values.data() + first, &pair, sizeof pair);
  }
};

struct PointAt {
  std::size_t first;
  double number;

  double Of(std::span<const double> values) const { return values[first]; }
  void Put(std::span<double> values, double value) const { values[first] = value; }
};

// For numbers and pairs alike.
template <typename Value>
Value Smaller(Value a, Value b) {
  return a < b ? a : b;
}
template <typename Value>
Value Larger(Value a, Value b) {
  return a > b ? a : b;
}

// The sums of the `Count` terms that `terms(position)` gives, over the points from 0 to `points` - 1. Equal
// terms give equal sums, to the last bit.
template <std::size_t Count, typename Terms>
std::array<double, Count> SumsOverPoints(std::size_t points, Terms terms) {
  std::array<Pair, Count> even{};
  std::array<Pair, Count> odd{};
  std::array<double, Count> rest{};
  std::size_t point = 0;
  Pair number{0, 1};
  for (; point + 4 <= points; point += 4, number += 4) {
    const std::array<Pair, Count> even_terms = terms(PairAt{point, number});
    const std::array<Pair, Count> odd_terms = terms(PairAt{point + 2, number + 2});
#pragma GCC unroll 4
    for (std::size_t sum = 0; sum < Count; ++sum) {
      even[sum] += even_terms[sum];
      odd[sum] += odd_terms[sum];
    }
  }
  for (; point < points; ++point) {
    const std::array<double, Count> last_terms = terms(PointAt{point, static_cast<double>(point)});
    for (std::size_t sum = 0; sum < Count; ++sum) rest[sum] += last_terms[sum];
  }

  std::array<double, Count> sums{};
  for (std::size_t sum = 0; sum < Count; ++sum) {
    const Pair both = even[sum] + odd[sum];
    sums[sum] = both[0] + both[1] + rest[sum];
  }
  return sums;
}

}  // namespace veritane::identification
