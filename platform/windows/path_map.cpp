// Windows paths on Windows: its own, but for drive C of a data root.
#include "platform/system/path_map.h"

#include "platform/run_time_error.h"
#include "platform/system/native_path.h"
#include "platform/windows/system_text.h"
#include "platform/windows_path.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

bool IsOnDriveC(const std::string& path) {
  return path.size() >= 2 && path[1] == ':' && (path[0] == 'c' || path[0] == 'C');
}

bool HasDriveOrServer(const std::string& path) {
  return (path.size() >= 2 && path[1] == ':') || path.starts_with("\\\\") || path.starts_with("//");
}

// Below a data root "C:" is the root's folder; paths of the system's own drive C then begin with this.
constexpr std::string_view kOwnPath = "\\\\?\\";

std::vector<std::string> NamesIn(const fs::path& path) {
  std::vector<std::string> names;
  for (const fs::path& name : path) {
    if (!name.empty()) names.push_back(Utf8Of(name));
  }
  return names;
}

}  // namespace

PathMap::PathMap(const fs::path& root) {
  if (root.empty()) return;
  root_ = fs::absolute(root).lexically_normal().make_preferred();
  if (root_.filename().empty()) root_ = root_.parent_path();
}

bool PathMap::Names(const std::string& windows_path) const {
  return !windows_path.empty() && windows_path.find('\0') == std::string::npos;
}

fs::path PathMap::ToNative(const std::string& windows_path) const {
  if (!Names(windows_path)) throw RunTimeError(ErrorNumber::kBadFileNumber, windows_path);
  if (root_.empty()) return PathFromUtf8(windows_path).make_preferred();
  if (windows_path.starts_with(kOwnPath))
    return PathFromUtf8(windows_path.substr(kOwnPath.size())).make_preferred();
  const fs::path drive_c = root_ / "drive_c";
  if (IsOnDriveC(windows_path)) {
    return drive_c / PathFromUtf8(windows_path.substr(2)).relative_path().make_preferred();
  }
  const bool is_from_the_top = windows_path[0] == '\\' || windows_path[0] == '/';
  if (is_from_the_top && !HasDriveOrServer(windows_path)) {
    return drive_c / PathFromUtf8(windows_path).relative_path().make_preferred();
  }
  return PathFromUtf8(windows_path).make_preferred();
}

std::string PathMap::ToWindows(const fs::path& native_path) const {
  const fs::path path = fs::absolute(native_path).lexically_normal().make_preferred();
  if (root_.empty()) return Utf8Of(path);
  const std::vector<std::string> top = NamesIn(root_ / "drive_c");
  const std::vector<std::string> names = NamesIn(path);
  const auto is_same = [](const std::string& a, const std::string& b) {
    return UpperCase(a) == UpperCase(b);
  };
  if (names.size() < top.size() || !std::equal(top.begin(), top.end(), names.begin(), is_same)) {
    const std::string own = Utf8Of(path);
    return IsOnDriveC(own) ? std::string(kOwnPath) + own : own;
  }
  std::string windows = "C:";
  for (std::size_t i = top.size(); i < names.size(); ++i) windows += "\\" + names[i];
  return names.size() == top.size() ? windows + "\\" : windows;
}

fs::path DefaultRoot() {
  const DWORD size = ::GetEnvironmentVariableW(L"VERITANE_HOME", nullptr, 0);
  std::wstring value(size, L'\0');
  value.resize(::GetEnvironmentVariableW(L"VERITANE_HOME", value.data(), size));
  return value;
}

}  // namespace veritane::platform
