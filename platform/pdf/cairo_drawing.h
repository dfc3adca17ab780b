// Drawing through cairo, in points, on whatever a cairo context draws on.
#pragma once

#include "platform/drawing_context.h"
#include "platform/pdf_page.h"

#include <cairo.h>

namespace veritane::platform {

// What lies at no finite place is left out; bytes that are no text are written as Windows-1252.
class CairoDrawing : public DrawingContext {
public:
  // The context's units are points. It outlives this object.
  CairoDrawing(cairo_t* cairo, PdfPageSize page, double font_height);

  double Width() const override { return size_.width; }
  double Height() const override { return size_.height; }
  double FontHeight() const override { return font_height_; }

  TextSize Measure(const std::string& text, double height, TextWeight weight) const override;
  void Text(const std::string& text, Point at, double height, TextWeight weight, Colour colour) override;
  void TextUpwards(const std::string& text, Point at, double height, Colour colour) override;
  void Line(Point from, Point to, double width, Colour colour) override;
  void Polyline(std::span<const Point> points, double width, Colour colour) override;
  void FillRectangle(Point corner, double width, double height, Colour colour) override;
  void BeginClip(Point corner, double width, double height) override;
  void EndClip() override;

private:
  void UnhintText();
  cairo_font_extents_t UseFont(double height, TextWeight weight) const;
  void UseColour(Colour colour);
  // Whether the rectangle is one and was added to the path.
  bool AddRectangle(Point corner, double width, double height);

  cairo_t* cairo_;
  const PdfPageSize size_;
  const double font_height_;
};

// The text without what cairo refuses, and with it the whole page: control characters and code points that
// are no characters.
std::string Printable(const std::string& text);

struct DestroySurface {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct DestroyContext {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};

}  // namespace veritane::platform
