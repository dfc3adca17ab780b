// A rectangle of a surface as a surface of its own: a chart inside the margins of a page.
#pragma once

#include "platform/drawing_context.h"

namespace veritane::platform {

class PartOfSurface : public DrawingContext {
public:
  // `corner` is the part's top left corner; `font_height` the height of its usual text. The whole surface
  // outlives its part.
  PartOfSurface(DrawingContext& whole, Point corner, double width, double height, double font_height)
      : whole_(whole), corner_(corner), width_(width), height_(height), font_height_(font_height) {}

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
  Point OnWhole(Point point) const { return {corner_.x + point.x, corner_.y + point.y}; }

  DrawingContext& whole_;
  Point corner_;
  double width_;
  double height_;
  double font_height_;
};

}  // namespace veritane::platform
