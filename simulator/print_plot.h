// The spectra on a printed page: traces over falling wavenumbers, axes, a legend and the markers with their
// wavenumbers.
#pragma once

#include "platform/drawing_context.h"
#include "simulator/print_fields.h"
#include "simulator/print_template.h"

namespace veritane::simulator {

// Draws over the whole surface. A spectrum that is asked for and missing is left out.
void DrawPlot(const PrintSpectrum& wanted, const PrintSubject& subject, platform::DrawingContext& surface);

// Where texts of this height (turned upwards, side by side) stand so that none lies on another: as near to
// their places as that allows, in the order of `places`, which rise, inside 0 to `width`. Fewer than asked
// for where there is no room for all.
std::vector<double> SpreadOut(const std::vector<double>& places, double height, double width);

}  // namespace veritane::simulator
