// Where the parts of a printed page lie, on a surface that remembers what was drawn on it.
#include "simulator/print_page.h"

#include "simulator/print_plot.h"
#include "tests/support/recording_surface.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace veritane::simulator {
namespace {

using platform::Point;
using platform::TextWeight;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using tests::RecordingSurface;

// 400 to 4000 cm⁻¹ in steps of 2 with one band.
std::shared_ptr<OpenSpectrum> OneBand(double at, double height, const std::string& units) {
  auto spectrum = std::make_shared<OpenSpectrum>();
  spectrum->stored.name = "one band";
  spectrum->stored.yUnits = units;
  spectrum->stored.spacing = 2;
  spectrum->stored.ordinates.lower = 200;
  for (int i = 200; i <= 2000; ++i) {
    const double distance = (i * 2 - at) / 20;
    spectrum->stored.ordinates.values.push_back(height / (1 + distance * distance));
  }
  return spectrum;
}

Point HighestOf(const std::vector<Point>& trace) {
  return *std::ranges::min_element(trace, {}, &Point::y);
}

constexpr PrintSpectrum kEverything{
    .area = {}, .sample = true, .standard = true, .markers = true, .range = std::nullopt};

TEST(PrintedSpectra, AMarkerStandsAtItsBandAndWavenumbersFallToTheRight) {
  const auto standard = OneBand(1600, 1, "ABSORBANCE");
  for (const double place : {1600.0, 3000.0, 5000.0}) {
    standard->markers.push_back({.x = 1, .definingMethod = kDefinedByBound, .lowerBound = place});
  }
  RecordingSurface surface(500, 300, 8);
  DrawPlot(kEverything, {{OneBand(3000, 0.5, "ABSORBANCE"), ""}, {standard, ""}, {}}, surface);
  ASSERT_EQ(surface.lines.size(), 2u);
  const Point sample_band = HighestOf(surface.lines[0].points);
  const Point standard_band = HighestOf(surface.lines[1].points);
  EXPECT_LT(sample_band.x, standard_band.x);
  EXPECT_GT(sample_band.y, standard_band.y);
  ASSERT_EQ(surface.upward.size(), 3u);  // 5000 is beyond the spectrum; the third is the axis title
  EXPECT_EQ(surface.upward[0].text, "3000");
  EXPECT_EQ(surface.upward[1].text, "1600");
  EXPECT_EQ(surface.upward[2].text, "Absorbance");
  for (const Point& band : {sample_band, standard_band}) {
    EXPECT_TRUE(std::ranges::any_of(surface.strokes, [&](const auto& line) {
      return line.points[0].x == line.points[1].x && std::abs(line.points[0].x - band.x) < 0.3 &&
             line.points[1].y - line.points[0].y > 100;
    })) << band.x;
  }
}

TEST(PrintedSpectra, PercentAndAbsorbanceEachFillTheHeightAndTheLegendSaysSo) {
  RecordingSurface surface(500, 300, 8);
  DrawPlot(kEverything,
           {{OneBand(3000, 1, "ABSORBANCE"), ""}, {OneBand(1600, 90, "PERCENT TRANSMITTANCE"), ""}, {}},
           surface);
  ASSERT_EQ(surface.lines.size(), 2u);
  EXPECT_NEAR(HighestOf(surface.lines[0].points).y, HighestOf(surface.lines[1].points).y, 0.5);
  EXPECT_TRUE(surface.Find("Standard: one band (Percent transmittance, on a scale of its own)"));
}

TEST(PrintedSpectra, NumbersThatAreNoneAndRangesWithoutPointsAreDrawnAsNothing) {
  auto broken = OneBand(1600, 1, "ABSORBANCE");
  for (double& value : broken->stored.ordinates.values) value = std::nan("");
  PrintSpectrum beyond = kEverything;
  beyond.range = {5000, 6000};
  for (const PrintSpectrum& wanted : {kEverything, beyond}) {
    RecordingSurface surface(500, 300, 8);
    DrawPlot(wanted, {{broken, ""}, {}, {}}, surface);
    EXPECT_THAT(surface.lines, IsEmpty());
    EXPECT_TRUE(surface.Find("Wavenumber / cm⁻¹"));
  }
}

TEST(PrintedSpectra, TextsAboveCloseMarkersKeepTheirOrderAndDistanceInsideTheWidth) {
  EXPECT_THAT(SpreadOut({10, 50, 90}, 10, 100), ElementsAre(10, 50, 90));
  EXPECT_THAT(SpreadOut({50, 52, 54}, 10, 100), ElementsAre(50, 60, 70));
  EXPECT_THAT(SpreadOut({95, 98, 100}, 10, 100), ElementsAre(80, 90, 100));
  EXPECT_EQ(SpreadOut(std::vector<double>(30, 50.0), 10, 100).size(), 10u);
}

TEST(PrintedPages, ATextWrapsAtBlanksAndIsCutVisiblyInItsLastLine) {
  const RecordingSurface surface(500, 300, 8);
  const auto wrapped = [&](const std::string& text, int lines) {
    return Wrapped(text, 40, 8, TextWeight::kNormal, lines, surface);  // ten characters
  };
  EXPECT_THAT(wrapped("short", 3), ElementsAre("short"));
  EXPECT_THAT(wrapped("drum three of twelve", 3), ElementsAre("drum three", "of twelve"));
  EXPECT_THAT(wrapped("drum three of twelve", 1), ElementsAre("drum thre…"));
  EXPECT_THAT(wrapped("drum three of twelve drums", 2), ElementsAre("drum three", "of twelve…"));
  EXPECT_THAT(wrapped("unbreakablelongname x", 2), ElementsAre("unbreakab…"));
}

TEST(PrintedPages, ParametersThatNoFieldNamesAreListedAndTheRestIsCounted) {
  auto sample = OneBand(1600, 1, "ABSORBANCE");
  sample->stored.parameters = {{"Comparison", 97.0}, {"Octane", 95.5}, {"Water", 0.25}, {"Ash", 1.0}};
  PrintTemplate print_template;
  print_template.items = {
      PrintText{.at = {10, 10}, .width = 100, .colour = {}, .text = "{comparison}"},
      PrintParameters{.area = {.left = 10, .top = 30, .width = 100, .height = 8}, .size = 8}};
  RecordingSurface surface(500, 300, 8);
  DrawPage(print_template, {{sample, ""}, {}, {}}, surface);
  std::vector<std::string> texts;
  for (const auto& drawn : surface.texts) texts.push_back(drawn.text);
  EXPECT_THAT(texts, ElementsAre("97", "Octane", "95.5", "… and 2 more"));
}

}  // namespace
}  // namespace veritane::simulator
