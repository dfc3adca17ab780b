// Making the PDF of a printout and finding its place.
#include "platform/pdf/pdf_printer.h"

#include "platform/part_of_surface.h"
#include "platform/pdf/pdf_document.h"
#include "platform/print_file.h"

#include <utility>

namespace veritane::platform {

namespace {

std::string PdfOf(Printout& printout, const DateTime& now) {
  const PdfPageSize paper = printout.IsLandscape() ? Landscape({}) : PdfPageSize{};
  PdfDocument document(paper, {.title = printout.Title(), .created = now});
  PartOfSurface page(document.Page(), {kPageMargin, kPageMargin}, paper.width - 2 * kPageMargin,
                     paper.height - 2 * kPageMargin, document.Page().FontHeight());
  const int pages = printout.LayOut(page);
  for (int number = 1; number <= pages; ++number) {
    if (number > 1) document.NextPage();
    printout.DrawPage(page, number);
  }
  return document.Finish();
}

}  // namespace

PdfPrinter::PdfPrinter(FileSystem& files, const Clock& clock, std::function<std::string()> folder,
                       PrintQueue* queue)
    : files_(files), clock_(clock), folder_(std::move(folder)), queue_(queue) {}

std::optional<std::string> PdfPrinter::Print(Printout& printout) {
  const DateTime now = clock_.LocalNow();
  const std::string pdf = PdfOf(printout, now);
  if (queue_ != nullptr && queue_->HasPrinter()) {
    queue_->Submit(pdf, printout.Title());
    return "";
  }
  std::string path = NewPrintPath(files_, folder_(), printout.Title(), now);
  files_.WriteBytes(path, pdf);
  return path;
}

}  // namespace veritane::platform
