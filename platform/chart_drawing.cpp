// The chart's parts, from the back to the front.
#include "platform/chart_drawing.h"

#include "platform/chart_shading.h"
#include "platform/chart_trace.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace veritane::platform {

namespace {

constexpr Colour kPaper{255, 255, 255};
constexpr Colour kInk{32, 36, 40};
constexpr Colour kQuietInk{84, 92, 100};
constexpr Colour kGridLine{226, 230, 234};
constexpr Colour kPlotBorder{176, 182, 188};
constexpr Colour kMarkerLine{120, 50, 130, 190};
constexpr Colour kMarkerText{96, 32, 108};
constexpr Colour kPass{10, 118, 56};
constexpr Colour kFail{190, 24, 30};

Colour VerdictInk(VerdictColour verdict) {
  switch (verdict) {
    case VerdictColour::kPass:
      return kPass;
    case VerdictColour::kFail:
      return kFail;
    case VerdictColour::kNone:
      break;
  }
  return kInk;
}

// One drawing of one chart.
class Painter {
public:
  Painter(const Chart& chart, const ChartLayout& layout, DrawingContext& surface)
      : chart_(chart),
        layout_(layout),
        surface_(surface),
        plot_(layout.plot),
        unit_(surface.FontHeight()),
        hair_(unit_ / 16),
        right_(plot_.left + plot_.width),
        bottom_(plot_.top + plot_.height) {}

  void Paint() {
    surface_.FillRectangle({0, 0}, surface_.Width(), surface_.Height(), kPaper);
    PaintRegions();
    PaintGrid();
    PaintTraces();
    PaintMarkers();
    PaintAxes();
    PaintHeader();
    PaintLegend();
  }

private:
  void PaintRegions() {
    surface_.BeginClip({plot_.left, plot_.top}, plot_.width, plot_.height);
    for (const ChartRegion& region : chart_.Regions()) {
      if (!std::isfinite(region.low) || !std::isfinite(region.high)) continue;
      const double from = std::clamp(layout_.PixelX(std::max(region.low, region.high)), plot_.left, right_);
      const double to = std::clamp(layout_.PixelX(std::min(region.low, region.high)), plot_.left, right_);
      if (to <= from) continue;
      PaintShade(surface_, {{from, plot_.top}, to - from, plot_.height}, region.shade, unit_);
      PaintRegionText(region, from, to - from);
    }
    surface_.EndClip();
  }

  void PaintRegionText(const ChartRegion& region, double left, double width) {
    const double height = unit_ * 0.85;
    const double margin = unit_ * 0.2;
    const TextSize size = surface_.Measure(region.text, height, TextWeight::kNormal);
    if (region.text.empty() || size.width > width - 2 * margin) return;
    const Point at{left + margin, plot_.top + margin};
    surface_.FillRectangle(at, size.width, size.height, ShadeFill(region.shade));
    surface_.Text(region.text, at, height, TextWeight::kNormal, kQuietInk);
  }

  void PaintGrid() {
    for (const AxisTick& tick : layout_.x_ticks) {
      const double x = layout_.PixelX(tick.value);
      surface_.Line({x, plot_.top}, {x, bottom_}, hair_, kGridLine);
    }
    for (const AxisTick& tick : layout_.y_ticks) {
      const double y = layout_.PixelY(tick.value, false);
      surface_.Line({plot_.left, y}, {right_, y}, hair_, kGridLine);
    }
  }

  void PaintTraces() {
    surface_.BeginClip({plot_.left, plot_.top}, plot_.width, plot_.height);
    for (std::size_t i = 0; i < chart_.Series().size(); ++i) {
      // The first trace is a little broader, so that it still shows under one that runs over it.
      const double width = hair_ * (i == 0 ? 2.2 : 1.4);
      for (const std::vector<Point>& line : TraceLines(chart_.Series()[i], layout_, unit_ / 32)) {
        surface_.Polyline(line, width, SeriesColour(i));
      }
    }
    surface_.EndClip();
  }

  // All lines first: a text stays readable where the line to a text above it passes by.
  void PaintMarkers() {
    for (const PlacedMarker& marker : layout_.markers) {
      surface_.Line({marker.x, marker.top}, {marker.x, bottom_}, hair_ * 1.2, kMarkerLine);
    }
    for (const PlacedMarker& marker : layout_.markers) {
      if (marker.text.text.empty()) continue;
      const double height = unit_ * 0.9;
      const TextSize size = surface_.Measure(marker.text.text, height, TextWeight::kNormal);
      surface_.FillRectangle(marker.text.at, size.width, size.height, kPaper);
      surface_.Text(marker.text.text, marker.text.at, height, TextWeight::kNormal, kMarkerText);
    }
  }

  void PaintAxes() {
    surface_.Line({plot_.left, plot_.top}, {right_, plot_.top}, hair_, kPlotBorder);
    surface_.Line({right_, plot_.top}, {right_, bottom_}, hair_,
                  layout_.has_second_axis ? kInk : kPlotBorder);
    surface_.Line({plot_.left, plot_.top}, {plot_.left, bottom_}, hair_ * 1.4, kInk);
    surface_.Line({plot_.left, bottom_}, {right_, bottom_}, hair_ * 1.4, kInk);
    PaintXTicks();
    PaintYTicks(layout_.y_ticks, false);
    if (layout_.has_second_axis) PaintYTicks(layout_.y2_ticks, true);
    PaintTitles();
  }

  void PaintXTicks() {
    const double length = unit_ * 0.35;
    for (const AxisTick& tick : layout_.x_ticks) {
      const double x = layout_.PixelX(tick.value);
      surface_.Line({x, bottom_}, {x, bottom_ + length}, hair_, kInk);
      const double width = surface_.Measure(tick.label, unit_, TextWeight::kNormal).width;
      surface_.Text(tick.label, {x - width / 2, bottom_ + unit_ * 0.5}, unit_, TextWeight::kNormal, kInk);
    }
  }

  void PaintYTicks(const std::vector<AxisTick>& ticks, bool on_right) {
    const double length = unit_ * 0.35;
    for (const AxisTick& tick : ticks) {
      const double y = layout_.PixelY(tick.value, on_right);
      const TextSize size = surface_.Measure(tick.label, unit_, TextWeight::kNormal);
      const double axis = on_right ? right_ : plot_.left;
      const double outward = on_right ? length : -length;
      surface_.Line({axis, y}, {axis + outward, y}, hair_, kInk);
      const double text_left = on_right ? axis + unit_ * 0.6 : axis - unit_ * 0.6 - size.width;
      surface_.Text(tick.label, {text_left, y - size.height / 2}, unit_, TextWeight::kNormal, kInk);
    }
  }

  void PaintTitles() {
    if (!chart_.XTitle().empty()) {
      const double width = surface_.Measure(chart_.XTitle(), unit_, TextWeight::kNormal).width;
      surface_.Text(chart_.XTitle(), {plot_.left + (plot_.width - width) / 2, bottom_ + unit_ * 1.9}, unit_,
                    TextWeight::kNormal, kInk);
    }
    if (!chart_.YTitle().empty()) {
      const double length = surface_.Measure(chart_.YTitle(), unit_, TextWeight::kNormal).width;
      surface_.TextUpwards(chart_.YTitle(), {unit_ * 0.5, plot_.top + (plot_.height + length) / 2}, unit_,
                           kInk);
    }
  }

  void PaintHeader() {
    for (const PlacedText& line : layout_.header) {
      surface_.Text(line.text, line.at, unit_, TextWeight::kNormal, kInk);
    }
    if (layout_.verdict.text.empty()) return;
    surface_.Text(layout_.verdict.text, layout_.verdict.at, layout_.verdict_height, TextWeight::kBold,
                  VerdictInk(chart_.Verdict()));
  }

  void PaintLegend() {
    for (const LegendEntry& entry : layout_.legend) {
      const Point end{entry.line_begin.x + entry.line_length, entry.line_begin.y};
      surface_.Line(entry.line_begin, end, hair_ * 3, SeriesColour(entry.series));
      surface_.Text(entry.title.text, entry.title.at, unit_, TextWeight::kNormal, kInk);
    }
    for (const ShadeEntry& entry : layout_.shades) {
      PaintShade(surface_, {entry.corner, entry.width, entry.height}, entry.shade, unit_);
      surface_.Text(entry.meaning.text, entry.meaning.at, unit_, TextWeight::kNormal, kInk);
    }
  }

  const Chart& chart_;
  const ChartLayout& layout_;
  DrawingContext& surface_;
  const PlotArea& plot_;
  const double unit_;
  // The thinnest line: one pixel on a usual screen.
  const double hair_;
  const double right_;
  const double bottom_;
};

}  // namespace

ChartLayout DrawChart(const Chart& chart, DrawingContext& surface) {
  ChartLayout layout = LayOutChart(chart, surface);
  Painter(chart, layout, surface).Paint();
  return layout;
}

Colour SeriesColour(std::size_t series) {
  static constexpr std::array<Colour, 7> kColours{{{10, 58, 130},
                                                   {222, 82, 10},
                                                   {0, 140, 110},
                                                   {150, 70, 150},
                                                   {60, 160, 220},
                                                   {170, 120, 0},
                                                   {70, 74, 80}}};
  return kColours[series % kColours.size()];
}

}  // namespace veritane::platform
