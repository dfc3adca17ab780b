// Changing the panel in front.
#include "shell/state/spectrum_panel.h"

namespace veritane::state {

void ShowPanel(const SpectrumPanel& panel, const platform::Frame& front) {
  for (platform::Frame* frame : {&panel.fraMainMenu, &panel.fraSupervisorMode, &panel.fraSpectrum}) {
    if (frame != &front) frame->SetVisible(false);
  }
  for (platform::Frame* frame : {&panel.fraMainMenu, &panel.fraSupervisorMode, &panel.fraSpectrum}) {
    if (frame == &front) frame->SetVisible(true);
  }
  if (&front == &panel.fraSpectrum && !panel.txtResults.Text().empty()) {
    panel.frmResults.Show();
  } else {
    panel.frmResults.Hide();
  }
}

void ClearChart(platform::Chart& chart) {
  const platform::ChartBatch batch(chart);
  chart.RemoveSeriesFrom(0);
  chart.SetHeader({});
  chart.SetMarkers({});
  chart.SetRegions({});
  for (std::size_t i = 0; i < platform::Chart::kLabelCount; ++i) chart.SetLabel(i, "");
  chart.SetVerdictColour(platform::VerdictColour::kNone);
}

}  // namespace veritane::state
