// Chart and caption on their page.
#include "review/chart_printout.h"

#include "platform/chart_drawing.h"
#include "platform/part_of_surface.h"
#include "platform/text_printout.h"

namespace veritane::review {

void ChartPrintout::DrawPage(platform::DrawingContext& page, int) {
  constexpr double kLineSpacing = 1.35;
  constexpr platform::Colour kInk{0, 0, 0};
  const double unit = page.FontHeight();
  std::vector<std::string> lines;
  if (!caption_.empty()) lines = platform::WrapText(caption_, page.Width(), unit, page);
  const double chart_height =
      page.Height() - unit * kLineSpacing * static_cast<double>(lines.size()) - (lines.empty() ? 0 : unit);
  platform::PartOfSurface chart(page, {0, 0}, page.Width(), chart_height, unit);
  platform::DrawChart(chart_, chart);
  double top = chart_height + unit;
  for (const std::string& line : lines) {
    page.Text(line, {0, top}, unit, platform::TextWeight::kNormal, kInk);
    top += unit * kLineSpacing;
  }
}

}  // namespace veritane::review
