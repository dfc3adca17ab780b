// Putting the system's facilities together.
#include "platform/system/system_machine.h"

#include "platform/system/native_file.h"

#include <fstream>

namespace veritane::platform {

std::string SystemShellFolders::ProgramFolder() const {
  std::ifstream stand_in(program_folder_ / "program_folder");
  if (std::string folder; std::getline(stand_in, folder)) return folder;
  return paths_.ToWindows(program_folder_);
}

// A folder that cannot be looked at is an error, and not missing.
std::string SystemShellFolders::ProgramDataBelowRoot(bool create) const {
  const std::string folder = "C:\\ProgramData";
  const std::filesystem::path native = paths_.ToNative(folder);
  std::error_code error;
  if (create) std::filesystem::create_directories(native, error);
  if (error) RaiseLookError(error, folder);
  return KindOf(native, folder) == FileKind::kFolder ? folder : "";
}

SystemMachine::SystemMachine(const std::filesystem::path& root, const std::string& locale_name)
    : paths(root),
      files(paths, clock),
      registry(SystemRegistry(paths)),
      folders(paths, NativeProgramFolder()),
      regional(locale_name),
      libraries(paths, NativeProgramFolder()) {}

Machine SystemMachine::Facilities() {
  return {.files = files,
          .registry = *registry,
          .folders = folders,
          .user = user,
          .clock = clock,
          .regional = regional,
          .libraries = libraries};
}

}  // namespace veritane::platform
