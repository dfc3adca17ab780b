// Prints by way of PDF: to the system's default printer, or into a file where there is none.
#pragma once

#include "platform/date_time.h"
#include "platform/file_system.h"
#include "platform/printer.h"

#include <functional>
#include <string>

namespace veritane::platform {

class PdfPrinter : public Printer {
public:
  // `folder` gives the Windows path of the folder for files, which is created below an existing one. Without
  // a queue everything goes into files. All references outlive the printer.
  PdfPrinter(FileSystem& files, const Clock& clock, std::function<std::string()> folder,
             PrintQueue* queue = nullptr);

  // A file is named by title and time, and never replaces another.
  std::optional<std::string> Print(Printout& printout) override;

private:
  FileSystem& files_;
  const Clock& clock_;
  std::function<std::string()> folder_;
  PrintQueue* queue_;
};

}  // namespace veritane::platform
