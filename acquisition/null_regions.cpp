// Reading null-region files.
#include "acquisition/null_regions.h"

#include <algorithm>

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"

namespace veritane::acquisition {

std::string NullRegionPath(const state::DataFolders& folders, const std::string& short_name) {
  return folders.appDir + short_name + ".nul";
}

std::vector<std::string> ReadNullRegionLines(const platform::FileSystem& files, const std::string& path) {
  if (!files.FileExists(path)) return {};
  platform::TextReader reader(files.ReadBytes(path), path);
  const int count = reader.ReadInt16();
  std::vector<std::string> lines;
  lines.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int region = 0; region < count; ++region) lines.push_back(reader.ReadLine());
  return lines;
}

std::string NullRegionText(const std::vector<std::string>& regions) {
  std::string text = platform::CountText(static_cast<long long>(regions.size())).append(platform::kLineEnd);
  for (const std::string& region : regions) text.append(region).append(platform::kLineEnd);
  return text;
}

void LoadNullRegions(const platform::FileSystem& files, state::ProgramState& state) {
  state.nullRegions.clear();
  const std::string path = NullRegionPath(state.folders, state.clmName);
  for (const std::string& line : ReadNullRegionLines(files, path)) {
    // "2400 - 2300": the start before the first hyphen, the end behind it.
    const std::size_t hyphen = line.find('-');
    if (hyphen == std::string::npos) {
      throw platform::RunTimeError(platform::ErrorNumber::kTypeMismatch,
                                   path + ": \"" + line + "\" is no region");
    }
    const std::string_view text(line);
    state.nullRegions.push_back({.start = platform::LeadingNumber(text.substr(0, hyphen)),
                                 .end = platform::LeadingNumber(text.substr(hyphen + 1))});
  }
}

}  // namespace veritane::acquisition
