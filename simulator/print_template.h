// Print templates (".bpt"): what stands where on a printed page. docs/print-templates.md describes the file.
//
// Places and lengths on the page are in millimetres from its top left corner, heights of text in points.
#pragma once

#include "platform/chart.h"
#include "platform/drawing_context.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veritane::simulator {

struct PrintArea {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

enum class TextAlignment { kLeft, kCentre, kRight };

// A text with fields: "Lot {Sample Name}, {Comparison|0.00} %". Wraps into as many lines as it may have.
struct PrintText {
  platform::Point at;
  double width = 0;
  double size = 9;
  int lines = 1;
  bool bold = false;
  TextAlignment alignment = TextAlignment::kLeft;
  platform::Colour colour;
  std::string text;
};

// A line through points: a rule, a frame, a part of a logo.
struct PrintLine {
  std::vector<platform::Point> points;
  double thickness = 0.2;
  platform::Colour colour;
};

// A filled rectangle.
struct PrintBox {
  PrintArea area;
  platform::Colour colour;
};

// The spectra over the wavenumbers, with whichever of the three are asked for.
struct PrintSpectrum {
  PrintArea area;
  double size = 8;
  bool sample = false;
  bool standard = false;
  bool markers = false;
  // The wavenumbers shown; nothing for all that the traces have.
  std::optional<platform::AxisLimits> range;
};

// The sample's parameters that no field of the template names, one a line.
struct PrintParameters {
  PrintArea area;
  double size = 8;
};

using PrintItem = std::variant<PrintText, PrintLine, PrintBox, PrintSpectrum, PrintParameters>;

struct PrintTemplate {
  double pageWidth = 210;
  double pageHeight = 297;
  std::string title = "Print";   // of the document; may hold fields
  std::vector<PrintItem> items;  // in the order of drawing
};

// Error kInvalidFileFormat, with `path` and the offending line in its text, for bytes that are no template.
PrintTemplate ReadPrintTemplate(const std::string& path, std::string_view bytes);

}  // namespace veritane::simulator
