// The system's print queue, through the commands that every UNIX print system has: lpstat and lp.
#pragma once

#include "platform/printer.h"

#include <string>

namespace veritane::platform {

class CommandPrintQueue : public PrintQueue {
public:
  // The commands by name, to be found as the shell does, or by path.
  explicit CommandPrintQueue(std::string lp = "lp", std::string lpstat = "lpstat");

  // No commands, no print system, no default printer: no printer.
  bool HasPrinter() const override;
  // What lp says is part of the error's text.
  void Submit(const std::string& pdf, const std::string& title) override;

private:
  const std::string lp_;
  const std::string lpstat_;
};

}  // namespace veritane::platform
