// The choosers for calibration and peak files.
#include "acquisition/additional_file.h"

#include "shell/state/messages.h"
#include "shell/state/program_state.h"

namespace veritane::acquisition {

using state::Text;
using state::TextId;

namespace {

constexpr const char* kCalibrationFilter = "(*.cal)|*.cal";
constexpr const char* kPeakFilter = "(*.txt)|*.txt";

}  // namespace

bool NeedsAdditionalFile(const std::string& algorithm) {
  return algorithm == state::kPls || algorithm == state::kMarkPeaks;
}

std::optional<std::string> ChooseAdditionalFile(platform::Desktop& desktop, const state::DataFolders& folders,
                                                const std::string& algorithm) {
  if (!NeedsAdditionalFile(algorithm)) return std::nullopt;
  const bool is_calibration = algorithm == state::kPls;
  auto path = desktop.ChooseFile(
      {.title = Text(is_calibration ? TextId::kSelectCalibrationFile : TextId::kSelectPeakFile),
       .filter = is_calibration ? kCalibrationFilter : kPeakFilter,
       .folder = folders.stdsDir});
  if (path && path->find_first_of("\"\r\n") != std::string::npos) {
    state::PlainNotice(desktop, Text(TextId::kCannotStandInTable, {*path}));
    return std::nullopt;
  }
  return path;
}

}  // namespace veritane::acquisition
