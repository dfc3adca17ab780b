// Printing on Windows: its default printer, or PDF files where there is none.
#include "platform/pdf/system_printer.h"

#include "platform/pdf/pdf_printer.h"
#include "platform/windows/printing/windows_printer.h"

#include <utility>

namespace veritane::platform {

namespace {

class DefaultPrinter : public Printer {
public:
  DefaultPrinter(FileSystem& files, const Clock& clock, std::function<std::string()> folder)
      : into_files_(files, clock, std::move(folder)) {}

  std::optional<std::string> Print(Printout& printout) override {
    const auto printer = WindowsPrinter::Default();
    if (!printer) return into_files_.Print(printout);
    if (!printer->Print(printout)) return std::nullopt;
    return "";
  }

private:
  PdfPrinter into_files_;
};

}  // namespace

std::unique_ptr<Printer> SystemPrinter(FileSystem& files, const Clock& clock,
                                       std::function<std::string()> folder) {
  return std::make_unique<DefaultPrinter>(files, clock, std::move(folder));
}

}  // namespace veritane::platform
