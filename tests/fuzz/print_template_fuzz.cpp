// Feeds arbitrary bytes to the reader of print templates and draws what it takes. Everything drawn has a
// place and a size, texts are no more lines than the template gives them, and clips are closed; what is
// refused is refused with a RunTimeError.
#include "platform/run_time_error.h"
#include "platform/utf8.h"
#include "simulator/print_page.h"
#include "tests/fuzz/require.h"

#include <cmath>

namespace {

using namespace veritane;
using fuzz::Require;
using platform::Colour;
using platform::Point;
using platform::TextWeight;

void RequirePlace(Point at) {
  Require(std::isfinite(at.x) && std::isfinite(at.y));
}

void RequireSize(double size) {
  Require(std::isfinite(size) && size > 0);
}

// Each character is half as wide as the text is high.
class CheckingSurface : public platform::DrawingContext {
public:
  double Width() const override { return 595; }
  double Height() const override { return 842; }
  double FontHeight() const override { return 8; }
  platform::TextSize Measure(const std::string& text, double height, TextWeight) const override {
    RequireSize(height);
    return {static_cast<double>(platform::CharacterCount(text)) * height / 2, height};
  }
  void Text(const std::string& text, Point at, double height, TextWeight, Colour) override {
    Require(platform::IsUtf8(text));
    RequirePlace(at);
    RequireSize(height);
  }
  void TextUpwards(const std::string& text, Point at, double height, Colour colour) override {
    Text(text, at, height, TextWeight::kNormal, colour);
  }
  void Line(Point from, Point to, double width, Colour) override {
    RequirePlace(from);
    RequirePlace(to);
    RequireSize(width);
  }
  void Polyline(std::span<const Point> points, double width, Colour) override {
    for (const Point point : points) RequirePlace(point);
    RequireSize(width);
  }
  void FillRectangle(Point corner, double width, double height, Colour) override {
    RequirePlace(corner);
    RequireSize(width);
    RequireSize(height);
  }
  void BeginClip(Point corner, double width, double height) override {
    FillRectangle(corner, width, height, {});
    ++clips;
  }
  void EndClip() override { --clips; }

  int clips = 0;
};

// 400 to 800 cm⁻¹ in steps of 8 with a band, a gap and two markers.
simulator::PrintedSpectrum Measured(const std::string& units) {
  auto spectrum = std::make_shared<simulator::OpenSpectrum>();
  spectrum->stored.name = "one band";
  spectrum->stored.time = "2026/11/21 10:59:00";
  spectrum->stored.yUnits = units;
  spectrum->stored.spacing = 8;
  spectrum->stored.ordinates.lower = 50;
  for (int i = 0; i <= 50; ++i) spectrum->stored.ordinates.values.push_back(1.0 / (1 + (i - 20) * (i - 20)));
  spectrum->stored.ordinates.values[40] = std::nan("");
  spectrum->stored.parameters = {{"Sample Name", "Lot 7, Säule 3"}, {"Comparison", 97.345}, {"Remark", ""}};
  spectrum->markers = {{.x = 560, .definingMethod = 0}, {.x = 1, .definingMethod = 2, .lowerBound = 720.25}};
  return {spectrum, "C:\\Data\\Samples\\ASA-100.bsp"};
}

void RequireDrawable(const simulator::PrintTemplate& page) {
  static const simulator::PrintSubject whole{Measured("ABSORBANCE"), Measured("TRANSMITTANCE"), {}};
  static const simulator::PrintSubject alone{Measured("ABSORBANCE"), {}, {}};
  const platform::PdfPageSize size = simulator::PageSize(page);
  RequireSize(size.width);
  RequireSize(size.height);
  for (const simulator::PrintSubject* subject : {&whole, &alone}) {
    CheckingSurface surface;
    simulator::DrawPage(page, *subject, surface);
    Require(surface.clips == 0);
    for (const simulator::PrintItem& item : page.items) {
      const auto* const text = std::get_if<simulator::PrintText>(&item);
      if (text == nullptr) continue;
      const auto lines = simulator::Wrapped(simulator::FilledIn(text->text, *subject), text->width,
                                            text->size, TextWeight::kNormal, text->lines, surface);
      Require(!lines.empty() && lines.size() <= static_cast<std::size_t>(text->lines));
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::BytesOf(data, size);
  simulator::PrintTemplate page;
  try {
    page = simulator::ReadPrintTemplate("fuzzed.bpt", bytes);
  } catch (const platform::RunTimeError&) {
    return 0;
  }
  Require(!page.items.empty() && page.items.size() < size);
  RequireDrawable(page);
  return 0;
}
