// The system's default printer.
#pragma once

#include "platform/date_time.h"
#include "platform/file_system.h"
#include "platform/printer.h"

#include <functional>
#include <memory>
#include <string>

namespace veritane::platform {

// Prints on the default printer; where the system has none, into PDF files in `folder` as PdfPrinter does.
// All references outlive the printer.
std::unique_ptr<Printer> SystemPrinter(FileSystem& files, const Clock& clock,
                                       std::function<std::string()> folder);

}  // namespace veritane::platform
