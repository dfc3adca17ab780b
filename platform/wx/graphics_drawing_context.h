// A drawing surface made of a wxGraphicsContext: a window, a bitmap, a page. Lines stay lines and text stays
// text where the context can keep them.
#pragma once

#include "platform/drawing_context.h"

#include <wx/font.h>
#include <wx/graphics.h>

namespace veritane::platform {

class GraphicsDrawingContext : public DrawingContext {
public:
  // Draws on `graphics`, which must outlive this, an area of the given size from its origin. `font_height` is
  // the height of the usual line of text, in the context's units; `font` gives the typeface.
  GraphicsDrawingContext(wxGraphicsContext& graphics, double width, double height, double font_height,
                         const wxFont& font);

  double Width() const override { return width_; }
  double Height() const override { return height_; }
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
  void UseFont(double height, TextWeight weight, Colour colour) const;
  void UsePen(double width, Colour colour);

  wxGraphicsContext& graphics_;
  double width_;
  double height_;
  double font_height_;
  wxString face_;
};

}  // namespace veritane::platform
