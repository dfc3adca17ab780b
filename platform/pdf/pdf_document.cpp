// Pages drawn by cairo into a PDF.
#include "platform/pdf/pdf_document.h"

#include <cairo-pdf.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <exception>
#include <numbers>

#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/utf8.h"

namespace veritane::platform {

namespace {

constexpr const char* kTypeface = "DejaVu Sans";
// The largest page that PDF 1.x readers open.
constexpr double kLargestSide = 200 * kPointsPerInch;
// The library keeps places as fixed-point numbers; beyond this they would wrap around.
constexpr double kFarthest = 1e6;

bool IsPlace(Point point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

Point InReach(Point point) {
  return {std::clamp(point.x, -kFarthest, kFarthest), std::clamp(point.y, -kFarthest, kFarthest)};
}

// What the library refuses, and with it the whole page: control characters and code points that are no
// characters.
bool IsNoCharacter(char32_t code_point) {
  return (code_point >= 0xfdd0 && code_point <= 0xfdef) || (code_point & 0xfffe) == 0xfffe;
}

std::string Printable(const std::string& text) {
  std::string printable;
  for (const char32_t code_point : DecodeUtf8(DecodeText(text))) {
    const bool is_control = code_point < ' ' || code_point == 0x7f;
    printable += EncodeUtf8(is_control ? U' ' : IsNoCharacter(code_point) ? 0xfffd : code_point);
  }
  return printable;
}

std::string IsoText(const DateTime& moment) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d", moment.year, moment.month,
                moment.day, moment.hour, moment.minute, moment.second);
  return text.data();
}

cairo_status_t Append(void* bytes, const unsigned char* data, unsigned int length) {
  try {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::exception&) {
    // Nothing may be thrown through the library; the surface's status tells it.
    return CAIRO_STATUS_WRITE_ERROR;
  }
}

struct DestroySurface {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct DestroyContext {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};

void RequirePage(PdfPageSize page) {
  for (const double side : {page.width, page.height}) {
    if (!(side >= 1 && side <= kLargestSide)) {
      throw RunTimeError(ErrorNumber::kInvalidCall, "a page's sides are 1 to 14400 points long");
    }
  }
}

}  // namespace

class PdfDocument::CairoPage : public DrawingContext {
public:
  CairoPage(PdfPageSize page, const PdfDescription& description)
      : size_(page),
        font_height_(description.fontHeight),
        surface_(cairo_pdf_surface_create_for_stream(Append, &bytes_, page.width, page.height)),
        cairo_(cairo_create(surface_.get())) {
    cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_TITLE,
                                   Printable(description.title).c_str());
    cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATE_DATE,
                                   IsoText(description.created).c_str());
    cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
    cairo_set_line_cap(cairo_.get(), CAIRO_LINE_CAP_ROUND);
    UnhintText();
  }

  void NextPage() {
    if (finished_) throw RunTimeError(ErrorNumber::kInvalidCall, "the document is finished");
    cairo_show_page(cairo_.get());
  }

  std::string Finish() {
    NextPage();
    finished_ = true;
    const cairo_status_t drawn = cairo_status(cairo_.get());
    cairo_surface_finish(surface_.get());
    const cairo_status_t written = cairo_surface_status(surface_.get());
    for (const cairo_status_t status : {drawn, written}) {
      if (status != CAIRO_STATUS_SUCCESS) {
        throw RunTimeError(ErrorNumber::kDeviceError, cairo_status_to_string(status));
      }
    }
    return std::move(bytes_);
  }

  double Width() const override { return size_.width; }
  double Height() const override { return size_.height; }
  double FontHeight() const override { return font_height_; }

  TextSize Measure(const std::string& text, double height, TextWeight weight) const override {
    const cairo_font_extents_t font = UseFont(height, weight);
    cairo_text_extents_t extents;
    cairo_text_extents(cairo_.get(), Printable(text).c_str(), &extents);
    return {extents.x_advance, font.ascent + font.descent};
  }

  void Text(const std::string& text, Point at, double height, TextWeight weight, Colour colour) override {
    if (!IsPlace(at)) return;
    at = InReach(at);
    const cairo_font_extents_t font = UseFont(height, weight);
    UseColour(colour);
    cairo_move_to(cairo_.get(), at.x, at.y + font.ascent);
    cairo_show_text(cairo_.get(), Printable(text).c_str());
    cairo_new_path(cairo_.get());
  }

  void TextUpwards(const std::string& text, Point at, double height, Colour colour) override {
    if (!IsPlace(at)) return;
    at = InReach(at);
    cairo_save(cairo_.get());
    cairo_translate(cairo_.get(), at.x, at.y);
    cairo_rotate(cairo_.get(), -std::numbers::pi / 2);
    Text(text, {0, 0}, height, TextWeight::kNormal, colour);
    cairo_restore(cairo_.get());
  }

  void Line(Point from, Point to, double width, Colour colour) override {
    Polyline(std::array{from, to}, width, colour);
  }

  void Polyline(std::span<const Point> points, double width, Colour colour) override {
    if (points.size() < 2 || !std::ranges::all_of(points, IsPlace)) return;
    for (const Point& point : points) {
      const Point near = InReach(point);
      cairo_line_to(cairo_.get(), near.x, near.y);
    }
    UseColour(colour);
    cairo_set_line_width(cairo_.get(), width);
    cairo_stroke(cairo_.get());
  }

  void FillRectangle(Point corner, double width, double height, Colour colour) override {
    if (!AddRectangle(corner, width, height)) return;
    UseColour(colour);
    cairo_fill(cairo_.get());
  }

  void BeginClip(Point corner, double width, double height) override {
    cairo_save(cairo_.get());
    // A rectangle that is none clips everything away.
    AddRectangle(corner, width, height);
    cairo_clip(cairo_.get());
  }

  void EndClip() override { cairo_restore(cairo_.get()); }

private:
  // Letters stand where their outlines say, whatever the resolution they are looked at in.
  void UnhintText() {
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_set_font_options(cairo_.get(), options);
    cairo_font_options_destroy(options);
  }

  cairo_font_extents_t UseFont(double height, TextWeight weight) const {
    cairo_select_font_face(cairo_.get(), kTypeface, CAIRO_FONT_SLANT_NORMAL,
                           weight == TextWeight::kBold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cairo_.get(), height);
    cairo_font_extents_t extents;
    cairo_font_extents(cairo_.get(), &extents);
    return extents;
  }

  void UseColour(Colour colour) {
    cairo_set_source_rgba(cairo_.get(), colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0,
                          colour.alpha / 255.0);
  }

  // Whether the rectangle is one and was added to the path.
  bool AddRectangle(Point corner, double width, double height) {
    const Point opposite{corner.x + width, corner.y + height};
    if (!IsPlace(corner) || !IsPlace(opposite)) return false;
    const Point from = InReach(corner);
    const Point to = InReach(opposite);
    cairo_rectangle(cairo_.get(), from.x, from.y, to.x - from.x, to.y - from.y);
    return true;
  }

  const PdfPageSize size_;
  const double font_height_;
  // The surface writes into the bytes until it is destroyed, so they come first.
  std::string bytes_;
  std::unique_ptr<cairo_surface_t, DestroySurface> surface_;
  std::unique_ptr<cairo_t, DestroyContext> cairo_;
  bool finished_ = false;
};

PdfDocument::PdfDocument(PdfPageSize page, const PdfDescription& description) {
  RequirePage(page);
  page_ = std::make_unique<CairoPage>(page, description);
}

PdfDocument::~PdfDocument() = default;

DrawingContext& PdfDocument::Page() {
  return *page_;
}

void PdfDocument::NextPage() {
  page_->NextPage();
}

std::string PdfDocument::Finish() {
  return page_->Finish();
}

std::string MakePdf(PdfPageSize page, const PdfDescription& description,
                    const std::function<void(DrawingContext&)>& draw) {
  PdfDocument document(page, description);
  draw(document.Page());
  return document.Finish();
}

}  // namespace veritane::platform
