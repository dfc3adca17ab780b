// Writing the run log's and the histogram file's lines.
#include "identification/result_records.h"

#include "platform/number_text.h"
#include "platform/text_file.h"

namespace veritane::identification {

namespace {

constexpr std::string_view kHeader =
    "Sample Name,Date/Time,Product ID,Algorithm,Pass/Fail,Comparison,Operator Name";

std::string HistogramPath(const std::string& sample_file) {
  constexpr std::size_t kExtension = 3;
  return sample_file.substr(0, sample_file.size() - kExtension) + "his";
}

}  // namespace

bool HasMatchQuality(const std::string& algorithm) {
  return algorithm == state::kEuclidean || algorithm == state::kFourier;
}

std::string RunLogLine(const std::string& operator_name, const std::string& sample_file,
                       const platform::RegionalFormat& regional, const platform::DateTime& now) {
  return (operator_name + "," + sample_file + "," + regional.ShortDate(now) + "," + regional.ShortTime(now))
      .append(platform::kLineEnd);
}

void AppendHistogramLine(platform::FileSystem& files, const std::string& sample_file,
                         const SampleResult& result, const platform::RegionalFormat& regional,
                         const platform::DateTime& now) {
  const std::string path = HistogramPath(sample_file);
  std::string text;
  if (!files.FileExists(path) || files.ReadBytes(path).empty())
    text.append(kHeader).append(platform::kLineEnd);
  const std::string quality =
      HasMatchQuality(result.algorithm) ? platform::NumberText(result.comparison) : "";
  for (const std::string& field :
       {result.sampleName, regional.GeneralDate(now), result.productId, result.algorithm,
        std::string(Passes(result.comparison, result.passThreshold) ? "Pass" : "Fail"), quality}) {
    text += field + ",";
  }
  text.append(result.operatorName).append(platform::kLineEnd);
  files.OpenForAppending(path)->Append(text);
}

}  // namespace veritane::identification
