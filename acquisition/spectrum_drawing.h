// Showing one measured spectrum by itself.
#pragma once

#include <string>

#include "platform/chart.h"
#include "shell/state/spectrum_buffer.h"

namespace veritane::acquisition {

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
