// The parts of the main window that workflows draw their results into.
#pragma once

#include "platform/chart.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::state {

struct SpectrumPanel {
  platform::Frame& fraMainMenu;
  platform::Frame& fraSupervisorMode;
  platform::Frame& fraSpectrum;
  platform::Chart& chart;
  // The line under the chart: sample, match quality, date, operator.
  platform::Label& lblResult;
  // The text report of a comparison.
  platform::TextBox& txtResults;
  // The window of that report.
  platform::Form& frmResults;
};

// Brings one of the three panels to the front. The results window comes with the spectrum panel when there is
// a report to show, and goes with it.
void ShowPanel(const SpectrumPanel& panel, const platform::Frame& front);

// Takes everything off the chart but its axes: traces, bands, markers, header, labels.
void ClearChart(platform::Chart& chart);

// The series of the chart: the Standard first, the sample second; two more belong to single algorithms.
inline constexpr std::size_t kStandardSeries = 0;
inline constexpr std::size_t kSampleSeries = 1;
inline constexpr std::size_t kOwnSeries = 4;

}  // namespace veritane::state
