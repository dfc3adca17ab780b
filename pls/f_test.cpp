// F ratio and probability, every step checked.
#include "pls/f_test.h"

#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <cmath>

namespace veritane::pls {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

double Finite(double value) {
  if (!std::isfinite(value)) throw RunTimeError(ErrorNumber::kOverflow, Text(TextId::kFTest));
  return value;
}

double Quotient(double dividend, double divisor) {
  // Nothing by nothing is no number, and an overflow like every other that is none.
  if (divisor == 0 && dividend != 0) throw RunTimeError(ErrorNumber::kDivisionByZero, Text(TextId::kFTest));
  return Finite(dividend / divisor);
}

double NotNegative(double value) {
  if (value < 0) throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kFTest));
  return value;
}

}  // namespace

double FRatio(double residual, double first, double second) {
  return Quotient(Finite(residual * first), second);
}

double FProbability(double f, double d) {
  constexpr double kNumeratorDegrees = 1;
  const double by_d = Quotient(2, Finite(9 * d));
  const double by_numerator = 2 / (9 * kNumeratorDegrees);
  const double two_thirds_power = Finite(std::pow(NotNegative(f), 2.0 / 3.0));
  const double cube_root = std::pow(f, 1.0 / 3.0);
  const double s = std::sqrt(NotNegative(Finite(two_thirds_power * by_d + by_numerator)));
  const double z = Quotient(Finite(cube_root * (1 - by_d)) - (1 - by_numerator), s);
  const double t =
      Finite(1 + 0.196854 * z + 0.115194 * z * z + 0.000344 * std::pow(z, 3.0) + 0.019527 * std::pow(z, 4.0));
  return Finite(1 - 0.5 * std::pow(t, -4.0));
}

}  // namespace veritane::pls
