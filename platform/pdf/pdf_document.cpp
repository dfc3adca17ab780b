// Pages drawn by cairo into a PDF.
#include "platform/pdf/pdf_document.h"

#include "platform/pdf/cairo_drawing.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"

#include <cairo-pdf.h>

#include <exception>

namespace veritane::platform {

namespace {

// The largest page that PDF 1.x readers open.
constexpr double kLargestSide = 200 * kPointsPerInch;

cairo_status_t Append(void* bytes, const unsigned char* data, unsigned int length) {
  try {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::exception&) {
    // Nothing may be thrown through the library; the surface's status tells it.
    return CAIRO_STATUS_WRITE_ERROR;
  }
}

void RequirePage(PdfPageSize page) {
  for (const double side : {page.width, page.height}) {
    if (!(side >= 1 && side <= kLargestSide)) {
      throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kPageSides));
    }
  }
}

}  // namespace

class PdfDocument::CairoPage {
public:
  CairoPage(PdfPageSize page, const PdfDescription& description)
      : surface_(cairo_pdf_surface_create_for_stream(Append, &bytes_, page.width, page.height)),
        cairo_(cairo_create(surface_.get())),
        drawing_(cairo_.get(), page, description.fontHeight) {
    cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_TITLE,
                                   Printable(description.title).c_str());
    cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATE_DATE,
                                   MomentText(description.created, '-', 'T', ':').c_str());
  }

  DrawingContext& Drawing() { return drawing_; }

  void NextPage() {
    if (finished_) throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kDocumentFinished));
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

private:
  // The surface writes into the bytes until it is destroyed, so they come first.
  std::string bytes_;
  std::unique_ptr<cairo_surface_t, DestroySurface> surface_;
  std::unique_ptr<cairo_t, DestroyContext> cairo_;
  CairoDrawing drawing_;
  bool finished_ = false;
};

PdfDocument::PdfDocument(PdfPageSize page, const PdfDescription& description) {
  RequirePage(page);
  page_ = std::make_unique<CairoPage>(page, description);
}

PdfDocument::~PdfDocument() = default;

DrawingContext& PdfDocument::Page() {
  return page_->Drawing();
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
