// Files on disk by Windows path.
#pragma once

#include "platform/file_system.h"
#include "platform/system/path_map.h"

namespace veritane::platform {

// Written files carry the clock's time, so that the age of a background is measured by one and the same
// clock.
class DiskFileSystem : public FileSystem {
public:
  DiskFileSystem(const PathMap& paths, const Clock& clock) : paths_(paths), clock_(clock) {}

  bool FileExists(const std::string& path) const override;
  bool FolderExists(const std::string& path) const override;
  void CreateFolder(const std::string& path) override;
  std::string ReadBytes(const std::string& path) const override;
  void WriteBytes(const std::string& path, std::string_view bytes) override;
  std::unique_ptr<AppendingFile> OpenForAppending(const std::string& path) override;
  std::unique_ptr<TakenFile> TakeFile(const std::string& path) override;
  void ClearUnfinished(const std::string& folder) override;
  void DeleteFile(const std::string& path) override;
  void MoveFile(const std::string& from, const std::string& to) override;
  DateTime LastModified(const std::string& path) const override;
  std::vector<std::string> ListFiles(const std::string& folder) const override;

private:
  const PathMap& paths_;
  const Clock& clock_;
};

}  // namespace veritane::platform
