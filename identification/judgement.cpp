// Clearing, comparing and showing the verdict.
#include "identification/judgement.h"

#include "identification/correlation.h"
#include "identification/lumivar.h"
#include "identification/mark_peaks.h"
#include "identification/pls_prediction.h"
#include "identification/result_records.h"
#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <limits>

namespace veritane::identification {

using state::Text;
using state::TextId;

void ClearResult(acquisition::Bench& bench) {
  bench.state.comparison = std::numeric_limits<double>::quiet_NaN();
  bench.panel.fraSpectrum.SetVisible(false);
  bench.panel.frmResults.Hide();
  bench.panel.txtResults.SetText("");
  bench.panel.lblResult.SetCaption("");
  state::ClearChart(bench.panel.chart);
}

bool CanJudge(const std::string& algorithm) {
  const auto known = {state::kEuclidean, state::kFourier, state::kLumivar, state::kPls, state::kMarkPeaks};
  return std::find(known.begin(), known.end(), algorithm) != known.end();
}

void Judge(acquisition::Bench& bench) {
  state::ProgramState& state = bench.state;
  if (state.algorithm == state::kFourier) {
    state.comparison = FourierComparison(state.RefFFTData, state.SampFFTData);
  } else if (state.algorithm == state::kEuclidean) {
    state.comparison = EuclideanComparison(state.Ref.Data, state.Samp.Data);
  } else if (state.algorithm == state::kLumivar) {
    Lumivar(bench);
  } else if (state.algorithm == state::kMarkPeaks) {
    MarkPeaks(bench);
  } else if (state.algorithm == state::kPls) {
    PredictByPls(bench);
  } else {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, state.algorithm);
  }
}

void ShowVerdict(const state::ProgramState& state, platform::Chart& chart) {
  const platform::ChartBatch batch(chart);
  if (!HasMatchQuality(state.algorithm) || state.options.addPassFail == 0) {
    chart.SetLabel(platform::Chart::kVerdictLabel, "");
    chart.SetVerdictColour(platform::VerdictColour::kNone);
    return;
  }
  const bool passes = Passes(state.comparison, state.options.passThreshold);
  chart.SetLabel(platform::Chart::kVerdictLabel, Text(passes ? TextId::kPass : TextId::kFail));
  chart.SetVerdictColour(passes ? platform::VerdictColour::kPass : platform::VerdictColour::kFail);
}

}  // namespace veritane::identification
