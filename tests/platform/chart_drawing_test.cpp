// What a drawn chart shows, seen by a surface that remembers what was drawn on it.
#include "platform/chart_drawing.h"

#include "platform/chart_shading.h"
#include "platform/chart_trace.h"
#include "platform/form.h"
#include "tests/support/noting_screen.h"
#include "tests/support/recording_surface.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace veritane::platform {
namespace {

using tests::RecordingSurface;

class ChartDrawingTest : public ::testing::Test {
protected:
  ChartDrawingTest() {
    chart_.SetX({400, 4000});
    chart_.SetY({0, 1});
  }

  tests::NotingScreen screen_;
  Desktop desktop_{screen_};
  Form form_{desktop_, "form"};
  Chart chart_{form_, "chart"};
};

TEST_F(ChartDrawingTest, WavenumbersFallFromLeftToRightAndPixelsReadBackAsData) {
  RecordingSurface surface;
  const ChartLayout layout = DrawChart(chart_, surface);
  EXPECT_EQ(layout.PixelX(4000), layout.plot.left);
  EXPECT_NEAR(layout.PixelX(400), layout.plot.left + layout.plot.width, 1e-9);
  EXPECT_LT(layout.PixelY(1, false), layout.PixelY(0, false));
  chart_.SetPlotArea(layout.plot);
  const auto back = chart_.PixelToData(layout.PixelX(1685.25), layout.PixelY(0.625, false));
  EXPECT_NEAR(back.x, 1685.25, 1e-9);
  EXPECT_NEAR(back.y, 0.625, 1e-12);
  EXPECT_LT(surface.Find("4000")->at.x, surface.Find("500")->at.x);
  EXPECT_EQ(surface.open_clips, 0);
}

TEST_F(ChartDrawingTest, NoPeakOfALongTraceIsLost) {
  ChartSeries series{.title = "Sample", .x = {}, .y = {}};
  for (int i = 0; i < 32000; ++i) {
    series.x.push_back(400 + 3600.0 * i / 31999);
    series.y.push_back(i == 12345 ? 0.95 : i == 23456 ? 0.05 : 0.5);
  }
  chart_.SetSeries(0, series);
  RecordingSurface surface;
  const ChartLayout layout = DrawChart(chart_, surface);
  ASSERT_EQ(surface.lines.size(), 1U);
  const auto& points = surface.lines[0].points;
  EXPECT_LT(points.size(), 10000U);
  const auto has = [&](double x, double y) {
    return std::any_of(points.begin(), points.end(), [&](Point p) {
      return std::abs(p.x - layout.PixelX(x)) < 1e-6 && std::abs(p.y - layout.PixelY(y, false)) < 1e-6;
    });
  };
  EXPECT_TRUE(has(series.x[12345], 0.95));
  EXPECT_TRUE(has(series.x[23456], 0.05));
  EXPECT_TRUE(has(400, 0.5) && has(4000, 0.5));
}

TEST_F(ChartDrawingTest, AValueThatIsNotANumberBreaksTheLine) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  chart_.SetSeries(
      0, {.title = "a", .x = {500, 1000, 1500, 2000, 2500, 3000}, .y = {0.1, 0.2, nan, 0.3, infinite, 0.4}});
  RecordingSurface surface;
  DrawChart(chart_, surface);
  ASSERT_EQ(surface.lines.size(), 3U);
  EXPECT_EQ(surface.lines[0].points.size(), 2U);
  for (const auto& line : surface.lines) {
    for (const Point& point : line.points) EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
  }
}

TEST_F(ChartDrawingTest, LinesEndAtThePlotHoweverFarTheValuesLie) {
  chart_.SetSeries(0, {.title = "a", .x = {-1e9, 1000, 2000, 1e9}, .y = {0.5, 1e300, -1e300, 0.5}});
  chart_.SetSeries(1, {.title = "b", .x = {5000, 6000}, .y = {0.5, 0.5}});
  RecordingSurface surface;
  const ChartLayout layout = DrawChart(chart_, surface);
  const double margin = surface.FontHeight();
  ASSERT_FALSE(surface.lines.empty());
  for (const auto& line : surface.lines) {
    EXPECT_EQ(line.colour.red, SeriesColour(0).red);
    for (const Point& point : line.points) {
      EXPECT_GE(point.x, layout.plot.left - margin);
      EXPECT_LE(point.x, layout.plot.left + layout.plot.width + margin);
      EXPECT_GE(point.y, layout.plot.top - margin);
      EXPECT_LE(point.y, layout.plot.top + layout.plot.height + margin);
    }
  }
}

TEST_F(ChartDrawingTest, AZoomedLineCrossesThePlotBetweenItsPoints) {
  chart_.SetSeries(0, {.title = "a", .x = {400, 4000}, .y = {0, 1}});
  chart_.Zoom({2000, 2400}, {0.4, 0.6});
  RecordingSurface surface;
  const ChartLayout layout = DrawChart(chart_, surface);
  ASSERT_EQ(surface.lines.size(), 1U);
  auto [first, last] = std::pair(surface.lines[0].points.front(), surface.lines[0].points.back());
  if (first.x > last.x) std::swap(first, last);
  const double right = layout.plot.left + layout.plot.width;
  EXPECT_TRUE(first.x <= layout.plot.left && last.x >= right) << first.x << " to " << last.x;
  // On a straight line y = (x - 400) / 3600.
  chart_.SetPlotArea(layout.plot);
  for (const Point& end : {first, last}) {
    const auto [x, y] = chart_.PixelToData(end.x, end.y);
    EXPECT_NEAR(y, (x - 400) / 3600, 1e-9);
  }
}

TEST_F(ChartDrawingTest, TheLegendNamesOnlySeriesWithTitleAndPoints) {
  chart_.SetSeries(0, {.title = "Standard", .x = {500, 600}, .y = {0, 1}});
  chart_.SetSeries(1, {.title = "", .x = {500, 600}, .y = {0, 1}});
  chart_.SetSeries(2, {.title = "Empty", .x = {}, .y = {}});
  RecordingSurface surface;
  const ChartLayout layout = DrawChart(chart_, surface);
  ASSERT_EQ(layout.legend.size(), 1U);
  EXPECT_NE(surface.Find("Standard"), nullptr);
  EXPECT_EQ(surface.Find("Empty"), nullptr);
}

TEST_F(ChartDrawingTest, TheVerdictIsAWordInLargeBoldLettersOfItsColour) {
  chart_.SetLabel(Chart::kVerdictLabel, "FAIL");
  chart_.SetVerdictColour(VerdictColour::kFail);
  RecordingSurface failed;
  DrawChart(chart_, failed);
  const auto* fail = failed.Find("FAIL");
  ASSERT_NE(fail, nullptr);
  EXPECT_GE(fail->height, 2 * failed.FontHeight());
  EXPECT_EQ(fail->weight, TextWeight::kBold);
  EXPECT_GT(fail->colour.red, 2 * fail->colour.green);
  chart_.SetLabel(Chart::kVerdictLabel, "PASS");
  chart_.SetVerdictColour(VerdictColour::kPass);
  RecordingSurface passed;
  DrawChart(chart_, passed);
  ASSERT_NE(passed.Find("PASS"), nullptr);
  EXPECT_GT(passed.Find("PASS")->colour.green, 2 * passed.Find("PASS")->colour.red);
}

TEST_F(ChartDrawingTest, NoTwoTextsAboveThePlotOverlap) {
  std::vector<ChartMarker> markers;
  for (int i = 0; i < 40; ++i) markers.push_back({1000.0 + 17 * i, std::to_string(1000 + 17 * i)});
  chart_.SetMarkers(markers);
  chart_.SetRegions({{500, 600, "", RegionShade::kFaint, "departs < .0001"},
                     {600, 700, "", RegionShade::kMedium, "departs < .01"}});
  chart_.SetHeader({std::string(400, 'x'), "second line"});
  chart_.SetLabel(0, "first label");
  chart_.SetLabel(Chart::kVerdictLabel, "PASS");
  for (int i = 0; i < 9; ++i) {
    chart_.SetSeries(static_cast<std::size_t>(i),
                     {.title = "A series with a long name " + std::to_string(i), .x = {500}, .y = {1}});
  }
  RecordingSurface surface;
  const ChartLayout layout = DrawChart(chart_, surface);
  std::vector<RecordingSurface::DrawnText> above;
  for (const auto& text : surface.texts) {
    if (text.at.y + text.height <= layout.plot.top) above.push_back(text);
  }
  EXPECT_GT(above.size(), 15U);
  for (std::size_t i = 0; i < above.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const auto& a = above[i];
      const auto& b = above[j];
      const bool beside = a.at.x + surface.Measure(a.text, a.height, a.weight).width <= b.at.x ||
                          b.at.x + surface.Measure(b.text, b.height, b.weight).width <= a.at.x;
      EXPECT_TRUE(beside || a.at.y + a.height * 0.99 <= b.at.y || b.at.y + b.height * 0.99 <= a.at.y)
          << a.text << " / " << b.text;
    }
  }
  EXPECT_EQ(layout.markers.size(), 40U);
}

TEST_F(ChartDrawingTest, MarkedBandsAreToldApartByColourAndWithoutAndTheLegendNamesEachOnce) {
  chart_.SetRegions({{500, 600, ".01", RegionShade::kStrong, "departs ≥ .01"},
                     {600, 700, "0", RegionShade::kFaint, "departs < .0001"},
                     {700, 800, "0", RegionShade::kFaint, "departs < .0001"},
                     {2300, 2400, "left out"}});
  RecordingSurface surface;
  const ChartLayout layout = DrawChart(chart_, surface);
  ASSERT_EQ(layout.shades.size(), 2U) << "a band without a meaning is not in the legend";
  EXPECT_EQ(layout.shades[0].meaning.text, "departs < .0001") << "from faint to strong";
  EXPECT_NE(surface.Find("departs ≥ .01"), nullptr);
  EXPECT_EQ(surface.Find("left out"), nullptr) << "the band is too narrow for its text";
  chart_.Zoom({2200, 2500}, {0, 1});
  RecordingSurface zoomed;
  DrawChart(chart_, zoomed);
  EXPECT_NE(zoomed.Find("left out"), nullptr);

  // Each shade on the same area: another colour, and another number of lines.
  const auto drawn = [](RegionShade shade) {
    RecordingSurface area;
    PaintShade(area, {{100, 100}, 300, 200}, shade, 16);
    EXPECT_EQ(area.areas.size(), 1U);
    for (const auto& line : area.strokes) {
      for (const Point& point : line.points) {
        EXPECT_TRUE(point.x >= 100 && point.x <= 400 && point.y >= 100 && point.y <= 300);
      }
    }
    const Colour fill = area.areas[0].colour;
    return std::pair(area.strokes.size(), fill.red * 0.3 + fill.green * 0.59 + fill.blue * 0.11);
  };
  const auto faint = drawn(RegionShade::kFaint);
  const auto light = drawn(RegionShade::kLight);
  const auto medium = drawn(RegionShade::kMedium);
  const auto strong = drawn(RegionShade::kStrong);
  EXPECT_LT(faint.first + 10, light.first);
  EXPECT_LT(light.first + 10, medium.first);
  EXPECT_LT(medium.first + 10, strong.first);
  EXPECT_GT(light.second, medium.second) << "deeper in grey as well";
  EXPECT_GT(medium.second, strong.second);
}

TEST_F(ChartDrawingTest, HatchingsRunOnAcrossNeighbouringBands) {
  for (const bool is_rising : {true, false}) {
    const auto whole = HatchLines({{13, 7}, 90, 40}, 11, is_rising);
    const auto left = HatchLines({{13, 7}, 30, 40}, 11, is_rising);
    const auto right = HatchLines({{43, 7}, 60, 40}, 11, is_rising);
    ASSERT_GT(whole.size(), 8U);
    const auto length = [](const std::vector<std::pair<Point, Point>>& lines) {
      double sum = 0;
      for (const auto& [from, to] : lines) {
        EXPECT_NEAR(std::abs(to.y - from.y), to.x - from.x, 1e-9) << "at 45 degrees";
        sum += to.x - from.x;
      }
      return sum;
    };
    EXPECT_NEAR(length(whole), length(left) + length(right), 1e-9);
  }
  EXPECT_TRUE(HatchLines({{0, 0}, 100, 100}, 0, true).empty());
  EXPECT_TRUE(HatchLines({{0, 0}, 0, 100}, 5, true).empty());
}

TEST_F(ChartDrawingTest, TheSecondAxisShowsWhenASeriesUsesItAndFollowsTheZoom) {
  chart_.SetSeries(0, {.title = "a", .x = {500, 600}, .y = {0, 1}});
  chart_.SetY2({0, 10});
  RecordingSurface surface;
  EXPECT_FALSE(LayOutChart(chart_, surface).has_second_axis);
  chart_.SetSeries(1, {.title = "b", .x = {500, 600}, .y = {0, 10}, .onSecondAxis = true});
  EXPECT_TRUE(LayOutChart(chart_, surface).has_second_axis);
  chart_.Zoom({400, 1000}, {0.5, 1});
  const ChartLayout zoomed = LayOutChart(chart_, surface);
  EXPECT_DOUBLE_EQ(zoomed.view_y2.minimum, 5);
  EXPECT_DOUBLE_EQ(zoomed.view_y2.maximum, 10);
}

TEST_F(ChartDrawingTest, AnyLimitsAndAnySurfaceCanBeDrawn) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  chart_.SetSeries(0, {.title = "a", .x = {500, 600}, .y = {0, 1}, .onSecondAxis = true});
  chart_.SetMarkers({{nan, "x"}, {550, "550"}});
  chart_.SetRegions({{nan, 3, ""}, {600, 500, "reversed", RegionShade::kStrong, "a long meaning"}});
  chart_.SetLabel(Chart::kVerdictLabel, "PASS");
  for (const AxisLimits limits :
       {AxisLimits{5, 5}, AxisLimits{nan, 1}, AxisLimits{2, 1}, AxisLimits{-1e308, 1e308}}) {
    chart_.SetX(limits);
    chart_.SetY(limits);
    chart_.SetY2(limits);
    for (const double size : {1.0, 40.0, 3000.0}) {
      RecordingSurface surface(size, size, 16);
      const ChartLayout layout = DrawChart(chart_, surface);
      EXPECT_GE(layout.plot.width, 1);
      EXPECT_GE(layout.plot.height, 1);
      EXPECT_EQ(surface.open_clips, 0);
      for (const auto* texts : {&surface.texts, &surface.upward}) {
        for (const auto& text : *texts) EXPECT_TRUE(std::isfinite(text.at.x) && std::isfinite(text.at.y));
      }
    }
  }
}

TEST_F(ChartDrawingTest, APageAndAScreenLookAlike) {
  chart_.SetTitles("Wavenumber", "Absorbance");
  chart_.SetHeader({"one"});
  RecordingSurface screen(1000, 600, 16);
  RecordingSurface page(500, 300, 8);
  const PlotArea large = DrawChart(chart_, screen).plot;
  const PlotArea small = DrawChart(chart_, page).plot;
  EXPECT_NEAR(large.left, small.left * 2, 1e-9);
  EXPECT_NEAR(large.top, small.top * 2, 1e-9);
  EXPECT_NEAR(large.width, small.width * 2, 1e-9);
  EXPECT_NEAR(large.height, small.height * 2, 1e-9);
}

}  // namespace
}  // namespace veritane::platform
