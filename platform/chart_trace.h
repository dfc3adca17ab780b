// A trace of many points as the few lines that show all of it.
#pragma once

#include "platform/chart_layout.h"

#include <vector>

namespace veritane::platform {

// The lines of a series in surface units, inside the plot but for a small margin. Points closer together
// across than `column` are thinned to the first, lowest, highest and last of each column, so no peak is lost.
// A value that is not finite ends a line. Points without a partner (x longer than y, or the reverse) are left
// out.
std::vector<std::vector<Point>> TraceLines(const ChartSeries& series, const ChartLayout& layout,
                                           double column);

}  // namespace veritane::platform
