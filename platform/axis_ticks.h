// Where an axis has its ticks, and what stands beside them.
#pragma once

#include <string>
#include <vector>

namespace veritane::platform {

struct AxisTick {
  double value = 0;
  std::string label;
};

// Ticks at round values (1, 2 or 5 times a power of ten) from `from` to `to`, both included, in rising order;
// about `wanted` of them (at least 1). The limits may come in either order. One tick where the range is empty
// or finer than the values can tell apart, none where a limit is not finite. Labels have a decimal point in
// every locale and as many decimals as the step needs.
std::vector<AxisTick> AxisTicks(double from, double to, int wanted);

}  // namespace veritane::platform
