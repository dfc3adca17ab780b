// Preparing and plotting Standard and sample.
#include "identification/spectrum_preparation.h"

#include "acquisition/null_regions.h"
#include "acquisition/spectrum_drawing.h"
#include "identification/correlation.h"
#include "identification/normalisation.h"
#include "shell/state/string_table.h"

#include <algorithm>

namespace veritane::identification {

using state::Text;
using state::TextId;

void PrepareSpectrum(acquisition::Bench& bench, acquisition::OpenedDocuments& opened,
                     state::SpectrumBuffer& spectrum, state::Ordinates& chart, state::Ordinates& transform) {
  const std::string& algorithm = bench.state.algorithm;
  chart = spectrum.Data;
  NormaliseToUnitRange(chart);
  if (algorithm == state::kFourier) transform = bench.session.ReadTransform();
  if (!LeavesDocumentOpen(algorithm)) opened.ReleaseLast()->CloseDocument(false);
  if (algorithm == state::kEuclidean) {
    acquisition::LoadNullRegions(bench.machine.files, bench.state);
    PrepareForEuclidean(spectrum, bench.state.nullRegions);
  }
}

bool LeavesDocumentOpen(const std::string& algorithm) {
  return algorithm == state::kPls || algorithm == state::kMarkPeaks;
}

void PlotTraces(state::ProgramState& state, platform::Chart& chart) {
  const platform::ChartBatch batch(chart);
  const auto sample =
      std::minmax_element(state.ChartSampData.values.begin(), state.ChartSampData.values.end());
  state.minm = *sample.first;
  state.maxm = *sample.second;
  // A prediction alone needs no Standard.
  if (!state.ChartRefData.Empty()) {
    const auto standard =
        std::minmax_element(state.ChartRefData.values.begin(), state.ChartRefData.values.end());
    state.minm = std::min(state.minm, *standard.first);
    state.maxm = std::max(state.maxm, *standard.second);
  }
  chart.SetTitles(Text(TextId::kWavenumberAxis), Text(TextId::kIntensityAxis));
  chart.SetSeries(state::kStandardSeries,
                  state.ChartRefData.Empty()
                      ? platform::ChartSeries()
                      : acquisition::Trace(Text(TextId::kStandardTrace), state.ChartRefData, state.Ref.Res));
  chart.SetSeries(state::kSampleSeries,
                  acquisition::Trace(Text(TextId::kSampleTrace), state.ChartSampData, state.Samp.Res));
  chart.RemoveSeriesFrom(state::kSampleSeries + 1);
  ResetChartLimits(state, chart);
}

void ResetChartLimits(state::ProgramState& state, platform::Chart& chart) {
  const platform::ChartBatch batch(chart);
  if (state.Ref.Res == 0) state.Ref.Res = state.Samp.Res;
  chart.SetX({.minimum = state.ChartSampData.lower * state.Ref.Res,
              .maximum = state.ChartSampData.Upper() * state.Ref.Res});
  const platform::AxisLimits y{.minimum = state.minm - 0.1 * state.maxm,
                               .maximum = state.maxm * 0.1 + state.maxm};
  chart.SetY(y);
  chart.SetY2(y);
}

}  // namespace veritane::identification
