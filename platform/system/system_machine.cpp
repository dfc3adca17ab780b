// Putting the system's facilities together.
#include "platform/system/system_machine.h"

#include <fstream>

namespace veritane::platform {

std::string SystemShellFolders::ProgramFolder() const {
  std::ifstream stand_in(program_folder_ / "program_folder");
  if (std::string folder; std::getline(stand_in, folder)) return folder;
  return paths_.ToWindows(program_folder_);
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
