// The F distribution, for judging residuals and numbers of factors.
#pragma once

namespace veritane::plslibrary {

// The probability that a value of the F distribution lies at or below `ratio` (not negative), both degrees of
// freedom at least 1. By the continued fraction of the incomplete beta function (Abramowitz and Stegun,
// Handbook of Mathematical Functions, 26.5.8 and 26.6.2), to about 12 digits.
double FProbability(double ratio, double numerator_freedom, double denominator_freedom);

}  // namespace veritane::plslibrary
