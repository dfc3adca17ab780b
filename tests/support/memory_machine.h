// A machine without a disk, without a clock of its own and without anybody at it.
#pragma once

#include "tests/support/memory_file_system.h"
#include "tests/support/standing_clock.h"
#include "tests/support/test_folders.h"

namespace veritane::tests {

class MemoryMachine {
public:
  MemoryFileSystem files;

  platform::Machine Facilities() {
    return {.files = files,
            .registry = registry_,
            .folders = folders_,
            .user = user_,
            .clock = clock_,
            .regional = regional_,
            .libraries = libraries_};
  }

private:
  struct EmptyRegistry : platform::Registry {
    std::optional<std::uint32_t> ReadDword(const std::string&, const std::string&) const override {
      return std::nullopt;
    }
  };
  struct Nobody : platform::UserAccount {
    std::optional<std::string> LoggedOnUser() const override { return std::nullopt; }
    std::optional<std::string> ComputerName() const override { return std::nullopt; }
  };
  struct NoDates : platform::RegionalFormat {
    std::string ShortDate(const platform::DateTime&) const override { return {}; }
    std::string ShortTime(const platform::DateTime&) const override { return {}; }
    std::string GeneralDate(const platform::DateTime&) const override { return {}; }
    std::string LongDate(const platform::DateTime&) const override { return {}; }
  };
  struct NoLibraries : platform::DynamicLibraries {
    std::unique_ptr<platform::DynamicLibrary> Load(const std::string& base_name) const override {
      throw platform::RunTimeError(platform::ErrorNumber::kFileNotFound, base_name);
    }
    std::string NativePath(const std::string& windows_path) const override { return windows_path; }
  };

  EmptyRegistry registry_;
  TestFolders folders_;
  Nobody user_;
  StandingClock clock_;
  NoDates regional_;
  NoLibraries libraries_;
};

}  // namespace veritane::tests
