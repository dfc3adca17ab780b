// The incomplete beta function by its continued fraction, evaluated front to back (modified Lentz method).
#include "plslibrary/f_distribution.h"

#include <cmath>
#include <limits>

namespace veritane::plslibrary {

namespace {

double AwayFromZero(double value) {
  constexpr double kTiny = 1e-300;
  return std::abs(value) < kTiny ? kTiny : value;
}

// Converges fast for x below (a + 1) / (a + b + 2).
double ContinuedFraction(double a, double b, double x) {
  constexpr int kMostTerms = 10'000;
  double c = 1;
  double d = 1 / AwayFromZero(1 - (a + b) * x / (a + 1));
  double value = d;
  for (int m = 1; m <= kMostTerms; ++m) {
    const double even = m * (b - m) * x / ((a + 2 * m - 1) * (a + 2 * m));
    d = 1 / AwayFromZero(1 + even * d);
    c = AwayFromZero(1 + even / c);
    value *= c * d;
    const double odd = -(a + m) * (a + b + m) * x / ((a + 2 * m) * (a + 2 * m + 1));
    d = 1 / AwayFromZero(1 + odd * d);
    c = AwayFromZero(1 + odd / c);
    value *= c * d;
    if (std::abs(c * d - 1) < 4 * std::numeric_limits<double>::epsilon()) break;
  }
  return value;
}

double IncompleteBeta(double a, double b, double x) {
  if (x <= 0) return 0;
  if (x >= 1) return 1;
  if (x > (a + 1) / (a + b + 2)) return 1 - IncompleteBeta(b, a, 1 - x);
  const double front =
      std::lgamma(a + b) - std::lgamma(a) - std::lgamma(b) + a * std::log(x) + b * std::log1p(-x);
  return std::exp(front) * ContinuedFraction(a, b, x) / a;
}

}  // namespace

double FProbability(double ratio, double numerator_freedom, double denominator_freedom) {
  // A ratio too large to multiply is as good as certain.
  if (ratio > 1e200) return 1;
  const double weighted = numerator_freedom * ratio;
  return IncompleteBeta(numerator_freedom / 2, denominator_freedom / 2,
                        weighted / (weighted + denominator_freedom));
}

}  // namespace veritane::plslibrary
