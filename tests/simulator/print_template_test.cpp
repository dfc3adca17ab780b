// Reading print templates, whole and damaged, and filling in their fields.
#include "simulator/print_template.h"

#include "simulator/print_fields.h"
#include "simulator/spectrum_file.h"
#include "tests/support/errors.h"
#include "tests/support/test_data.h"

#include <gmock/gmock.h>

#include <limits>

namespace veritane::simulator {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using tests::ShippedBytes;

std::string WhyRefused(const std::string& bytes) {
  return tests::ErrorTextOf([&] { ReadPrintTemplate("C:\\t.bpt", bytes); }, kInvalidFileFormat);
}

TEST(PrintTemplates, EveryKindOfLineIsReadWithItsAttributes) {
  const PrintTemplate read = ReadPrintTemplate(
      "t",
      "# made up\nTEMPLATE = 1\nPage = Letter, landscape\nTitle = Lot {Sample Name}\n"
      "Text = at 10 20.5, width 80, size 12, bold, right, lines 3, colour #0A3A82 : Time: {Time}\n"
      "Line = through 1 2 3 4 5 6, thickness 0.5\nBox = at 0 0, width 279.4, height 215.9\n"
      "Spectrum = at 10 30, width 100, height 90, sample, markers, range 4000 400\n"
      "Parameters = at 10 130, width 90, height 40, size 7");
  EXPECT_EQ(read.pageWidth, 279.4);
  EXPECT_EQ(read.pageHeight, 215.9);
  EXPECT_EQ(read.title, "Lot {Sample Name}");
  ASSERT_EQ(read.items.size(), 5u);
  const auto& text = std::get<PrintText>(read.items[0]);
  EXPECT_EQ(text.at.y, 20.5);
  EXPECT_EQ(text.width, 80);
  EXPECT_EQ(text.size, 12);
  EXPECT_TRUE(text.bold);
  EXPECT_EQ(text.alignment, TextAlignment::kRight);
  EXPECT_EQ(text.lines, 3);
  EXPECT_EQ(text.colour.blue, 0x82);
  EXPECT_EQ(text.text, "Time: {Time}");
  EXPECT_EQ(std::get<PrintLine>(read.items[1]).points.at(2).y, 6);
  const auto& spectrum = std::get<PrintSpectrum>(read.items[3]);
  EXPECT_TRUE(spectrum.sample && spectrum.markers && !spectrum.standard);
  EXPECT_EQ(*spectrum.range, (platform::AxisLimits{400, 4000}));
  EXPECT_EQ(std::get<PrintParameters>(read.items[4]).area.height, 40);
}

TEST(PrintTemplates, WhatMakesNoSenseIsRefusedWithFileAndLine) {
  const struct {
    const char* lines;
    const char* place;
    const char* reason;
  } refused[] = {
      {"", "C:\\t.bpt", "empty"},
      {"Page = A4", "line 1", "begins with"},
      {"Template = 2", "line 1", "version"},
      {"Template = 1", "line 1", "nothing onto the page"},
      {"Template = 1\nno sense", "line 2", "Key = value"},
      {"Template = 1\n\nPicture = at 1 1", "line 3", "PICTURE"},
      {"Template = 1\nPage = A5", "line 2", "A5"},
      {"Template = 1\nPage = A4, Letter", "line 2", "Page is"},
      {"Template = 1\nPage = size 10 10", "line 2", "50 to 1200"},
      {"Template = 1\nBox = at 1 1, width 1, height 1\nPage = A4", "line 3", "before everything"},
      {"Template = 1\nText = at 10 10", "line 2", "text is missing"},
      {"Template = 1\nText = at 10 10 : {Time", "line 2", "not closed"},
      {"Template = 1\nText = at 10 10 : {Comparison|%s}", "line 2", "no pattern"},
      {"Template = 1\nText = at 10 : a", "line 2", "has 2 numbers"},
      {"Template = 1\nText = at ten 10 : a", "line 2", "no number"},
      {"Template = 1\nText = at nan 10 : a", "line 2", "no number"},
      {"Template = 1\nText = at 10 10, at 11 11 : a", "line 2", "twice"},
      {"Template = 1\nText = at 10 10, blod : a", "line 2", "\"blod\" is not known"},
      {"Template = 1\nText = at 10 10, size 1e9 : a", "line 2", "lies from"},
      {"Template = 1\nText = at 10 10, colour red : a", "line 2", "#RRGGBB"},
      {"Template = 1\nText = at 10 298 : a", "line 2", "beside the page"},
      {"Template = 1\nLine = through 1 2 3", "line 2", "two or more points"},
      {"Template = 1\nBox = at 200 1, width 20, height 1", "line 2", "beside the page"},
      {"Template = 1\nSpectrum = at 1 1, width 20, height 10, markers", "line 2", "sample, standard"},
      {"Template = 1\nSpectrum = at 1 1, width 20, height 10, sample, range 5 5", "line 2", "different"},
  };
  for (const auto& [lines, place, reason] : refused) {
    EXPECT_THAT(WhyRefused(lines), AllOf(HasSubstr("C:\\t.bpt"), HasSubstr(place), HasSubstr(reason)))
        << lines;
  }
}

TEST(PrintTemplates, AShippedTemplateCutOrChangedAnywhereIsReadOrRefused) {
  for (const char* name : {"Certificate of identity.bpt", "Overlay.bpt"}) {
    const std::string whole = ShippedBytes(name);
    ASSERT_EQ(WhyRefused(whole), "");
    for (std::size_t i = 0; i < whole.size(); i += 3) {
      WhyRefused(whole.substr(0, i));
      for (const char wrong : {'\0', '\xff', ',', '{'}) {
        std::string changed = whole;
        changed[i] = wrong;
        WhyRefused(changed);
      }
    }
  }
}

class PrintFields : public ::testing::Test {
protected:
  PrintFields() {
    sample->stored.name = "Lot 7";
    sample->stored.time = "2026/11/21 10:59:00";
    sample->stored.parameters = {
        {"Comparison", 97.346}, {"Sample Name", std::string("Drum 3")},
        {"Octane", 1.25e-7},    {"Blank", std::string(" ")},
        {"Scans", 16.0},        {"Broken", std::numeric_limits<double>::quiet_NaN()}};
    standard->stored.name = "ASA Standard";
  }

  std::string Filled(const std::string& text) const { return FilledIn(text, subject); }

  std::shared_ptr<OpenSpectrum> sample = std::make_shared<OpenSpectrum>();
  std::shared_ptr<OpenSpectrum> standard = std::make_shared<OpenSpectrum>();
  PrintSubject subject{{sample, "C:\\s\\a.bsp"}, {standard, "C:\\r\\b.bsp"}, {2026, 11, 21, 11, 0, 5}};
};

TEST_F(PrintFields, ValuesComeFromSampleStandardAndTheMomentOfPrinting) {
  EXPECT_EQ(Filled("{sample name} / {SpectName}: {Comparison|0.00} %"), "Drum 3 / Lot 7: 97.35 %");
  EXPECT_EQ(Filled("{Comparison} {Scans} {Octane}"), "97.346 16 1.25e-07");
  EXPECT_EQ(Filled("{File} {Standard.File} {Standard.SpectName}"), "a.bsp b.bsp ASA Standard");
  EXPECT_EQ(Filled("{{{Time}} {Printed}"), "{2026/11/21 10:59:00} 2026-11-21 11:00:05");
}

TEST_F(PrintFields, WhatIsMissingEmptyOrNoNumberIsADash) {
  EXPECT_EQ(Filled("{Operator} {Blank} {Broken} {Broken|0.00} {Standard.Comparison}"), "– – – – –");
  subject.standard = {};
  EXPECT_EQ(Filled("{Standard.SpectName} {Standard.File} {Markers}"), "– – –");
}

TEST_F(PrintFields, MarkersStandAtTheirBoundsFallingEachOnce) {
  for (const double peak : {1601.25, 1028.0, 1601.25}) {
    standard->markers.push_back({.x = 1, .definingMethod = kDefinedByBound, .lowerBound = peak});
  }
  sample->markers.push_back({.x = 3026.4});
  EXPECT_THAT(MarkerPlaces(subject), ElementsAre(3026.4, 1601.25, 1028.0));
  EXPECT_EQ(Filled("{Markers}"), "3026.4, 1601.3, 1028");
}

}  // namespace
}  // namespace veritane::simulator
