// A surface that remembers what was drawn on it.
#pragma once

#include "platform/drawing_context.h"
#include "platform/utf8.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace veritane::tests {

// Every character is half as wide as it is high.
class RecordingSurface : public platform::DrawingContext {
public:
  struct DrawnText {
    std::string text;
    platform::Point at;
    double height;
    platform::TextWeight weight;
    platform::Colour colour;
  };
  struct DrawnLine {
    std::vector<platform::Point> points;
    platform::Colour colour;
  };

  explicit RecordingSurface(double width = 1000, double height = 600, double font = 16)
      : width_(width), height_(height), font_(font) {}

  double Width() const override { return width_; }
  double Height() const override { return height_; }
  double FontHeight() const override { return font_; }
  platform::TextSize Measure(const std::string& text, double height, platform::TextWeight) const override {
    return {static_cast<double>(platform::CharacterCount(text)) * height / 2, height};
  }
  void Text(const std::string& text, platform::Point at, double height, platform::TextWeight weight,
            platform::Colour colour) override {
    texts.push_back({text, at, height, weight, colour});
  }
  void TextUpwards(const std::string& text, platform::Point at, double height,
                   platform::Colour colour) override {
    upward.push_back({text, at, height, platform::TextWeight::kNormal, colour});
  }
  void Line(platform::Point from, platform::Point to, double, platform::Colour colour) override {
    strokes.push_back({{from, to}, colour});
  }
  void Polyline(std::span<const platform::Point> points, double, platform::Colour colour) override {
    lines.push_back({{points.begin(), points.end()}, colour});
  }
  void FillRectangle(platform::Point corner, double width, double height, platform::Colour colour) override {
    areas.push_back({{corner, {corner.x + width, corner.y + height}}, colour});
  }
  void BeginClip(platform::Point, double, double) override { ++open_clips; }
  void EndClip() override { --open_clips; }

  const DrawnText* Find(const std::string& text) const {
    const auto found = std::ranges::find(texts, text, &DrawnText::text);
    return found == texts.end() ? nullptr : &*found;
  }

  std::vector<DrawnText> texts;
  std::vector<DrawnText> upward;
  std::vector<DrawnLine> lines;
  std::vector<DrawnLine> strokes;
  std::vector<DrawnLine> areas;  // two opposite corners
  int open_clips = 0;

private:
  double width_;
  double height_;
  double font_;
};

}  // namespace veritane::tests
