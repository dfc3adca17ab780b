// Text and lines by cairo.
#include "platform/pdf/cairo_drawing.h"

#include "platform/text_file.h"
#include "platform/utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace veritane::platform {

namespace {

// The usual one of the system.
#ifdef _WIN32
constexpr const char* kTypeface = "Segoe UI";
#else
constexpr const char* kTypeface = "DejaVu Sans";
#endif
// The library keeps places as fixed-point numbers; beyond this they would wrap around.
constexpr double kFarthest = 1e6;

bool IsPlace(Point point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

Point InReach(Point point) {
  return {std::clamp(point.x, -kFarthest, kFarthest), std::clamp(point.y, -kFarthest, kFarthest)};
}

bool IsNoCharacter(char32_t code_point) {
  return (code_point >= 0xfdd0 && code_point <= 0xfdef) || (code_point & 0xfffe) == 0xfffe;
}

}  // namespace

std::string Printable(const std::string& text) {
  std::string printable;
  for (const char32_t code_point : DecodeUtf8(DecodeText(text))) {
    const bool is_control = code_point < ' ' || code_point == 0x7f;
    printable += EncodeUtf8(is_control ? U' ' : IsNoCharacter(code_point) ? 0xfffd : code_point);
  }
  return printable;
}

CairoDrawing::CairoDrawing(cairo_t* cairo, PdfPageSize page, double font_height)
    : cairo_(cairo), size_(page), font_height_(font_height) {
  cairo_set_line_join(cairo_, CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_cap(cairo_, CAIRO_LINE_CAP_ROUND);
  UnhintText();
}

TextSize CairoDrawing::Measure(const std::string& text, double height, TextWeight weight) const {
  const cairo_font_extents_t font = UseFont(height, weight);
  cairo_text_extents_t extents;
  cairo_text_extents(cairo_, Printable(text).c_str(), &extents);
  return {extents.x_advance, font.ascent + font.descent};
}

void CairoDrawing::Text(const std::string& text, Point at, double height, TextWeight weight, Colour colour) {
  if (!IsPlace(at)) return;
  at = InReach(at);
  const cairo_font_extents_t font = UseFont(height, weight);
  UseColour(colour);
  cairo_move_to(cairo_, at.x, at.y + font.ascent);
  cairo_show_text(cairo_, Printable(text).c_str());
  cairo_new_path(cairo_);
}

void CairoDrawing::TextUpwards(const std::string& text, Point at, double height, Colour colour) {
  if (!IsPlace(at)) return;
  at = InReach(at);
  cairo_save(cairo_);
  cairo_translate(cairo_, at.x, at.y);
  cairo_rotate(cairo_, -std::numbers::pi / 2);
  Text(text, {0, 0}, height, TextWeight::kNormal, colour);
  cairo_restore(cairo_);
}

void CairoDrawing::Line(Point from, Point to, double width, Colour colour) {
  Polyline(std::array{from, to}, width, colour);
}

void CairoDrawing::Polyline(std::span<const Point> points, double width, Colour colour) {
  if (points.size() < 2 || !std::ranges::all_of(points, IsPlace)) return;
  for (const Point& point : points) {
    const Point near = InReach(point);
    cairo_line_to(cairo_, near.x, near.y);
  }
  UseColour(colour);
  cairo_set_line_width(cairo_, width);
  cairo_stroke(cairo_);
}

void CairoDrawing::FillRectangle(Point corner, double width, double height, Colour colour) {
  if (!AddRectangle(corner, width, height)) return;
  UseColour(colour);
  cairo_fill(cairo_);
}

void CairoDrawing::BeginClip(Point corner, double width, double height) {
  cairo_save(cairo_);
  // A rectangle that is none clips everything away.
  AddRectangle(corner, width, height);
  cairo_clip(cairo_);
}

void CairoDrawing::EndClip() {
  cairo_restore(cairo_);
}

// Letters stand where their outlines say, whatever the resolution they are looked at in.
void CairoDrawing::UnhintText() {
  cairo_font_options_t* const options = cairo_font_options_create();
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_set_font_options(cairo_, options);
  cairo_font_options_destroy(options);
}

cairo_font_extents_t CairoDrawing::UseFont(double height, TextWeight weight) const {
  cairo_select_font_face(cairo_, kTypeface, CAIRO_FONT_SLANT_NORMAL,
                         weight == TextWeight::kBold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(cairo_, height);
  cairo_font_extents_t extents;
  cairo_font_extents(cairo_, &extents);
  return extents;
}

void CairoDrawing::UseColour(Colour colour) {
  cairo_set_source_rgba(cairo_, colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0,
                        colour.alpha / 255.0);
}

bool CairoDrawing::AddRectangle(Point corner, double width, double height) {
  const Point opposite{corner.x + width, corner.y + height};
  if (!IsPlace(corner) || !IsPlace(opposite)) return false;
  const Point from = InReach(corner);
  const Point to = InReach(opposite);
  cairo_rectangle(cairo_, from.x, from.y, to.x - from.x, to.y - from.y);
  return true;
}

}  // namespace veritane::platform
