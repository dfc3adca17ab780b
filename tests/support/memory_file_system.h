// Files in memory, with faults on demand. Every folder is there; folders cannot be listed or made.
#pragma once

#include "platform/file_system.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::tests {

class MemoryFileSystem : public platform::FileSystem {
public:
  // The numbers that the next reads and writes raise, leaving the files as they are; 0 for none.
  int readFault = 0;
  int writeFault = 0;
  int writes = 0;

  bool FileExists(const std::string& path) const override { return files_.contains(Key(path)); }
  bool FolderExists(const std::string&) const override { return true; }
  void CreateFolder(const std::string& path) override { Unexpected(path); }

  std::string ReadBytes(const std::string& path) const override {
    if (readFault != 0) throw platform::RunTimeError(readFault, "injected");
    const auto found = files_.find(Key(path));
    if (found == files_.end()) throw platform::RunTimeError(platform::ErrorNumber::kFileNotFound, path);
    return found->second;
  }
  void WriteBytes(const std::string& path, std::string_view bytes) override {
    if (writeFault != 0) throw platform::RunTimeError(writeFault, "injected");
    ++writes;
    files_[Key(path)] = bytes;
  }
  std::unique_ptr<platform::AppendingFile> OpenForAppending(const std::string& path) override {
    Unexpected(path);
  }
  std::unique_ptr<platform::TakenFile> TakeFile(const std::string&) override {
    return std::make_unique<platform::TakenFile>();
  }
  void ClearUnfinished(const std::string& folder) override { Unexpected(folder); }
  void DeleteFile(const std::string& path) override {
    if (files_.erase(Key(path)) == 0) {
      throw platform::RunTimeError(platform::ErrorNumber::kFileNotFound, path);
    }
  }
  void MoveFile(const std::string& from, const std::string&) override { Unexpected(from); }
  platform::DateTime LastModified(const std::string& path) const override { Unexpected(path); }
  std::vector<std::string> ListFiles(const std::string& folder) const override { Unexpected(folder); }

private:
  static std::string Key(const std::string& path) { return platform::UpperCase(path); }
  // What is tested here has no business with these.
  [[noreturn]] static void Unexpected(const std::string& path) {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, "unexpected operation on " + path);
  }

  std::map<std::string, std::string> files_;
};

}  // namespace veritane::tests
