// Passing drawing on to the whole surface, moved to where the part lies.
#include "platform/part_of_surface.h"

#include <vector>

namespace veritane::platform {

TextSize PartOfSurface::Measure(const std::string& text, double height, TextWeight weight) const {
  return whole_.Measure(text, height, weight);
}

void PartOfSurface::Text(const std::string& text, Point at, double height, TextWeight weight, Colour colour) {
  whole_.Text(text, OnWhole(at), height, weight, colour);
}

void PartOfSurface::TextUpwards(const std::string& text, Point at, double height, Colour colour) {
  whole_.TextUpwards(text, OnWhole(at), height, colour);
}

void PartOfSurface::Line(Point from, Point to, double width, Colour colour) {
  whole_.Line(OnWhole(from), OnWhole(to), width, colour);
}

void PartOfSurface::Polyline(std::span<const Point> points, double width, Colour colour) {
  std::vector<Point> moved;
  moved.reserve(points.size());
  for (const Point& point : points) moved.push_back(OnWhole(point));
  whole_.Polyline(moved, width, colour);
}

void PartOfSurface::FillRectangle(Point corner, double width, double height, Colour colour) {
  whole_.FillRectangle(OnWhole(corner), width, height, colour);
}

void PartOfSurface::BeginClip(Point corner, double width, double height) {
  whole_.BeginClip(OnWhole(corner), width, height);
}

void PartOfSurface::EndClip() {
  whole_.EndClip();
}

}  // namespace veritane::platform
