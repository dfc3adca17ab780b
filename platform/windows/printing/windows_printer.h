// The default printer of Windows.
#pragma once

#include "platform/printer.h"

#include <optional>
#include <string>

namespace veritane::platform {

class WindowsPrinter {
public:
  // Nothing where no default printer is installed.
  static std::optional<WindowsPrinter> Default();

  // False when the user gave the print up in a box of the driver. Error 57, with the printer's name, when it
  // does not take the document.
  bool Print(Printout& printout) const;

private:
  explicit WindowsPrinter(std::wstring name) : name_(std::move(name)) {}

  std::wstring name_;
};

}  // namespace veritane::platform
