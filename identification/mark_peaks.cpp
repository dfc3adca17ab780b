// Reading peak positions and marking them.
#include "identification/mark_peaks.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/texts.h"
#include "platform/utf8.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace veritane::identification {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

constexpr std::string_view kSeparators = " \t,;\r\n";

// The number of the line that begins behind `before`; lines end CR LF, LF or CR.
std::size_t LineAfter(std::string_view before) {
  std::size_t line = 1;
  for (std::size_t i = 0; i < before.size(); ++i) {
    const bool is_pair = before[i] == '\r' && i + 1 < before.size() && before[i + 1] == '\n';
    if (before[i] == '\n' || (before[i] == '\r' && !is_pair)) ++line;
  }
  return line;
}

RunTimeError NoPeakPosition(std::string_view text, std::size_t begin, std::string_view field,
                            const std::string& path) {
  // A file of another kind may be one long field.
  constexpr std::size_t kMostQuoted = 40;
  const std::string line = std::to_string(LineAfter(text.substr(0, begin)));
  const std::string place = platform::Text(platform::TextId::kLineOfFile, {path, line});
  return RunTimeError(ErrorNumber::kTypeMismatch,
                      Text(TextId::kNoPeakPosition, {place, platform::Characters(field, 0, kMostQuoted)}));
}

}  // namespace

std::vector<double> ReadPeakFile(std::string_view bytes, const std::string& path) {
  const std::string decoded = platform::DecodeText(bytes);
  const std::string_view text = decoded;
  std::vector<double> peaks;
  std::size_t begin = text.find_first_not_of(kSeparators);
  while (begin != std::string_view::npos) {
    const std::size_t end = std::min(text.find_first_of(kSeparators, begin), text.size());
    const std::string_view field = text.substr(begin, end - begin);
    const std::optional<double> peak = platform::ParseNumber(field);
    if (!peak) throw NoPeakPosition(text, begin, field, path);
    peaks.push_back(*peak);
    begin = text.find_first_not_of(kSeparators, end);
  }
  if (peaks.empty()) throw RunTimeError(ErrorNumber::kPastEndOfFile, Text(TextId::kEmptyPeakFile, {path}));
  return peaks;
}

std::vector<double> PeaksOfProduct(const acquisition::Bench& bench) {
  const std::string& path = bench.state.calfilename;
  if (path.empty()) throw RunTimeError(ErrorNumber::kFileNotFound, Text(TextId::kNoPeakFile));
  return ReadPeakFile(bench.machine.files.ReadBytes(path), path);
}

void MarkPeaks(acquisition::Bench& bench) {
  state::ProgramState& state = bench.state;
  state.peakPositions.clear();
  state.peakPositions = PeaksOfProduct(bench);
  state.comparison = std::numeric_limits<double>::quiet_NaN();

  platform::Chart& chart = bench.panel.chart;
  const platform::ChartBatch batch(chart);
  chart.RemoveSeriesFrom(state::kOwnSeries);
  for (std::size_t i = 0; i < platform::Chart::kLabelCount; ++i) chart.SetLabel(i, "");
  std::vector<platform::ChartMarker> markers;
  for (const double peak : state.peakPositions) {
    markers.push_back({.x = peak, .text = platform::PlainNumberText(platform::RoundToTwoDecimals(peak))});
  }
  chart.SetMarkers(std::move(markers));
}

}  // namespace veritane::identification
