// The program's Windows paths as paths of the system. Below a data root, drive C is the root's folder
// "drive_c" on every system. A POSIX system has a data root always, and its "/" is drive Z. Windows has one
// when it is given one; all other paths are its own. Names are found without regard to case.
#pragma once

#include <filesystem>
#include <string>

namespace veritane::platform {

class PathMap {
public:
  // `root` is the data root. Empty for none, on Windows alone.
  explicit PathMap(const std::filesystem::path& root);

  const std::filesystem::path& Root() const { return root_; }

  // Whether the text is a path that ToNative takes.
  bool Names(const std::string& windows_path) const;

  // The native path of a Windows path. On a POSIX system existing names are found without regard to case (the
  // exact name first); names that do not exist stay as they are written. A relative path is relative to the
  // current directory. Error 52 for an empty path or one with a NUL, 76 for a drive that a POSIX system does
  // not have.
  std::filesystem::path ToNative(const std::string& windows_path) const;

  // "C:\…" below drive C; elsewhere the system's own path: "Z:\…" on a POSIX system, "\\?\C:\…" on Windows
  // for what is on the system's drive C outside of the data root. A relative native path is made absolute
  // first.
  std::string ToWindows(const std::filesystem::path& native_path) const;

private:
  std::filesystem::path root_;
};

// $VERITANE_HOME; without it $XDG_DATA_HOME/veritane or ~/.local/share/veritane on a POSIX system, and none
// on Windows.
std::filesystem::path DefaultRoot();

}  // namespace veritane::platform
