// The machine facilities of the system that the program runs on, together as one object.
#pragma once

#include "platform/machine.h"
#include "platform/system/disk_file_system.h"
#include "platform/system/dynamic_library_loader.h"
#include "platform/system/path_map.h"
#include "platform/system/regional_format.h"
#include "platform/system/system_clock.h"

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

namespace veritane::platform {

// Below a data root the common application data folder is C:\ProgramData. An installed program lies where its
// users may not write; a file "program_folder" beside it then holds one line, the Windows path of the folder
// that stands for the program's own.
class SystemShellFolders : public ShellFolders {
public:
  // `program_folder` is where the program lies.
  SystemShellFolders(const PathMap& paths, std::filesystem::path program_folder)
      : paths_(paths), program_folder_(std::move(program_folder)) {}
  std::string CommonApplicationData(bool create) const override;
  std::string ProgramFolder() const override;

private:
  std::string ProgramDataBelowRoot(bool create) const;

  const PathMap& paths_;
  const std::filesystem::path program_folder_;
};

class SystemUserAccount : public UserAccount {
public:
  std::optional<std::string> LoggedOnUser() const override;
  std::optional<std::string> ComputerName() const override;
};

// The folder of the running program, as the system names it.
std::filesystem::path NativeProgramFolder();

// The system's registry; below a data root, and where the system has none, the root's file "registry.reg".
std::unique_ptr<Registry> SystemRegistry(const PathMap& paths);

class SystemMachine {
public:
  // `root` as for PathMap, `locale_name` as for SystemRegionalFormat.
  SystemMachine(const std::filesystem::path& root, const std::string& locale_name);

  PathMap paths;
  SystemClock clock;
  DiskFileSystem files;
  std::unique_ptr<Registry> registry;
  SystemShellFolders folders;
  SystemUserAccount user;
  SystemRegionalFormat regional;
  DynamicLibraryLoader libraries;

  Machine Facilities();
};

}  // namespace veritane::platform
