// Everything that the program needs of the machine it runs on, behind small interfaces.
#pragma once

#include "platform/date_time.h"
#include "platform/dynamic_library.h"
#include "platform/file_system.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace veritane::platform {

// Values under HKEY_LOCAL_MACHINE.
class Registry {
public:
  virtual ~Registry() = default;
  // The value's 32 bits when key and value exist and the type is REG_DWORD, else nothing.
  virtual std::optional<std::uint32_t> ReadDword(const std::string& key, const std::string& value) const = 0;
};

// Folders that the system names. Windows paths without a trailing "\".
class ShellFolders {
public:
  virtual ~ShellFolders() = default;
  // The common application data folder, or "" when the system has none. With `create` it is made when
  // missing. One that cannot be looked at is an error (57, 70, 71).
  virtual std::string CommonApplicationData(bool create) const = 0;
  // The folder of the running program.
  virtual std::string ProgramFolder() const = 0;
};

// Who sits at the machine. An answer may hold a NUL and anything behind it; nothing when the call failed.
class UserAccount {
public:
  virtual ~UserAccount() = default;
  virtual std::optional<std::string> LoggedOnUser() const = 0;
  virtual std::optional<std::string> ComputerName() const = 0;
};

// Dates and times as the system's locale writes them.
class RegionalFormat {
public:
  virtual ~RegionalFormat() = default;
  virtual std::string ShortDate(const DateTime& moment) const = 0;
  virtual std::string ShortTime(const DateTime& moment) const = 0;
  // Date and time together, e.g. "11/21/2026 10:59:00 AM".
  virtual std::string GeneralDate(const DateTime& moment) const = 0;
  // Weekday, month name, day and year with single blanks: "Saturday November 21 2026".
  virtual std::string LongDate(const DateTime& moment) const = 0;
};

// The machine as one set of references; whoever builds the program keeps the objects alive.
struct Machine {
  FileSystem& files;
  const Registry& registry;
  const ShellFolders& folders;
  const UserAccount& user;
  const Clock& clock;
  const RegionalFormat& regional;
  const DynamicLibraries& libraries;
};

}  // namespace veritane::platform
