// Breaking a text into lines and pages.
#include "platform/text_printout.h"

#include "platform/texts.h"
#include "platform/utf8.h"

#include <algorithm>
#include <cmath>

namespace veritane::platform {

namespace {

constexpr double kLineSpacing = 1.35;
constexpr double kFooterLines = 2;
constexpr Colour kInk{0, 0, 0};
constexpr std::string_view kTab = "    ";

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool is_pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (text[i] == '\t') {
      lines.back() += kTab;
    } else if (text[i] == '\n' || (text[i] == '\r' && !is_pair)) {
      lines.emplace_back();
    } else if (!is_pair) {
      lines.back() += text[i];
    }
  }
  // The end of the last line begins no line of its own.
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

// How many characters of the line fit, at least one.
std::size_t FittingCharacters(const std::string& line, double width, double height,
                              const DrawingContext& surface) {
  const auto fits = [&](std::size_t count) {
    return surface.Measure(Characters(line, 0, count), height, TextWeight::kNormal).width <= width;
  };
  std::size_t too_many = CharacterCount(line) + 1;
  if (fits(too_many - 1)) return too_many - 1;
  std::size_t fitting = 1;
  while (fitting + 1 < too_many) {
    const std::size_t middle = (fitting + too_many) / 2;
    (fits(middle) ? fitting : too_many) = middle;
  }
  return fitting;
}

}  // namespace

std::vector<std::string> WrapText(const std::string& line, double width, double height,
                                  const DrawingContext& surface) {
  std::vector<std::string> parts;
  std::string rest = line;
  while (true) {
    const std::string head = Characters(rest, 0, FittingCharacters(rest, width, height, surface));
    if (head.size() == rest.size()) break;
    const std::size_t blank = head.find_last_of(' ');
    const std::size_t end = blank == std::string::npos ? head.size() : blank + 1;
    parts.push_back(rest.substr(0, end));
    rest.erase(0, end);
  }
  parts.push_back(std::move(rest));
  return parts;
}

TextPrintout::TextPrintout(std::string title, const std::string& text)
    : title_(std::move(title)), text_lines_(LinesOf(text)) {}

int TextPrintout::LayOut(const DrawingContext& page) {
  lines_.clear();
  for (const std::string& line : text_lines_) {
    for (std::string& part : WrapText(line, page.Width(), page.FontHeight(), page)) {
      lines_.push_back(std::move(part));
    }
  }
  const double room = page.Height() / (page.FontHeight() * kLineSpacing) - kFooterLines;
  lines_per_page_ = static_cast<std::size_t>(std::max(1.0, std::floor(room)));
  page_count_ = std::max(1, static_cast<int>((lines_.size() + lines_per_page_ - 1) / lines_per_page_));
  return page_count_;
}

void TextPrintout::DrawPage(DrawingContext& page, int number) {
  const double unit = page.FontHeight();
  const std::size_t begin = static_cast<std::size_t>(number - 1) * lines_per_page_;
  const std::size_t end = std::min(begin + lines_per_page_, lines_.size());
  double top = 0;
  for (std::size_t i = begin; i < end; ++i) {
    page.Text(lines_[i], {0, top}, unit, TextWeight::kNormal, kInk);
    top += unit * kLineSpacing;
  }
  const std::string footer =
      Text(TextId::kPageOf, {title_, std::to_string(number), std::to_string(page_count_)});
  page.Text(footer, {0, page.Height() - unit * kLineSpacing}, unit, TextWeight::kNormal, kInk);
}

}  // namespace veritane::platform
