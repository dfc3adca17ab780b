// How marked bands are told apart: by colour, and by a hatching that needs no colour.
#pragma once

#include "platform/chart.h"
#include "platform/drawing_context.h"

#include <utility>
#include <vector>

namespace veritane::platform {

// A rectangle in surface units, from its top left corner.
struct ShadedArea {
  Point corner;
  double width = 0;
  double height = 0;
};

// The colour below the hatching.
Colour ShadeFill(RegionShade shade);

// Fills the area and hatches it. `unit` is the surface's font height; hatchings of neighbouring areas run on
// into each other.
void PaintShade(DrawingContext& surface, const ShadedArea& area, RegionShade shade, double unit);

// Parallel lines at 45°, `distance` apart across, cut at the area's edges: rising to the right, or falling.
std::vector<std::pair<Point, Point>> HatchLines(const ShadedArea& area, double distance, bool is_rising);

}  // namespace veritane::platform
