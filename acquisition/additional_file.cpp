// The choosers for calibration and peak files.
#include "acquisition/additional_file.h"

#include "shell/state/program_state.h"
#include "shell/state/string_table.h"

namespace veritane::acquisition {

using state::Text;
using state::TextId;

bool NeedsAdditionalFile(const std::string& algorithm) {
  return algorithm == state::kPls || algorithm == state::kMarkPeaks;
}

std::optional<std::string> ChooseAdditionalFile(platform::Desktop& desktop, const state::DataFolders& folders,
                                                const std::string& algorithm) {
  if (algorithm == state::kPls) {
    return desktop.ChooseFile({.title = Text(TextId::kSelectCalibrationFile),
                               .filter = "(*.cal)|*.cal",
                               .folder = folders.stdsDir});
  }
  if (algorithm == state::kMarkPeaks) {
    return desktop.ChooseFile(
        {.title = Text(TextId::kSelectPeakFile), .filter = "(*.txt)|*.txt", .folder = folders.stdsDir});
  }
  return std::nullopt;
}

}  // namespace veritane::acquisition
