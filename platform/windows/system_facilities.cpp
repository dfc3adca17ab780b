// Folders and names of Windows.
#include "platform/system/native_path.h"
#include "platform/system/registry_file.h"
#include "platform/system/system_machine.h"
#include "platform/windows/system_registry.h"
#include "platform/windows/system_text.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

// What a call left in a buffer that was full of blanks: up to the NUL, or all of it.
template <std::size_t kSize>
std::string TextIn(const std::array<char, kSize>& buffer) {
  const std::string_view all(buffer.data(), buffer.size());
  return Utf8OfCodePage(all.substr(0, all.find('\0')));
}

constexpr DWORD kNameRoom = 256;

std::array<char, kNameRoom> Blanks() {
  std::array<char, kNameRoom> blanks{};
  blanks.fill(' ');
  return blanks;
}

// The shell's folder, "" when it has none. The shell never writes more than MAX_PATH characters.
std::string ShellFolder(int folder) {
  std::array<wchar_t, MAX_PATH> path{};
  if (::SHGetFolderPathW(nullptr, folder, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK) return "";
  return Utf8Text(path.data());
}

}  // namespace

fs::path NativeProgramFolder() {
  std::wstring path(32768, L'\0');
  path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return fs::path(path).parent_path();
}

std::unique_ptr<Registry> SystemRegistry(const PathMap& paths) {
  if (paths.Root().empty()) return std::make_unique<WindowsRegistry>();
  return std::make_unique<RegistryFile>(paths.Root() / "registry.reg");
}

std::string SystemShellFolders::CommonApplicationData(bool create) const {
  if (paths_.Root().empty()) return ShellFolder(CSIDL_COMMON_APPDATA | (create ? CSIDL_FLAG_CREATE : 0));
  return ProgramDataBelowRoot(create);
}

std::optional<std::string> SystemUserAccount::LoggedOnUser() const {
  std::array<char, kNameRoom> name = Blanks();
  DWORD size = kNameRoom;
  if (!::GetUserNameA(name.data(), &size)) return std::nullopt;
  return TextIn(name);
}

std::optional<std::string> SystemUserAccount::ComputerName() const {
  std::array<char, kNameRoom> name = Blanks();
  DWORD size = kNameRoom;
  if (!::GetComputerNameA(name.data(), &size)) return std::nullopt;
  return TextIn(name);
}

}  // namespace veritane::platform
