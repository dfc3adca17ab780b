// Folders, names and the registry of a POSIX system.
#include "platform/system/registry_file.h"
#include "platform/system/system_machine.h"

#include <pwd.h>
#include <unistd.h>

#include <array>

namespace veritane::platform {

namespace fs = std::filesystem;

fs::path NativeProgramFolder() {
  return fs::read_symlink("/proc/self/exe").parent_path();
}

std::unique_ptr<Registry> SystemRegistry(const PathMap& paths) {
  return std::make_unique<RegistryFile>(paths.Root() / "registry.reg");
}

std::string SystemShellFolders::CommonApplicationData(bool create) const {
  return ProgramDataBelowRoot(create);
}

std::optional<std::string> SystemUserAccount::LoggedOnUser() const {
  std::array<char, 4096> buffer{};
  passwd entry{};
  passwd* found = nullptr;
  if (::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) {
    return std::nullopt;
  }
  return std::string(entry.pw_name);
}

std::optional<std::string> SystemUserAccount::ComputerName() const {
  std::array<char, 256> buffer{};
  if (::gethostname(buffer.data(), buffer.size() - 1) != 0) return std::nullopt;
  return std::string(buffer.data());
}

}  // namespace veritane::platform
