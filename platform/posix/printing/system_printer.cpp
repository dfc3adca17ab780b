// Printing on a POSIX system: PDF for the print queue.
#include "platform/pdf/system_printer.h"

#include "platform/pdf/pdf_printer.h"
#include "platform/posix/printing/command_print_queue.h"

#include <utility>

namespace veritane::platform {

namespace {

class QueuePrinter : public Printer {
public:
  QueuePrinter(FileSystem& files, const Clock& clock, std::function<std::string()> folder)
      : printer_(files, clock, std::move(folder), &queue_) {}

  std::optional<std::string> Print(Printout& printout) override { return printer_.Print(printout); }

private:
  CommandPrintQueue queue_;
  PdfPrinter printer_;
};

}  // namespace

std::unique_ptr<Printer> SystemPrinter(FileSystem& files, const Clock& clock,
                                       std::function<std::string()> folder) {
  return std::make_unique<QueuePrinter>(files, clock, std::move(folder));
}

}  // namespace veritane::platform
