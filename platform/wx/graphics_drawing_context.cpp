// Drawing on a wxGraphicsContext.
#include "platform/wx/graphics_drawing_context.h"

#include "platform/wx/wx_text.h"

#include <wx/brush.h>
#include <wx/fontenum.h>

#include <map>
#include <numbers>
#include <vector>

namespace veritane::platform {

namespace {

wxColour WxColour(Colour colour) {
  return {colour.red, colour.green, colour.blue, colour.alpha};
}

// The face of a font that is installed. Systems name fonts for their screens that are none ("MS Shell Dlg"):
// controls are drawn with what stands behind the name, but a drawing with no text at all.
wxString InstalledFace(const wxFont& font) {
  static std::map<wxString, wxString> known;
  wxString& installed = known[font.GetFaceName()];
  if (!installed.empty()) return installed;
  // In the list itself: the toolkit's own answer takes those names for fonts.
  const wxArrayString all = wxFontEnumerator::GetFacenames();
  for (const wxString& face :
       {font.GetFaceName(), wxString("Segoe UI"), wxString("Tahoma"), wxString("DejaVu Sans")}) {
    if (all.Index(face, false) != wxNOT_FOUND) return installed = face;
  }
  return installed = all.empty() ? font.GetFaceName() : all.front();
}

}  // namespace

GraphicsDrawingContext::GraphicsDrawingContext(wxGraphicsContext& graphics, double width, double height,
                                               double font_height, const wxFont& font)
    : graphics_(graphics),
      width_(width),
      height_(height),
      font_height_(font_height),
      face_(InstalledFace(font)) {}

void GraphicsDrawingContext::UseFont(double height, TextWeight weight, Colour colour) const {
  const int flags = weight == TextWeight::kBold ? wxFONTFLAG_BOLD : wxFONTFLAG_DEFAULT;
  graphics_.SetFont(graphics_.CreateFont(height, face_, flags, WxColour(colour)));
}

void GraphicsDrawingContext::UsePen(double width, Colour colour) {
  graphics_.SetPen(
      graphics_.CreatePen(wxGraphicsPenInfo(WxColour(colour), width).Join(wxJOIN_ROUND).Cap(wxCAP_ROUND)));
}

TextSize GraphicsDrawingContext::Measure(const std::string& text, double height, TextWeight weight) const {
  UseFont(height, weight, {});
  TextSize size;
  graphics_.GetTextExtent(ToWx(text), &size.width, &size.height);
  return size;
}

void GraphicsDrawingContext::Text(const std::string& text, Point at, double height, TextWeight weight,
                                  Colour colour) {
  UseFont(height, weight, colour);
  graphics_.DrawText(ToWx(text), at.x, at.y);
}

void GraphicsDrawingContext::TextUpwards(const std::string& text, Point at, double height, Colour colour) {
  UseFont(height, TextWeight::kNormal, colour);
  graphics_.DrawText(ToWx(text), at.x, at.y, std::numbers::pi / 2);
}

void GraphicsDrawingContext::Line(Point from, Point to, double width, Colour colour) {
  UsePen(width, colour);
  graphics_.StrokeLine(from.x, from.y, to.x, to.y);
}

void GraphicsDrawingContext::Polyline(std::span<const Point> points, double width, Colour colour) {
  if (points.size() < 2) return;
  UsePen(width, colour);
  wxGraphicsPath path = graphics_.CreatePath();
  path.MoveToPoint(points.front().x, points.front().y);
  for (const Point& point : points.subspan(1)) path.AddLineToPoint(point.x, point.y);
  graphics_.StrokePath(path);
}

void GraphicsDrawingContext::FillRectangle(Point corner, double width, double height, Colour colour) {
  graphics_.SetPen(wxNullGraphicsPen);
  graphics_.SetBrush(graphics_.CreateBrush(wxBrush(WxColour(colour))));
  graphics_.DrawRectangle(corner.x, corner.y, width, height);
}

void GraphicsDrawingContext::BeginClip(Point corner, double width, double height) {
  graphics_.PushState();
  graphics_.Clip(corner.x, corner.y, width, height);
}

void GraphicsDrawingContext::EndClip() {
  graphics_.PopState();
}

}  // namespace veritane::platform
