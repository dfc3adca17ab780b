// Putting the system's facilities together.
#include "platform/system/system_machine.h"

namespace veritane::platform {

SystemMachine::SystemMachine(const std::filesystem::path& root, const std::string& locale_name)
    : paths(root),
      files(paths, clock),
      registry(SystemRegistry(paths)),
      folders(paths),
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
