// What the simulator needs to print: where the PDF files go and who makes them.
#pragma once

#include "platform/pdf_page.h"

#include <functional>
#include <string>

namespace veritane::simulator {

struct PrintSettings {
  // Windows path without a trailing "\"; made when the first print comes, its own folder must be there.
  std::string folder;
  platform::PdfMaker makePdf;
  // Told the path of each print once it is on disk. May be empty.
  std::function<void(const std::string& path)> printed;
};

}  // namespace veritane::simulator
