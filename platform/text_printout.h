// A text as a document to be printed: as many upright pages as it needs, numbered.
#pragma once

#include "platform/printer.h"

#include <string>
#include <vector>

namespace veritane::platform {

// Divides a line into parts no wider than `width` at this text height, broken behind blanks where there are
// any. Together the parts are the line; an empty line is one empty part.
std::vector<std::string> WrapText(const std::string& line, double width, double height,
                                  const DrawingContext& surface);

class TextPrintout : public Printout {
public:
  // Lines end CR LF, LF or CR; a line wider than the page is wrapped.
  TextPrintout(std::string title, const std::string& text);

  PrintKind Kind() const override { return PrintKind::kText; }
  std::string Title() const override { return title_; }
  bool IsLandscape() const override { return false; }
  int LayOut(const DrawingContext& page) override;
  void DrawPage(DrawingContext& page, int number) override;

private:
  const std::string title_;
  const std::vector<std::string> text_lines_;
  // Of the last layout.
  std::vector<std::string> lines_;
  std::size_t lines_per_page_ = 1;
  int page_count_ = 1;
};

}  // namespace veritane::platform
