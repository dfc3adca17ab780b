// Baseline preparation: the straight line that fits a spectrum best is taken away from it.
#pragma once

#include "shell/state/spectrum_buffer.h"

namespace veritane::identification {

// A straight line over point numbers, held by its value at a point number in the middle of the fitted points:
// numbers of the size of the data, where slope and intercept at 0 would be the difference of large ones.
struct BaselineFit {
  double centre = 0;  // a point number, a whole or a half
  double level = 0;   // the line's value there
  double slope = 0;   // per point

  double At(double point_number) const { return level + slope * (point_number - centre); }
};

// The least-squares line through the first `point_count` ordinates, each at its point number (the lower bound
// is the first one's). `point_count` is rounded to a whole number, half to even.
//
// Error 9 for no ordinates or fewer than `point_count`; 11 for a `point_count` of 1 or less, to which no line
// can be fitted; 6 for point numbers or a `point_count` beyond 16 bits and for a result that is infinite or
// not a number.
BaselineFit FitBaseline(const state::Ordinates& ordinates, double point_count);

// Takes the line that FitBaseline finds away from every ordinate, also from those beyond `point_count`.
//
// A spectrum that is a straight line leaves nothing but rounding; it is set to exactly 0, for normalised it
// would look like a spectrum of noise, and equal noise compares as 100 percent.
//
// Errors as FitBaseline, and 6 for any ordinate that is infinite or not a number; the ordinates are of no use
// after an error 6.
void SubtractBaseline(state::Ordinates& ordinates, double point_count);

}  // namespace veritane::identification
