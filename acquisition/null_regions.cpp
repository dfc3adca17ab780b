// Reading null-region files.
#include "acquisition/null_regions.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "shell/state/string_table.h"

namespace veritane::acquisition {

std::string NullRegionPath(const state::DataFolders& folders, const std::string& short_name) {
  return folders.appDir + short_name + ".nul";
}

std::vector<std::string> ReadNullRegionLines(const platform::FileSystem& files, const std::string& path) {
  if (!files.FileExists(path)) return {};
  return platform::ReadCountedLines(files.ReadBytes(path), path);
}

void LoadNullRegions(const platform::FileSystem& files, state::ProgramState& state) {
  state.nullRegions.clear();
  const std::string path = NullRegionPath(state.folders, state.clmName);
  for (const std::string& line : ReadNullRegionLines(files, path)) {
    // "2400 - 2300": the start before the first hyphen, the end behind it.
    const std::size_t hyphen = line.find('-');
    if (hyphen == std::string::npos) {
      throw platform::RunTimeError(platform::ErrorNumber::kTypeMismatch,
                                   state::Text(state::TextId::kNoNullRegion, {path, line}));
    }
    const std::string_view text(line);
    state.nullRegions.push_back({.start = platform::LeadingNumber(text.substr(0, hyphen)),
                                 .end = platform::LeadingNumber(text.substr(hyphen + 1))});
  }
}

}  // namespace veritane::acquisition
