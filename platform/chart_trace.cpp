// Thinning and clipping of traces.
#include "platform/chart_trace.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace veritane::platform {

namespace {

struct Box {
  double left;
  double top;
  double right;
  double bottom;
};

// The part of a line inside the box, after Liang and Barsky.
std::optional<std::pair<Point, Point>> ClipLine(Point from, Point to, const Box& box) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  double enter = 0;
  double leave = 1;
  const auto narrow = [&](double direction, double distance) {
    if (direction == 0) return distance >= 0;
    const double at = distance / direction;
    if (direction < 0) {
      enter = std::max(enter, at);
    } else {
      leave = std::min(leave, at);
    }
    return enter <= leave;
  };
  if (!narrow(-dx, from.x - box.left) || !narrow(dx, box.right - from.x) || !narrow(-dy, from.y - box.top) ||
      !narrow(dy, box.bottom - from.y)) {
    return std::nullopt;
  }
  // A whole end stays as it is, bit for bit, so that lines join. A cut one is kept inside against rounding,
  // which is coarse where the other end lies very far away.
  const auto at = [&](double part) {
    return Point{std::clamp(from.x + part * dx, box.left, box.right),
                 std::clamp(from.y + part * dy, box.top, box.bottom)};
  };
  const Point begin = enter > 0 ? at(enter) : from;
  const Point end = leave < 1 ? at(leave) : to;
  return std::pair{begin, end};
}

// Collects points into clipped lines.
class LineCollector {
public:
  explicit LineCollector(const Box& box) : box_(box) {}

  void Add(Point point) {
    if (previous_) AddLine(*previous_, point);
    previous_ = point;
    ++run_length_;
  }

  // The next point begins a new line. A point alone becomes a dot.
  void Break() {
    if (run_length_ == 1) AddLine(*previous_, *previous_);
    previous_.reset();
    run_length_ = 0;
  }

  std::vector<std::vector<Point>> Lines() && { return std::move(lines_); }

private:
  void AddLine(Point from, Point to) {
    const auto inside = ClipLine(from, to, box_);
    if (!inside) return;
    const auto& [begin, end] = *inside;
    const bool joins = !lines_.empty() && lines_.back().back().x == begin.x &&
                       lines_.back().back().y == begin.y && run_length_ > 1;
    if (!joins) lines_.push_back({begin});
    lines_.back().push_back(end);
  }

  Box box_;
  std::optional<Point> previous_;
  std::size_t run_length_ = 0;
  std::vector<std::vector<Point>> lines_;
};

// The points of one column, of which four are enough to draw it.
class Column {
public:
  explicit Column(LineCollector& lines) : lines_(lines) {}

  void Add(double column, Point point) {
    if (count_ > 0 && column != column_) Flush();
    column_ = column;
    const Entry entry{count_, point};
    if (count_ == 0) first_ = lowest_ = highest_ = entry;
    if (point.y < highest_.point.y) highest_ = entry;
    if (point.y > lowest_.point.y) lowest_ = entry;
    last_ = entry;
    ++count_;
  }

  void Flush() {
    if (count_ == 0) return;
    std::array<Entry, 4> kept{first_, lowest_, highest_, last_};
    std::sort(kept.begin(), kept.end(), [](const Entry& a, const Entry& b) { return a.order < b.order; });
    for (std::size_t i = 0; i < kept.size(); ++i) {
      if (i == 0 || kept[i].order != kept[i - 1].order) lines_.Add(kept[i].point);
    }
    count_ = 0;
  }

private:
  struct Entry {
    std::size_t order = 0;
    Point point;
  };

  LineCollector& lines_;
  double column_ = 0;
  std::size_t count_ = 0;
  Entry first_;
  Entry lowest_;
  Entry highest_;
  Entry last_;
};

}  // namespace

std::vector<std::vector<Point>> TraceLines(const ChartSeries& series, const ChartLayout& layout,
                                           double column) {
  const PlotArea& plot = layout.plot;
  const double margin = column * 4;
  LineCollector lines({plot.left - margin, plot.top - margin, plot.left + plot.width + margin,
                       plot.top + plot.height + margin});
  Column points(lines);
  const double last_column = std::ceil(plot.width / column) + 1;
  const std::size_t count = std::min(series.x.size(), series.y.size());
  for (std::size_t i = 0; i < count; ++i) {
    const Point point{layout.PixelX(series.x[i]), layout.PixelY(series.y[i], series.onSecondAxis)};
    if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
      points.Flush();
      lines.Break();
      continue;
    }
    // All points left of the plot share one column, as do those right of it.
    points.Add(std::clamp(std::floor((point.x - plot.left) / column), -1.0, last_column), point);
  }
  points.Flush();
  lines.Break();
  return std::move(lines).Lines();
}

}  // namespace veritane::platform
