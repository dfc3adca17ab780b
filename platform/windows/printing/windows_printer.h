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

  // Error 57, with the printer's name, when it does not take the document. A print that the user gives up in
  // a box of the driver is none.
  void Print(Printout& printout) const;

private:
  explicit WindowsPrinter(std::wstring name) : name_(std::move(name)) {}

  std::wstring name_;
};

}  // namespace veritane::platform
