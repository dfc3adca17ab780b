// Draws a chart on any surface: a window, a picture, a printed page. Everything is measured by the surface's
// font height, so that a page and a screen look alike.
#pragma once

#include "platform/chart.h"
#include "platform/chart_layout.h"
#include "platform/drawing_context.h"

namespace veritane::platform {

// Draws the chart over the whole surface, on white, and returns where its parts lie. The caller passes the
// plot area on to Chart::SetPlotArea where pixels are to be read as data.
ChartLayout DrawChart(const Chart& chart, DrawingContext& surface);

// The colour of a series, told apart by colour-blind people too; they repeat after the seventh.
Colour SeriesColour(std::size_t series);

}  // namespace veritane::platform
