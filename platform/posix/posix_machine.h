// The machine facilities of a POSIX system, together as one object.
#pragma once

#include <clocale>
#include <memory>
#include <string>

#include "platform/machine.h"
#include "platform/posix/disk_file_system.h"
#include "platform/posix/dynamic_library_loader.h"
#include "platform/posix/path_map.h"

namespace veritane::platform {

// The system's clock and time zone. It can be set, for repeatable runs; it then stands still.
class PosixClock : public Clock {
public:
  std::chrono::system_clock::time_point Now() const override;
  DateTime ToLocal(std::chrono::system_clock::time_point moment) const override;

  // Makes a local moment the present one.
  void Set(const DateTime& local);

private:
  std::optional<std::chrono::system_clock::time_point> fixed_;
};

// Values from a file in REGEDIT4 text below the data root; no file means no values.
class RegistryFile : public Registry {
public:
  explicit RegistryFile(std::filesystem::path file) : file_(std::move(file)) {}
  std::optional<std::uint32_t> ReadDword(const std::string& key, const std::string& value) const override;

private:
  std::filesystem::path file_;
};

class PosixShellFolders : public ShellFolders {
public:
  explicit PosixShellFolders(const PathMap& paths) : paths_(paths) {}
  std::string CommonApplicationData(bool create) const override;
  std::string ProgramFolder() const override;

private:
  const PathMap& paths_;
};

class PosixUserAccount : public UserAccount {
public:
  std::optional<std::string> LoggedOnUser() const override;
  std::optional<std::string> ComputerName() const override;
};

// Formats of a named C locale, whatever the process's own locale is.
class PosixRegionalFormat : public RegionalFormat {
public:
  // "" for the one that the environment asks for, the "C" locale where that is not installed. Any other name
  // that is not installed raises error 5.
  explicit PosixRegionalFormat(const std::string& locale_name);
  ~PosixRegionalFormat() override;
  PosixRegionalFormat(const PosixRegionalFormat&) = delete;
  PosixRegionalFormat& operator=(const PosixRegionalFormat&) = delete;

  std::string ShortDate(const DateTime& moment) const override;
  std::string ShortTime(const DateTime& moment) const override;
  std::string GeneralDate(const DateTime& moment) const override;
  std::string LongDate(const DateTime& moment) const override;

private:
  std::string Format(const char* pattern, const DateTime& moment) const;

  locale_t locale_;
};

class PosixMachine {
public:
  PosixMachine(const std::filesystem::path& root, const std::string& locale_name);

  PathMap paths;
  PosixClock clock;
  DiskFileSystem files;
  RegistryFile registry;
  PosixShellFolders folders;
  PosixUserAccount user;
  PosixRegionalFormat regional;
  DynamicLibraryLoader libraries;

  Machine Facilities();
};

}  // namespace veritane::platform
