// The choosers for calibration and peak files.
#include "acquisition/additional_file.h"

#include "shell/state/program_state.h"

namespace veritane::acquisition {

bool NeedsAdditionalFile(const std::string& algorithm) {
  return algorithm == state::kPls || algorithm == state::kMarkPeaks;
}

std::optional<std::string> ChooseAdditionalFile(platform::Desktop& desktop, const state::DataFolders& folders,
                                                const std::string& algorithm) {
  if (algorithm == state::kPls) {
    return desktop.ChooseFile(
        {.title = "Select calibration file", .filter = "(*.cal)|*.cal", .folder = folders.stdsDir});
  }
  if (algorithm == state::kMarkPeaks) {
    return desktop.ChooseFile(
        {.title = "Select peak file", .filter = "(*.txt)|*.txt", .folder = folders.stdsDir});
  }
  return std::nullopt;
}

}  // namespace veritane::acquisition
