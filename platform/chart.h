// A two-dimensional chart: series over an x axis and two y axes, text labels, header lines, markers and
// marked bands. It holds what is to be seen; chart_drawing.h draws it.
#pragma once

#include "platform/control.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace veritane::platform {

struct AxisLimits {
  double minimum = 0;
  double maximum = 1;
  bool operator==(const AxisLimits&) const = default;
};

struct ChartSeries {
  std::string title;
  // Same length; x in wavenumbers (cm⁻¹).
  std::vector<double> x;
  std::vector<double> y;
  // Drawn against "Y2" instead of "Y".
  bool onSecondAxis = false;
};

// A vertical line at a wavenumber, with its text.
struct ChartMarker {
  double x = 0;
  std::string text;
};

// How a band is shaded. From kFaint to kStrong the colour deepens and the hatching gets denser.
enum class RegionShade { kPlain, kFaint, kLight, kMedium, kStrong };

// A band of wavenumbers shaded behind the traces.
struct ChartRegion {
  double low = 0;
  double high = 0;
  // Written into the band where it is wide enough.
  std::string text = {};
  RegionShade shade = RegionShade::kPlain;
  // What the shade means. The legend names each shade that has a meaning once.
  std::string meaning = {};
};

enum class VerdictColour { kNone, kPass, kFail };

// Where the plot lies inside the chart's rectangle, in pixels from its top left corner.
struct PlotArea {
  double left = 0;
  double top = 0;
  double width = 1;
  double height = 1;
};

class Chart : public Control {
public:
  static constexpr int kLabelCount = 4;
  // Labels are counted from 1 for people; the fourth carries the verdict.
  static constexpr int kVerdictLabel = 3;

  Chart(Form& form, std::string name);

  // Raised when the pointer moves over the chart, with its place in pixels from the chart's top left corner.
  std::function<void(double pixel_x, double pixel_y)> OnMouseMove;

  const std::vector<ChartSeries>& Series() const { return series_; }
  void SetSeries(std::size_t index, ChartSeries series);  // grows the list as needed
  void RemoveSeriesFrom(std::size_t index);

  // Limits of the axes "x", "Y" and "Y2" as the program sets them.
  const AxisLimits& X() const { return x_; }
  const AxisLimits& Y() const { return y_; }
  const AxisLimits& Y2() const { return y2_; }
  void SetX(AxisLimits limits);
  void SetY(AxisLimits limits);
  void SetY2(AxisLimits limits);

  const std::string& XTitle() const { return x_title_; }
  const std::string& YTitle() const { return y_title_; }
  void SetTitles(const std::string& x_title, const std::string& y_title);

  const std::array<std::string, kLabelCount>& Labels() const { return labels_; }
  void SetLabel(std::size_t index, const std::string& text);
  VerdictColour Verdict() const { return verdict_; }
  void SetVerdictColour(VerdictColour colour);

  const std::vector<std::string>& Header() const { return header_; }
  void SetHeader(std::vector<std::string> lines);

  const std::vector<ChartMarker>& Markers() const { return markers_; }
  void SetMarkers(std::vector<ChartMarker> markers);
  const std::vector<ChartRegion>& Regions() const { return regions_; }
  void SetRegions(std::vector<ChartRegion> regions);

  // The part of the axes that is in view; the same as the limits until the user zooms. Setting limits ends a
  // zoom.
  const AxisLimits& ViewX() const { return view_x_; }
  const AxisLimits& ViewY() const { return view_y_; }
  void Zoom(AxisLimits x, AxisLimits y);
  bool IsZoomed() const { return !(view_x_ == x_ && view_y_ == y_); }

  // Set by whoever draws the chart, so that a place in pixels can be read as data.
  void SetPlotArea(PlotArea area) { plot_area_ = area; }
  const PlotArea& Area() const { return plot_area_; }
  // Data coordinates of a pixel. Wavenumbers fall from left to right; left of the plot x exceeds the view's
  // maximum.
  struct DataPoint {
    double x = 0;
    double y = 0;
  };
  DataPoint PixelToData(double pixel_x, double pixel_y) const;

  void MouseMove(double pixel_x, double pixel_y) const;

  // The texts that are drawn, the verdict among them, and the names of the traces and marks.
  std::string SpokenContent() const override;

private:
  friend class ChartBatch;
  void BeginBatch() { ++batches_; }
  void EndBatch();
  void ChartChanged();

  std::vector<ChartSeries> series_;
  AxisLimits x_;
  AxisLimits y_;
  AxisLimits y2_;
  AxisLimits view_x_;
  AxisLimits view_y_;
  std::string x_title_;
  std::string y_title_;
  std::array<std::string, kLabelCount> labels_;
  VerdictColour verdict_ = VerdictColour::kNone;
  std::vector<std::string> header_;
  std::vector<ChartMarker> markers_;
  std::vector<ChartRegion> regions_;
  PlotArea plot_area_;
  int batches_ = 0;
  bool changed_in_batch_ = false;
};

// For as long as it lives changes are collected, and shown once at the end. Batches nest.
class ChartBatch {
public:
  explicit ChartBatch(Chart& chart) : chart_(chart) { chart_.BeginBatch(); }
  ~ChartBatch() { chart_.EndBatch(); }
  ChartBatch(const ChartBatch&) = delete;
  ChartBatch& operator=(const ChartBatch&) = delete;

private:
  Chart& chart_;
};

}  // namespace veritane::platform
