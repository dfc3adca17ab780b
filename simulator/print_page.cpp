// Drawing a print template, item by item.
#include "simulator/print_page.h"

#include "platform/chart_layout.h"
#include "platform/part_of_surface.h"
#include "platform/windows_path.h"
#include "simulator/print_plot.h"

#include <utility>

namespace veritane::simulator {

namespace {

using platform::Colour;
using platform::kPointsPerMillimetre;
using platform::PartOfSurface;
using platform::Point;
using platform::TextWeight;

constexpr Colour kInk{0, 0, 0};
constexpr double kLineSpacing = 1.3;
// Share of the width that the names of parameters have.
constexpr double kNameColumn = 0.5;

Point OnPage(Point millimetres) {
  return {millimetres.x * kPointsPerMillimetre, millimetres.y * kPointsPerMillimetre};
}

std::set<std::string> NamedFields(const PrintTemplate& print_template) {
  std::set<std::string> names = FieldNames(print_template.title);
  for (const PrintItem& item : print_template.items) {
    if (const auto* const text = std::get_if<PrintText>(&item)) names.merge(FieldNames(text->text));
  }
  return names;
}

class Painter {
public:
  Painter(const PrintTemplate& print_template, const PrintSubject& subject, platform::DrawingContext& page)
      : template_(print_template), subject_(subject), page_(page) {}

  void operator()(const PrintText& text) {
    const Point at = OnPage(text.at);
    const double width = text.width * kPointsPerMillimetre;
    const TextWeight weight = text.bold ? TextWeight::kBold : TextWeight::kNormal;
    double top = at.y;
    for (const std::string& line :
         Wrapped(FilledIn(text.text, subject_), width, text.size, weight, text.lines, page_)) {
      const double left_over = width - page_.Measure(line, text.size, weight).width;
      double left = at.x;
      if (text.alignment == TextAlignment::kCentre) left += left_over / 2;
      if (text.alignment == TextAlignment::kRight) left += left_over;
      page_.Text(line, {left, top}, text.size, weight, text.colour);
      top += text.size * kLineSpacing;
    }
  }

  void operator()(const PrintLine& line) {
    std::vector<Point> points;
    for (const Point& point : line.points) points.push_back(OnPage(point));
    page_.Polyline(points, line.thickness * kPointsPerMillimetre, line.colour);
  }

  void operator()(const PrintBox& box) {
    page_.FillRectangle(OnPage({box.area.left, box.area.top}), box.area.width * kPointsPerMillimetre,
                        box.area.height * kPointsPerMillimetre, box.colour);
  }

  void operator()(const PrintSpectrum& spectrum) {
    PartOfSurface part = PartOf(spectrum.area, spectrum.size);
    DrawPlot(spectrum, subject_, part);
  }

  void operator()(const PrintParameters& list) {
    if (!subject_.sample.spectrum) return;
    PartOfSurface part = PartOf(list.area, list.size);
    const auto rows = UnnamedParameters();
    const double row_height = list.size * kLineSpacing;
    const auto room = static_cast<std::size_t>(part.Height() / row_height);
    const std::size_t shown = rows.size() <= room ? rows.size() : room == 0 ? 0 : room - 1;
    const double value_left = part.Width() * kNameColumn;
    for (std::size_t i = 0; i < shown; ++i) {
      const double top = row_height * static_cast<double>(i);
      WriteCell(part, rows[i].first, {0, top}, value_left - list.size * 0.5);
      WriteCell(part, rows[i].second, {value_left, top}, part.Width() - value_left);
    }
    if (shown < rows.size()) {
      const std::string rest = "… and " + std::to_string(rows.size() - shown) + " more";
      WriteCell(part, rest, {0, row_height * static_cast<double>(shown)}, part.Width());
    }
  }

private:
  PartOfSurface PartOf(const PrintArea& area, double size) {
    return {page_, OnPage({area.left, area.top}), area.width * kPointsPerMillimetre,
            area.height * kPointsPerMillimetre, size};
  }

  static void WriteCell(PartOfSurface& part, const std::string& text, Point at, double width) {
    const double height = part.FontHeight();
    part.Text(platform::FitText(text, width, height, TextWeight::kNormal, part), at, height,
              TextWeight::kNormal, kInk);
  }

  std::vector<std::pair<std::string, std::string>> UnnamedParameters() const {
    const std::set<std::string> named = NamedFields(template_);
    std::vector<std::pair<std::string, std::string>> rows;
    for (const NamedValue& parameter : subject_.sample.spectrum->stored.parameters) {
      if (named.contains(platform::UpperCase(parameter.name))) continue;
      rows.emplace_back(parameter.name, ValueText(parameter.value));
    }
    return rows;
  }

  const PrintTemplate& template_;
  const PrintSubject& subject_;
  platform::DrawingContext& page_;
};

}  // namespace

platform::PdfPageSize PageSize(const PrintTemplate& print_template) {
  return {print_template.pageWidth * kPointsPerMillimetre, print_template.pageHeight * kPointsPerMillimetre};
}

void DrawPage(const PrintTemplate& print_template, const PrintSubject& subject,
              platform::DrawingContext& page) {
  Painter painter(print_template, subject, page);
  for (const PrintItem& item : print_template.items) std::visit(painter, item);
}

std::vector<std::string> Wrapped(const std::string& text, double width, double height, TextWeight weight,
                                 int lines, const platform::DrawingContext& surface) {
  std::vector<std::string> wrapped;
  std::string rest = text;
  while (static_cast<int>(wrapped.size()) + 1 < lines) {
    // The longest beginning that fits and ends at a blank.
    std::size_t end = std::string::npos;
    if (surface.Measure(rest, height, weight).width > width) {
      end = 0;
      for (std::size_t blank = rest.find(' '); blank != std::string::npos;
           blank = rest.find(' ', blank + 1)) {
        if (surface.Measure(rest.substr(0, blank), height, weight).width > width) break;
        end = blank;
      }
    }
    if (end == std::string::npos || end == 0) break;
    wrapped.push_back(rest.substr(0, end));
    rest.erase(0, end + 1);
  }
  wrapped.push_back(platform::FitText(rest, width, height, weight, surface));
  return wrapped;
}

}  // namespace veritane::simulator
