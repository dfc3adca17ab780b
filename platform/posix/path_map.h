// Windows paths on a POSIX system: "C:" is a folder of the data root, "Z:" is "/", names are found without
// regard to case.
#pragma once

#include <filesystem>
#include <string>

namespace veritane::platform {

class PathMap {
public:
  // `root` is the data root; its subfolder "drive_c" is drive C.
  explicit PathMap(const std::filesystem::path& root);

  const std::filesystem::path& Root() const { return root_; }

  // Whether the text is a path that ToNative takes.
  bool Names(const std::string& windows_path) const;

  // The native path of a Windows path. Existing names are found without regard to case (the exact name
  // first); names that do not exist stay as they are written. A relative path is relative to the current
  // directory. Error 52 for an empty path or one with a NUL, 76 for a drive other than C and Z.
  std::filesystem::path ToNative(const std::string& windows_path) const;

  // "C:\…" below drive C, "Z:\…" elsewhere. A relative native path is made absolute first.
  std::string ToWindows(const std::filesystem::path& native_path) const;

private:
  std::filesystem::path root_;
};

// $VERITANE_HOME, else $XDG_DATA_HOME/veritane, else ~/.local/share/veritane.
std::filesystem::path DefaultRoot();

}  // namespace veritane::platform
