// A background or a Standard on the chart.
#include "acquisition/spectrum_drawing.h"

#include "platform/run_time_error.h"
#include "shell/state/spectrum_panel.h"
#include "shell/state/string_table.h"

#include <algorithm>

namespace veritane::acquisition {

platform::ChartSeries Trace(const std::string& title, const state::Ordinates& ordinates, double spacing) {
  platform::ChartSeries series{.title = title, .x = {}, .y = ordinates.values};
  series.x.reserve(ordinates.Size());
  for (std::size_t k = 0; k < ordinates.Size(); ++k) {
    series.x.push_back((ordinates.lower + static_cast<double>(k)) * spacing);
  }
  return series;
}

OrdinateRange DrawSpectrum(platform::Chart& chart, const state::SpectrumBuffer& spectrum,
                           const std::string& title) {
  if (spectrum.Data.Empty()) {
    throw platform::RunTimeError(platform::ErrorNumber::kSubscript,
                                 state::Text(state::TextId::kMeasuredNothing));
  }
  const platform::ChartBatch batch(chart);
  state::ClearChart(chart);
  platform::ChartSeries series = Trace(title, spectrum.Data, spectrum.Res);
  const auto [low, high] = std::minmax_element(series.y.begin(), series.y.end());
  const OrdinateRange range{.low = *low, .high = *high};
  chart.SetX({series.x.front(), series.x.back()});
  chart.SetY({range.low, range.high});
  chart.SetSeries(state::kStandardSeries, std::move(series));
  return range;
}

}  // namespace veritane::acquisition
