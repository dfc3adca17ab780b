// The probability of the F-test computed a second time, in long double.
#pragma once

#include <cmath>

namespace veritane::pls {

// Of the ratio with one and `degrees` degrees of freedom, written from the published approximations:
// Paulson's of the F distribution and Abramowitz and Stegun 26.2.19 of the normal one, not reflected. 2/9
// belongs to the one degree of freedom.
inline long double FTestProbability(long double ratio, long double degrees) {
  const long double a = 2 / 9.0L;
  const long double b = 2 / (9 * degrees);
  const long double root = std::cbrt(ratio);
  const long double x = ((1 - b) * root - (1 - a)) / std::sqrt(b * root * root + a);
  const long double polynomial = 1 + x * (0.196854L + x * (0.115194L + x * (0.000344L + x * 0.019527L)));
  return 1 - 1 / (2 * polynomial * polynomial * polynomial * polynomial);
}

}  // namespace veritane::pls
