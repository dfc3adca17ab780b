// The F-test of a spectrum's residual: the ratio and its probability, by Paulson's normal approximation of
// the F distribution (Annals of Mathematical Statistics 13 (1942) 233) with 1 numerator degree of freedom,
// and the polynomial of Abramowitz and Stegun 26.2.19 for the normal distribution.
#pragma once

namespace veritane::pls {

// residual × first / second. Error 11 for a second of 0, 6 for a result that overflows or is no number.
double FRatio(double residual, double first, double second);

// The probability that belongs to the ratio `f` with `d` denominator degrees of freedom; d is not 0. The
// polynomial takes negative arguments as they are, without the reflection that 26.2.19 asks for: stored
// results were made this way. Error 5 for the root or broken power of a negative number, 11 and 6 as above.
double FProbability(double f, double d);

}  // namespace veritane::pls
