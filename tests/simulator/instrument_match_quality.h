// The match quality that the program's correlation comparison would give, computed here by its formula alone
// so that the instrument is not judged by the code that it feeds.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace veritane::simulator::instrument_tests {

// Takes out the least-squares line over the point numbers and stretches the rest over 0 to 1.
inline std::vector<double> Prepared(std::vector<double> values) {
  const auto n = static_cast<double>(values.size());
  double sum_x = 0, sum_y = 0, sum_xx = 0, sum_xy = 0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto x = static_cast<double>(i);
    sum_x += x;
    sum_y += values[i];
    sum_xx += x * x;
    sum_xy += x * values[i];
  }
  const double slope = (n * sum_xy - sum_x * sum_y) / (n * sum_xx - sum_x * sum_x);
  const double intercept = (sum_y - slope * sum_x) / n;
  for (std::size_t i = 0; i < values.size(); ++i) values[i] -= slope * static_cast<double>(i) + intercept;
  const auto [least, most] = std::minmax_element(values.begin(), values.end());
  const double low = *least;
  const double span = *most - low;
  for (double& value : values) value = (value - low) / span;
  return values;
}

// In per cent; 100 for equal spectra.
inline double MatchQuality(const std::vector<double>& standard, const std::vector<double>& sample) {
  const std::vector<double> s = Prepared(standard);
  const std::vector<double> x = Prepared(sample);
  double ss = 0, xx = 0, sx = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    ss += s[i] * s[i];
    xx += x[i] * x[i];
    sx += s[i] * x[i];
  }
  const double r = sx / (std::sqrt(ss) * std::sqrt(xx));
  return std::max(0.0, 100 * (1 - std::sqrt(std::abs(1 - r))));
}

}  // namespace veritane::simulator::instrument_tests
