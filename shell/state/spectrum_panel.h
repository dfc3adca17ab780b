// The parts of the main window that workflows draw their results into.
#pragma once

#include "platform/chart.h"
#include "platform/controls.h"

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
};

// Brings one of the three panels to the front.
void ShowPanel(const SpectrumPanel& panel, const platform::Frame& front);

// The series of the chart: the Standard first, the sample second; two more belong to single algorithms.
inline constexpr std::size_t kStandardSeries = 0;
inline constexpr std::size_t kSampleSeries = 1;
inline constexpr std::size_t kOwnSeries = 4;

}  // namespace veritane::state
