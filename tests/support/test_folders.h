// The system's folders, all below a test's own data root.
#pragma once

#include "platform/machine.h"

#include <string>

namespace veritane::tests {

// The program's own folder lies below the data root too.
class TestFolders : public platform::ShellFolders {
public:
  std::string CommonApplicationData(bool create) const override {
    return commonDataMissing && !create ? "" : "C:\\ProgramData";
  }
  std::string ProgramFolder() const override { return "C:\\Program"; }

  bool commonDataMissing = false;
};

}  // namespace veritane::tests
