// What drawing needs of a surface: a window, a picture, a printed page.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace veritane::platform {

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t alpha = 255;
};

struct Point {
  double x = 0;
  double y = 0;
};

struct TextSize {
  double width = 0;
  double height = 0;
};

enum class TextWeight { kNormal, kBold };

// Coordinates are in the surface's own units from its top left corner, y downwards.
class DrawingContext {
public:
  virtual ~DrawingContext() = default;

  virtual double Width() const = 0;
  virtual double Height() const = 0;
  // Height of the usual text in the surface's units; everything else is measured by it.
  virtual double FontHeight() const = 0;

  virtual TextSize Measure(const std::string& text, double height, TextWeight weight) const = 0;
  // `at` is the top left corner of the text.
  virtual void Text(const std::string& text, Point at, double height, TextWeight weight, Colour colour) = 0;
  // Text turned by 90° against the clock; `at` is the lower left corner of the turned text.
  virtual void TextUpwards(const std::string& text, Point at, double height, Colour colour) = 0;
  virtual void Line(Point from, Point to, double width, Colour colour) = 0;
  virtual void Polyline(std::span<const Point> points, double width, Colour colour) = 0;
  virtual void FillRectangle(Point corner, double width, double height, Colour colour) = 0;
  // Nothing is drawn outside the rectangle until EndClip.
  virtual void BeginClip(Point corner, double width, double height) = 0;
  virtual void EndClip() = 0;
};

}  // namespace veritane::platform
