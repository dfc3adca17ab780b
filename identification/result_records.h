// The two records of the operator's work: the run log and a product's histogram file.
#pragma once

#include "platform/file_system.h"
#include "platform/machine.h"
#include "shell/state/program_state.h"

#include <string>

namespace veritane::identification {

// Whether the match quality reaches the threshold. Equality passes; a value that cannot be compared fails.
inline bool Passes(double comparison, double pass_threshold) {
  return comparison >= pass_threshold;
}

// Whether the algorithm ends in a match quality that is shown and recorded.
bool HasMatchQuality(const std::string& algorithm);

// One line of the run log: a sample was filed.
std::string RunLogLine(const std::string& operator_name, const std::string& sample_file,
                       const platform::RegionalFormat& regional, const platform::DateTime& now);

// One sample with its verdict.
struct SampleResult {
  std::string sampleName;
  std::string productId;  // the whole Product ID as it was entered
  std::string algorithm;
  double comparison = 0;     // percent
  double passThreshold = 0;  // percent
  std::string operatorName;
};

// Appends the sample's line to the histogram file, the sample file's path with its last three characters
// replaced by "his", which begins with a header line. Each line goes out in one write.
void AppendHistogramLine(platform::FileSystem& files, const std::string& sample_file,
                         const SampleResult& result, const platform::RegionalFormat& regional,
                         const platform::DateTime& now);

}  // namespace veritane::identification
