// Spectra as traces of the chart, and one measured spectrum shown by itself.
#pragma once

#include "platform/chart.h"
#include "shell/state/spectrum_buffer.h"

#include <string>

namespace veritane::acquisition {

// The ordinates against their wavenumbers (`spacing` in cm⁻¹), for the chart.
platform::ChartSeries Trace(const std::string& title, const state::Ordinates& ordinates, double spacing);

struct OrdinateRange {
  double low = 0;
  double high = 0;
};

// Clears the chart and draws every point of the spectrum against its wavenumber. The x axis runs from the
// first to the last point, the y axis over the smallest and largest ordinate, which are returned. Error 9 for
// a spectrum without points.
OrdinateRange DrawSpectrum(platform::Chart& chart, const state::SpectrumBuffer& spectrum,
                           const std::string& title);

}  // namespace veritane::acquisition
