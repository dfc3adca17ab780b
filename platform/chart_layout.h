// Where the parts of a chart lie on its surface.
#pragma once

#include "platform/axis_ticks.h"
#include "platform/chart.h"
#include "platform/drawing_context.h"

#include <string>
#include <vector>

namespace veritane::platform {

// A text with its place (top left corner).
struct PlacedText {
  std::string text;
  Point at;
};

struct LegendEntry {
  std::size_t series = 0;
  Point line_begin;
  double line_length = 0;
  PlacedText title;
};

// A shade of marked bands and what it means.
struct ShadeEntry {
  RegionShade shade = RegionShade::kPlain;
  Point corner;  // of the swatch
  double width = 0;
  double height = 0;
  PlacedText meaning;
};

struct PlacedMarker {
  double x = 0;
  // Where its line begins: the top of the plot, or higher where it leads to its text.
  double top = 0;
  // Empty where there was no room left for it.
  PlacedText text;
};

struct ChartLayout {
  PlotArea plot;
  // The parts of the axes in view, replaced by something drawable where they are empty or not finite. The
  // second axis follows the first one's zoom.
  AxisLimits view_x;
  AxisLimits view_y;
  AxisLimits view_y2;
  bool has_second_axis = false;
  std::vector<AxisTick> x_ticks;
  std::vector<AxisTick> y_ticks;
  std::vector<AxisTick> y2_ticks;
  std::vector<PlacedText> header;
  PlacedText verdict;
  double verdict_height = 0;
  std::vector<LegendEntry> legend;
  std::vector<ShadeEntry> shades;
  std::vector<PlacedMarker> markers;

  // Wavenumbers fall from left to right.
  double PixelX(double wavenumber) const;
  double PixelY(double value, bool on_second_axis) const;
};

// `surface` gives its size and measures the texts; nothing is drawn.
ChartLayout LayOutChart(const Chart& chart, const DrawingContext& surface);

// The text, cut with "…" where it is wider than `width`.
std::string FitText(const std::string& text, double width, double height, TextWeight weight,
                    const DrawingContext& surface);

}  // namespace veritane::platform
