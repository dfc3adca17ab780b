// Windows paths mapped onto those of a POSIX system.
#include "platform/system/path_map.h"

#include "platform/run_time_error.h"
#include "platform/windows_path.h"

#include <algorithm>
#include <cstdlib>

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

// The entry of `folder` that is called `name`, in any mix of case; `folder / name` when there is none.
fs::path FindName(const fs::path& folder, const std::string& name) {
  fs::path exact = folder / name;
  std::error_code error;
  if (fs::exists(fs::symlink_status(exact, error))) return exact;
  const std::string wanted = UpperCase(name);
  for (fs::directory_iterator it(folder.empty() ? "." : folder, error), end; !error && it != end;
       it.increment(error)) {
    const std::string candidate = it->path().filename().string();
    if (UpperCase(candidate) == wanted) return folder / candidate;
  }
  return exact;
}

// The drive's letter in upper case, "" for a path without a drive.
std::string DriveOf(const std::string& windows_path) {
  return windows_path.size() >= 2 && windows_path[1] == ':' ? UpperCase(windows_path.substr(0, 1)) : "";
}

fs::path EnvironmentPath(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? fs::path() : fs::path(value);
}

}  // namespace

PathMap::PathMap(const fs::path& root) : root_(fs::absolute(root).lexically_normal()) {
  if (root_.filename().empty()) root_ = root_.parent_path();
}

bool PathMap::Names(const std::string& windows_path) const {
  if (windows_path.empty() || windows_path.find('\0') != std::string::npos) return false;
  const std::string drive = DriveOf(windows_path);
  return drive.empty() || drive == "C" || drive == "Z";
}

fs::path PathMap::ToNative(const std::string& windows_path) const {
  const std::string drive = DriveOf(windows_path);
  if (!Names(windows_path)) {
    throw RunTimeError(drive.empty() ? ErrorNumber::kBadFileNumber : ErrorNumber::kPathNotFound,
                       windows_path);
  }
  fs::path native;
  std::size_t position = 0;
  if (!drive.empty()) {
    native = drive == "C" ? root_ / "drive_c" : fs::path("/");
    position = 2;
  } else if (windows_path[0] == '\\' || windows_path[0] == '/') {
    native = root_ / "drive_c";
  }
  while (position < windows_path.size()) {
    const std::size_t end = std::min(windows_path.find_first_of("\\/", position), windows_path.size());
    const std::string name = windows_path.substr(position, end - position);
    position = end + 1;
    if (name.empty() || name == ".") continue;
    native = name == ".." ? native / name : FindName(native, name);
  }
  return native.empty() ? fs::path(".") : native;
}

std::string PathMap::ToWindows(const fs::path& native_path) const {
  const fs::path path = fs::absolute(native_path).lexically_normal();
  const fs::path drive_c = root_ / "drive_c";
  const fs::path below = path.lexically_relative(drive_c);
  const bool is_below = !below.empty() && *below.begin() != "..";
  std::string windows = is_below ? "C:" : "Z:";
  for (const fs::path& name : is_below ? below : path.relative_path()) {
    if (name.empty() || name == ".") continue;
    windows += "\\" + name.string();
  }
  return windows.size() == 2 ? windows + "\\" : windows;
}

fs::path DefaultRoot() {
  if (fs::path root = EnvironmentPath("VERITANE_HOME"); !root.empty()) return root;
  if (const fs::path data = EnvironmentPath("XDG_DATA_HOME"); !data.empty()) return data / "veritane";
  fs::path home = EnvironmentPath("HOME");
  if (home.empty()) home = fs::current_path();
  return home / ".local" / "share" / "veritane";
}

}  // namespace veritane::platform
