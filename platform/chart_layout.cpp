// The chart's layout: header and verdict on top, then the legend, marker texts, the plot, its axes.
#include "platform/chart_layout.h"

#include "platform/utf8.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace veritane::platform {

namespace {

constexpr double kLineSpacing = 1.3;
constexpr double kVerdictSize = 2.4;
constexpr double kSwatchWidth = 2;
constexpr std::size_t kMarkerRows = 4;

AxisLimits Drawable(AxisLimits limits) {
  if (!std::isfinite(limits.minimum) || !std::isfinite(limits.maximum)) return {0, 1};
  if (limits.minimum > limits.maximum) std::swap(limits.minimum, limits.maximum);
  // Their difference must be a number too.
  constexpr double kFarthest = 1e300;
  limits.minimum = std::clamp(limits.minimum, -kFarthest, kFarthest);
  limits.maximum = std::clamp(limits.maximum, -kFarthest, kFarthest);
  if (limits.minimum < limits.maximum) return limits;
  const double margin = std::max(std::abs(limits.minimum) * 0.1, 1e-9);
  return {limits.minimum - margin, limits.maximum + margin};
}

// The part of the second axis that lies beside the part of the first axis in view.
AxisLimits SecondView(const Chart& chart, const AxisLimits& view_y) {
  const AxisLimits y = Drawable(chart.Y());
  const AxisLimits y2 = Drawable(chart.Y2());
  const double scale = (y2.maximum - y2.minimum) / (y.maximum - y.minimum);
  return Drawable(
      {y2.minimum + (view_y.minimum - y.minimum) * scale, y2.minimum + (view_y.maximum - y.minimum) * scale});
}

bool IsListed(const ChartSeries& series) {
  return !series.title.empty() && !series.x.empty() && !series.y.empty();
}

double WidestLabel(const std::vector<AxisTick>& ticks, const DrawingContext& surface) {
  double widest = 0;
  for (const AxisTick& tick : ticks) {
    widest = std::max(widest, surface.Measure(tick.label, surface.FontHeight(), TextWeight::kNormal).width);
  }
  return widest;
}

// Builds one layout from top to bottom; `top_` is how far it has come.
class Builder {
public:
  Builder(const Chart& chart, const DrawingContext& surface)
      : chart_(chart), surface_(surface), unit_(surface.FontHeight()) {}

  ChartLayout Build() {
    layout_.view_x = Drawable(chart_.ViewX());
    layout_.view_y = Drawable(chart_.ViewY());
    layout_.view_y2 = SecondView(chart_, layout_.view_y);
    layout_.has_second_axis =
        std::any_of(chart_.Series().begin(), chart_.Series().end(),
                    [](const ChartSeries& s) { return s.onSecondAxis && !s.x.empty(); });
    top_ = unit_ * 0.5;
    PlaceHeader();
    PlaceSides();
    PlaceLegend();
    PlaceMarkers();
    FinishPlot();
    return layout_;
  }

private:
  void PlaceHeader() {
    const double right = surface_.Width() - unit_;
    double text_right = right;
    double bottom = top_;
    const std::string& verdict = chart_.Labels()[Chart::kVerdictLabel];
    if (!verdict.empty()) {
      layout_.verdict_height = unit_ * kVerdictSize;
      const double width = surface_.Measure(verdict, layout_.verdict_height, TextWeight::kBold).width;
      layout_.verdict = {verdict, {std::max(unit_, right - width), top_}};
      text_right = layout_.verdict.at.x - unit_;
      bottom += layout_.verdict_height * 1.15;
    }
    double line_top = top_;
    for (const std::string& line : HeaderLines()) {
      layout_.header.push_back(
          {FitText(line, text_right - unit_, unit_, TextWeight::kNormal, surface_), {unit_, line_top}});
      line_top += unit_ * kLineSpacing;
    }
    top_ = std::max(bottom, line_top);
  }

  // The header, then the labels before the verdict in one line.
  std::vector<std::string> HeaderLines() const {
    std::vector<std::string> lines = chart_.Header();
    std::string labels;
    for (std::size_t i = 0; i < Chart::kVerdictLabel; ++i) {
      const std::string& label = chart_.Labels()[i];
      if (!label.empty()) labels += (labels.empty() ? "" : "    ") + label;
    }
    if (!labels.empty()) lines.push_back(labels);
    return lines;
  }

  // The plot's left and right edge depend on how wide the labels of the y axes are.
  void PlaceSides() {
    // The number of ticks needs the height, which is not known yet; a good guess does, as labels hardly
    // differ.
    const int ticks = TickCount(surface_.Height() * 0.7, unit_ * 3);
    layout_.y_ticks = AxisTicks(layout_.view_y.minimum, layout_.view_y.maximum, ticks);
    layout_.plot.left = unit_ * 1.6 + WidestLabel(layout_.y_ticks, surface_);
    if (!chart_.YTitle().empty()) layout_.plot.left += unit_ * 1.4;
    double right = unit_ * 1.6;
    if (layout_.has_second_axis) {
      layout_.y2_ticks = AxisTicks(layout_.view_y2.minimum, layout_.view_y2.maximum, ticks);
      right += unit_ * 0.4 + WidestLabel(layout_.y2_ticks, surface_);
    }
    layout_.plot.width = std::max(1.0, surface_.Width() - layout_.plot.left - right);
    layout_.x_ticks =
        AxisTicks(layout_.view_x.minimum, layout_.view_x.maximum, TickCount(layout_.plot.width, unit_ * 5.5));
  }

  static int TickCount(double length, double each) {
    return std::clamp(static_cast<int>(length / each), 2, 20);
  }

  // Traces, then the shades of marked bands, in as many lines as they need.
  void PlaceLegend() {
    legend_left_ = layout_.plot.left;
    legend_top_ = top_ + unit_ * 0.2;
    for (std::size_t i = 0; i < chart_.Series().size(); ++i) {
      if (!IsListed(chart_.Series()[i])) continue;
      const PlacedText title = PlaceLegendText(chart_.Series()[i].title);
      layout_.legend.push_back({.series = i,
                                .line_begin = {SwatchLeft(title), title.at.y + unit_ * 0.55},
                                .line_length = unit_ * kSwatchWidth,
                                .title = title});
    }
    for (const auto& [shade, meaning] : Shades()) {
      const PlacedText text = PlaceLegendText(meaning);
      layout_.shades.push_back({.shade = shade,
                                .corner = {SwatchLeft(text), text.at.y + unit_ * 0.1},
                                .width = unit_ * kSwatchWidth,
                                .height = unit_ * 0.9,
                                .meaning = text});
    }
    const bool is_empty = layout_.legend.empty() && layout_.shades.empty();
    top_ = (is_empty ? top_ : legend_top_ + unit_ * kLineSpacing) + unit_ * 0.4;
  }

  double SwatchLeft(const PlacedText& text) const { return text.at.x - unit_ * (kSwatchWidth + 0.5); }

  // The place of the next legend text, with room for its swatch before it.
  PlacedText PlaceLegendText(const std::string& whole) {
    const double before = unit_ * (kSwatchWidth + 0.5);
    const double right = layout_.plot.left + layout_.plot.width;
    const double room = std::max(unit_, layout_.plot.width - before);
    const std::string text = FitText(whole, room, unit_, TextWeight::kNormal, surface_);
    const double width = before + surface_.Measure(text, unit_, TextWeight::kNormal).width;
    if (legend_left_ > layout_.plot.left && legend_left_ + width > right) {
      legend_left_ = layout_.plot.left;
      legend_top_ += unit_ * kLineSpacing;
    }
    PlacedText placed{text, {legend_left_ + before, legend_top_}};
    legend_left_ += width + unit_ * 1.5;
    return placed;
  }

  // Each shade that means something, from faint to strong.
  std::map<RegionShade, std::string> Shades() const {
    std::map<RegionShade, std::string> shades;
    for (const ChartRegion& region : chart_.Regions()) {
      if (!region.meaning.empty()) shades.emplace(region.shade, region.meaning);
    }
    return shades;
  }

  // Marker texts stand above the plot in as many rows as keep them apart; one that fits nowhere is left out.
  void PlaceMarkers() {
    std::vector<ChartMarker> visible;
    for (const ChartMarker& marker : chart_.Markers()) {
      if (marker.x >= layout_.view_x.minimum && marker.x <= layout_.view_x.maximum) visible.push_back(marker);
    }
    std::sort(visible.begin(), visible.end(), [](const auto& a, const auto& b) { return a.x > b.x; });

    std::vector<double> row_ends;
    std::vector<std::size_t> rows;
    for (const ChartMarker& marker : visible) {
      const double width = surface_.Measure(marker.text, unit_ * 0.9, TextWeight::kNormal).width;
      const double x = layout_.PixelX(marker.x);
      const double begin = std::clamp(x - width / 2, 0.0, std::max(0.0, surface_.Width() - width));
      std::size_t row = 0;
      while (row < row_ends.size() && begin < row_ends[row] + unit_ * 0.4) ++row;
      const bool has_text = !marker.text.empty() && row < kMarkerRows;
      if (has_text && row == row_ends.size()) row_ends.push_back(0);
      if (has_text) row_ends[row] = begin + width;
      layout_.markers.push_back({.x = x, .top = 0, .text = {has_text ? marker.text : "", {begin, 0}}});
      rows.push_back(row);
    }
    // The first row stands next to the plot, so that a single row needs no leader lines.
    const double row_height = unit_ * 1.1;
    const double plot_top = top_ + row_height * static_cast<double>(row_ends.size()) + unit_ * 0.2;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      PlacedMarker& marker = layout_.markers[i];
      marker.top = plot_top;
      if (marker.text.text.empty()) continue;
      marker.text.at.y = plot_top - row_height * static_cast<double>(rows[i] + 1) - unit_ * 0.1;
      marker.top = marker.text.at.y + unit_;
    }
    top_ = plot_top;
  }

  void FinishPlot() {
    const double below = unit_ * (chart_.XTitle().empty() ? 2.2 : 3.5);
    layout_.plot.top = top_;
    layout_.plot.height = std::max(1.0, surface_.Height() - top_ - below);
  }

  const Chart& chart_;
  const DrawingContext& surface_;
  const double unit_;
  double top_ = 0;
  double legend_left_ = 0;
  double legend_top_ = 0;
  ChartLayout layout_;
};

}  // namespace

double ChartLayout::PixelX(double wavenumber) const {
  return plot.left + (view_x.maximum - wavenumber) / (view_x.maximum - view_x.minimum) * plot.width;
}

double ChartLayout::PixelY(double value, bool on_second_axis) const {
  const AxisLimits& view = on_second_axis ? view_y2 : view_y;
  return plot.top + (view.maximum - value) / (view.maximum - view.minimum) * plot.height;
}

ChartLayout LayOutChart(const Chart& chart, const DrawingContext& surface) {
  return Builder(chart, surface).Build();
}

std::string FitText(const std::string& text, double width, double height, TextWeight weight,
                    const DrawingContext& surface) {
  if (surface.Measure(text, height, weight).width <= width) return text;
  std::size_t fits = 0;
  std::size_t too_many = CharacterCount(text);
  while (fits + 1 < too_many) {
    const std::size_t middle = (fits + too_many) / 2;
    const std::string cut = Characters(text, 0, middle) + "…";
    (surface.Measure(cut, height, weight).width <= width ? fits : too_many) = middle;
  }
  return Characters(text, 0, fits) + "…";
}

}  // namespace veritane::platform
