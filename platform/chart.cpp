// What the chart holds, and its view of the axes.
#include "platform/chart.h"

namespace veritane::platform {

Chart::Chart(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kChart) {}

void Chart::ChartChanged() {
  if (batches_ > 0) {
    changed_in_batch_ = true;
  } else {
    Changed(Property::kChart);
  }
}

void Chart::EndBatch() {
  --batches_;
  if (batches_ > 0 || !changed_in_batch_) return;
  changed_in_batch_ = false;
  Changed(Property::kChart);
}

void Chart::SetSeries(std::size_t index, ChartSeries series) {
  if (index >= series_.size()) series_.resize(index + 1);
  series_[index] = std::move(series);
  ChartChanged();
}

void Chart::RemoveSeriesFrom(std::size_t index) {
  if (index >= series_.size()) return;
  series_.resize(index);
  ChartChanged();
}

void Chart::SetX(AxisLimits limits) {
  x_ = limits;
  view_x_ = limits;
  ChartChanged();
}

void Chart::SetY(AxisLimits limits) {
  y_ = limits;
  view_y_ = limits;
  ChartChanged();
}

void Chart::SetY2(AxisLimits limits) {
  y2_ = limits;
  ChartChanged();
}

void Chart::SetTitles(const std::string& x_title, const std::string& y_title) {
  x_title_ = x_title;
  y_title_ = y_title;
  ChartChanged();
}

void Chart::SetLabel(std::size_t index, const std::string& text) {
  labels_.at(index) = text;
  ChartChanged();
}

void Chart::SetVerdictColour(VerdictColour colour) {
  verdict_ = colour;
  ChartChanged();
}

void Chart::SetHeader(std::vector<std::string> lines) {
  header_ = std::move(lines);
  ChartChanged();
}

void Chart::SetMarkers(std::vector<ChartMarker> markers) {
  markers_ = std::move(markers);
  ChartChanged();
}

void Chart::SetRegions(std::vector<ChartRegion> regions) {
  regions_ = std::move(regions);
  ChartChanged();
}

void Chart::Zoom(AxisLimits x, AxisLimits y) {
  if (!(x.minimum < x.maximum) || !(y.minimum < y.maximum)) return;
  view_x_ = x;
  view_y_ = y;
  ChartChanged();
}

Chart::DataPoint Chart::PixelToData(double pixel_x, double pixel_y) const {
  const double across = (pixel_x - plot_area_.left) / plot_area_.width;
  const double down = (pixel_y - plot_area_.top) / plot_area_.height;
  return {.x = view_x_.maximum - across * (view_x_.maximum - view_x_.minimum),
          .y = view_y_.maximum - down * (view_y_.maximum - view_y_.minimum)};
}

void Chart::MouseMove(double pixel_x, double pixel_y) const {
  if (OnMouseMove) OnMouseMove(pixel_x, pixel_y);
}

std::string Chart::SpokenContent() const {
  std::string content;
  const auto say = [&content](const std::string& text) {
    if (text.find_first_not_of(' ') == std::string::npos) return;
    if (!content.empty()) content += "; ";
    content += text;
  };
  for (const std::string& line : header_) say(line);
  for (const std::string& label : labels_) say(label);
  for (const ChartSeries& series : series_) say(series.title);
  for (const ChartMarker& marker : markers_) say(marker.text);
  for (const ChartRegion& region : regions_) say(region.text);
  return content;
}

}  // namespace veritane::platform
