// Pages as a PDF of vectors and embedded text, made in memory: whoever made it writes the bytes with
// FileSystem::WriteBytes, so that a file is there whole or not at all.
#pragma once

#include "platform/drawing_context.h"
#include "platform/pdf_page.h"

#include <memory>
#include <string>

namespace veritane::platform {

class PdfDocument {
public:
  // Error 5 for a page that is no page (not finite, below a point, beyond 200 inches).
  PdfDocument(PdfPageSize page, const PdfDescription& description);
  ~PdfDocument();
  PdfDocument(const PdfDocument&) = delete;
  PdfDocument& operator=(const PdfDocument&) = delete;

  // The page's surface, in points from its top left corner. Lives as long as the document. What lies at no
  // finite place is left out; bytes that are no text are written as Windows-1252.
  DrawingContext& Page();

  // Ends the page; Page() is from then on the next one, empty and of the same size.
  void NextPage();

  // Ends the last page and hands over the file's bytes. Nothing can be drawn from then on: a second call is
  // error 5. Error 57 when the page could not be made.
  std::string Finish();

private:
  class CairoPage;
  std::unique_ptr<CairoPage> page_;
};

// The PdfMaker of this room.
std::string MakePdf(PdfPageSize page, const PdfDescription& description,
                    const std::function<void(DrawingContext&)>& draw);

}  // namespace veritane::platform
