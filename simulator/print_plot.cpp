// Drawing the spectra of a printed page.
#include "simulator/print_plot.h"

#include "platform/axis_ticks.h"
#include "platform/chart_drawing.h"
#include "platform/chart_layout.h"
#include "platform/chart_trace.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace veritane::simulator {

namespace {

using platform::AxisLimits;
using platform::AxisTick;
using platform::ChartSeries;
using platform::Colour;
using platform::Point;
using platform::TextWeight;

constexpr Colour kAxisInk{32, 36, 40};
constexpr Colour kGridLine{222, 226, 230};
constexpr Colour kMarkerLine{186, 150, 194};
constexpr Colour kMarkerInk{96, 32, 108};
constexpr double kLegendSpacing = 1.35;
constexpr const char* kWavenumberTitle = "Wavenumber / cm⁻¹";

// "ABSORBANCE" as "Absorbance".
std::string UnitsText(const std::string& units) {
  std::string text = units;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] >= 'A' && text[i] <= 'Z') text[i] = static_cast<char>(text[i] - 'A' + 'a');
  }
  return text;
}

ChartSeries SeriesOf(const PrintedSpectrum& printed, const std::string& title) {
  const StoredSpectrum& stored = printed.spectrum->stored;
  ChartSeries series{.title = title + ": " + stored.name, .x = {}, .y = stored.ordinates.values};
  for (std::size_t i = 0; i < stored.ordinates.Size(); ++i) {
    series.x.push_back((stored.ordinates.lower + static_cast<double>(i)) * stored.spacing);
  }
  return series;
}

// Lowest and highest of what `take` gives of each point in view, or 0 to 1 where there is none.
template <typename Take>
AxisLimits LimitsOf(const std::vector<ChartSeries>& all, bool on_second_axis, const AxisLimits& view,
                    Take take) {
  AxisLimits limits{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
  for (const ChartSeries& series : all) {
    if (series.onSecondAxis != on_second_axis) continue;
    for (std::size_t i = 0; i < series.x.size(); ++i) {
      if (series.x[i] < view.minimum || series.x[i] > view.maximum || !std::isfinite(series.y[i])) continue;
      limits.minimum = std::min(limits.minimum, take(series, i));
      limits.maximum = std::max(limits.maximum, take(series, i));
    }
  }
  if (!(limits.minimum <= limits.maximum)) return {0, 1};
  if (limits.minimum == limits.maximum) return {limits.minimum - 0.5, limits.maximum + 0.5};
  return limits;
}

AxisLimits WithMargin(const AxisLimits& limits) {
  const double margin = (limits.maximum - limits.minimum) * 0.04;
  return {limits.minimum - margin, limits.maximum + margin};
}

class Plot {
public:
  Plot(const PrintSpectrum& wanted, const PrintSubject& subject, platform::DrawingContext& surface)
      : surface_(surface), unit_(surface.FontHeight()), hair_(unit_ / 20) {
    TakeTraces(wanted, subject);
    ChooseLimits(wanted);
    if (wanted.markers) TakeMarkers(subject);
  }

  void Draw() {
    LayOut();
    DrawGrid();
    DrawMarkers();
    DrawTraces();
    DrawAxes();
    DrawLegend();
  }

private:
  void TakeTraces(const PrintSpectrum& wanted, const PrintSubject& subject) {
    if (wanted.sample && subject.sample.spectrum) series_.push_back(SeriesOf(subject.sample, "Sample"));
    if (series_.size() == 1) units_ = UnitsText(subject.sample.spectrum->stored.yUnits);
    if (!wanted.standard || !subject.standard.spectrum) return;
    series_.push_back(SeriesOf(subject.standard, "Standard"));
    const std::string standard_units = UnitsText(subject.standard.spectrum->stored.yUnits);
    if (series_.size() == 1) {
      units_ = standard_units;
    } else if (standard_units != units_) {
      // Absorbances and percentages on one scale would flatten one of the two.
      series_.back().onSecondAxis = true;
      series_.back().title += " (" + standard_units + ", on a scale of its own)";
    }
  }

  void ChooseLimits(const PrintSpectrum& wanted) {
    const auto wavenumber = [](const ChartSeries& series, std::size_t i) { return series.x[i]; };
    const auto ordinate = [](const ChartSeries& series, std::size_t i) { return series.y[i]; };
    const double most = std::numeric_limits<double>::max();
    // The first trace never lies on the second axis, so there is always one to go by.
    layout_.view_x = wanted.range ? *wanted.range : LimitsOf(series_, false, {-most, most}, wavenumber);
    layout_.view_y = WithMargin(LimitsOf(series_, false, layout_.view_x, ordinate));
    layout_.view_y2 = WithMargin(LimitsOf(series_, true, layout_.view_x, ordinate));
  }

  void TakeMarkers(const PrintSubject& subject) {
    for (const double place : MarkerPlaces(subject)) {
      if (place >= layout_.view_x.minimum && place <= layout_.view_x.maximum) markers_.push_back(place);
    }
  }

  double WidthOf(const std::string& text) const {
    return surface_.Measure(text, unit_, TextWeight::kNormal).width;
  }

  void LayOut() {
    double top = unit_ * kLegendSpacing * static_cast<double>(series_.size()) + unit_ * 0.4;
    for (const double marker : markers_) {
      marker_room_ = std::max(marker_room_, WidthOf(WavenumberText(marker)) + unit_ * 1.6);
    }
    top += marker_room_;
    const double height = std::max(unit_, surface_.Height() - top - unit_ * 3.4);
    const int rows = std::clamp(static_cast<int>(height / (unit_ * 3)), 2, 12);
    layout_.y_ticks = platform::AxisTicks(layout_.view_y.minimum, layout_.view_y.maximum, rows);
    double label_width = 0;
    for (const AxisTick& tick : layout_.y_ticks) label_width = std::max(label_width, WidthOf(tick.label));
    const double left = unit_ * 2.6 + label_width;
    const double width = std::max(unit_, surface_.Width() - left - unit_ * 1.2);
    layout_.plot = {left, top, width, height};
    const int columns = std::clamp(static_cast<int>(width / (unit_ * 5.5)), 2, 20);
    layout_.x_ticks = platform::AxisTicks(layout_.view_x.minimum, layout_.view_x.maximum, columns);
  }

  double Right() const { return layout_.plot.left + layout_.plot.width; }
  double Bottom() const { return layout_.plot.top + layout_.plot.height; }

  void DrawGrid() {
    for (const AxisTick& tick : layout_.x_ticks) {
      const double x = layout_.PixelX(tick.value);
      surface_.Line({x, layout_.plot.top}, {x, Bottom()}, hair_, kGridLine);
    }
    for (const AxisTick& tick : layout_.y_ticks) {
      const double y = layout_.PixelY(tick.value, false);
      surface_.Line({layout_.plot.left, y}, {Right(), y}, hair_, kGridLine);
    }
  }

  void DrawTraces() {
    surface_.BeginClip({layout_.plot.left, layout_.plot.top}, layout_.plot.width, layout_.plot.height);
    for (std::size_t i = 0; i < series_.size(); ++i) {
      const double width = hair_ * (i == 0 ? 2.2 : 1.4);
      for (const std::vector<Point>& line : platform::TraceLines(series_[i], layout_, unit_ / 40)) {
        surface_.Polyline(line, width, platform::SeriesColour(i));
      }
    }
    surface_.EndClip();
  }

  // A line at each marker, behind the traces, led to its wavenumber above the plot.
  void DrawMarkers() {
    std::vector<double> places;
    for (const double marker : markers_) places.push_back(layout_.PixelX(marker) - layout_.plot.left);
    const double text_height = surface_.Measure("0", unit_, TextWeight::kNormal).height;
    const std::vector<double> spread = SpreadOut(places, text_height, layout_.plot.width);
    const double text_bottom = layout_.plot.top - unit_;
    for (std::size_t i = 0; i < places.size(); ++i) {
      const double x = layout_.plot.left + places[i];
      surface_.Line({x, layout_.plot.top}, {x, Bottom()}, hair_ * 1.4, kMarkerLine);
      if (i >= spread.size()) continue;
      const double text_x = layout_.plot.left + spread[i];
      surface_.Line({text_x, text_bottom + unit_ * 0.2}, {x, layout_.plot.top}, hair_ * 1.4, kMarkerLine);
      surface_.TextUpwards(WavenumberText(markers_[i]), {text_x - text_height / 2, text_bottom}, unit_,
                           kMarkerInk);
    }
  }

  void DrawAxes() {
    const Point corner{layout_.plot.left, Bottom()};
    surface_.Line({corner.x, layout_.plot.top}, corner, hair_ * 1.4, kAxisInk);
    surface_.Line(corner, {Right(), corner.y}, hair_ * 1.4, kAxisInk);
    const double length = unit_ * 0.35;
    for (const AxisTick& tick : layout_.x_ticks) {
      const double x = layout_.PixelX(tick.value);
      surface_.Line({x, corner.y}, {x, corner.y + length}, hair_, kAxisInk);
      Write(tick.label, {x - WidthOf(tick.label) / 2, corner.y + unit_ * 0.5});
    }
    for (const AxisTick& tick : layout_.y_ticks) {
      const double y = layout_.PixelY(tick.value, false);
      surface_.Line({corner.x - length, y}, {corner.x, y}, hair_, kAxisInk);
      const platform::TextSize size = surface_.Measure(tick.label, unit_, TextWeight::kNormal);
      Write(tick.label, {corner.x - unit_ * 0.6 - size.width, y - size.height / 2});
    }
    Write(kWavenumberTitle,
          {corner.x + (layout_.plot.width - WidthOf(kWavenumberTitle)) / 2, corner.y + unit_ * 1.9});
    const double title_bottom = layout_.plot.top + (layout_.plot.height + WidthOf(units_)) / 2;
    surface_.TextUpwards(units_, {0, title_bottom}, unit_, kAxisInk);
  }

  void DrawLegend() {
    for (std::size_t i = 0; i < series_.size(); ++i) {
      const double top = unit_ * kLegendSpacing * static_cast<double>(i);
      const double left = layout_.plot.left;
      const double swatch = unit_ * 2.5;
      surface_.Line({left, top + unit_ * 0.6}, {left + swatch, top + unit_ * 0.6}, hair_ * 3,
                    platform::SeriesColour(i));
      const double text_left = left + swatch + unit_ * 0.6;
      Write(platform::FitText(series_[i].title, surface_.Width() - text_left, unit_, TextWeight::kNormal,
                              surface_),
            {text_left, top});
    }
  }

  void Write(const std::string& text, Point at) {
    surface_.Text(text, at, unit_, TextWeight::kNormal, kAxisInk);
  }

  platform::DrawingContext& surface_;
  const double unit_;
  const double hair_;
  std::vector<ChartSeries> series_;
  std::string units_;
  std::vector<double> markers_;  // falling, so from left to right
  double marker_room_ = 0;
  platform::ChartLayout layout_;
};

}  // namespace

void DrawPlot(const PrintSpectrum& wanted, const PrintSubject& subject, platform::DrawingContext& surface) {
  Plot(wanted, subject, surface).Draw();
}

std::vector<double> SpreadOut(const std::vector<double>& places, double height, double width) {
  const auto room = static_cast<std::size_t>(std::max(0.0, width / height));
  std::vector<double> spread(places.begin(),
                             places.begin() + static_cast<std::ptrdiff_t>(std::min(room, places.size())));
  double least = 0;
  for (double& place : spread) {
    place = std::max(place, least);
    least = place + height;
  }
  double most = width;
  for (auto place = spread.rbegin(); place != spread.rend(); ++place) {
    *place = std::min(*place, most);
    most = *place - height;
  }
  return spread;
}

}  // namespace veritane::simulator
