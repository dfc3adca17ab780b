// Filling and hatching of marked bands.
#include "platform/chart_shading.h"

#include <algorithm>
#include <cmath>

namespace veritane::platform {

namespace {

// The darker in print, the denser the hatching: each kind of telling them apart works alone.
struct Shading {
  Colour fill;
  Colour line;
  double distance = 0;  // of the hatching's lines in font heights; 0 for none
  bool isCrossed = false;
};

Shading ShadingOf(RegionShade shade) {
  switch (shade) {
    case RegionShade::kFaint:
      return {.fill = {229, 243, 233}, .line = {196, 222, 204}};
    case RegionShade::kLight:
      return {.fill = {255, 245, 204}, .line = {216, 192, 110}, .distance = 1.1};
    case RegionShade::kMedium:
      return {.fill = {252, 224, 194}, .line = {218, 158, 104}, .distance = 0.5};
    case RegionShade::kStrong:
      return {.fill = {240, 204, 210}, .line = {196, 116, 132}, .distance = 0.5, .isCrossed = true};
    case RegionShade::kPlain:
      break;
  }
  return {.fill = {240, 228, 190, 150}, .line = {}};
}

}  // namespace

Colour ShadeFill(RegionShade shade) {
  return ShadingOf(shade).fill;
}

std::vector<std::pair<Point, Point>> HatchLines(const ShadedArea& area, double distance, bool is_rising) {
  const double left = area.corner.x;
  const double top = area.corner.y;
  const double right = left + area.width;
  const double bottom = top + area.height;
  std::vector<std::pair<Point, Point>> lines;
  if (!(distance > 0) || !(area.width > 0) || !(area.height > 0)) return lines;
  // A rising line has x + y = c, a falling one x - y = c, with c a multiple of the distance.
  const double least = is_rising ? left + top : left - bottom;
  const double most = is_rising ? right + bottom : right - top;
  for (double number = std::ceil(least / distance); number * distance <= most; ++number) {
    const double c = number * distance;
    const double from = std::max(left, is_rising ? c - bottom : c + top);
    const double to = std::min(right, is_rising ? c - top : c + bottom);
    if (!(from < to)) continue;
    const auto y_at = [&](double x) { return std::clamp(is_rising ? c - x : x - c, top, bottom); };
    lines.push_back({{from, y_at(from)}, {to, y_at(to)}});
  }
  return lines;
}

void PaintShade(DrawingContext& surface, const ShadedArea& area, RegionShade shade, double unit) {
  const Shading shading = ShadingOf(shade);
  surface.FillRectangle(area.corner, area.width, area.height, shading.fill);
  const double hair = unit / 16;
  for (const bool is_rising : {true, false}) {
    if (!is_rising && !shading.isCrossed) break;
    for (const auto& [from, to] : HatchLines(area, shading.distance * unit, is_rising)) {
      surface.Line(from, to, hair, shading.line);
    }
  }
  if (shade == RegionShade::kPlain) return;
  // Where one band ends and the next begins.
  const double right = area.corner.x + area.width;
  const double bottom = area.corner.y + area.height;
  for (const double x : {area.corner.x, right}) {
    surface.Line({x, area.corner.y}, {x, bottom}, hair, shading.line);
  }
  for (const double y : {area.corner.y, bottom})
    surface.Line({area.corner.x, y}, {right, y}, hair, shading.line);
}

}  // namespace veritane::platform
