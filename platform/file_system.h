// Files and folders by Windows path. Every path is "C:\…", "Z:\…" or relative to the current directory, with
// "\" between names; names are looked up without regard to case on every system.
#pragma once

#include "platform/date_time.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::platform {

// A file that stays open for appending. Each call is one write, so a failure leaves no half line. One that
// was deleted or renamed meanwhile, where the system allows that, is made anew, so that nothing goes where
// nobody finds it.
class AppendingFile {
public:
  virtual ~AppendingFile() = default;
  // Appends the bytes and hands them to the system. Errors 57, 61, 70, 71, 75, and 76 where its
  // folder is gone.
  virtual void Append(std::string_view bytes) = 0;
};

// A file that no other program can take as long as this lives.
class TakenFile {
public:
  virtual ~TakenFile() = default;
};

// All operations raise RunTimeError 52 for a path that names nothing, 53 for a missing file or one to be read
// in a missing folder, 76 for a missing folder to list or to write in, 70 or 75 where access is refused, 61
// for a full disk, 57 for a device fault, 71 for a network drive that is gone. Questions take a path that no
// file can have for missing.
class FileSystem {
public:
  virtual ~FileSystem() = default;

  virtual bool FileExists(const std::string& path) const = 0;
  virtual bool FolderExists(const std::string& path) const = 0;
  // Creates one folder below an existing one; error 75 when it is there already.
  virtual void CreateFolder(const std::string& path) = 0;

  virtual std::string ReadBytes(const std::string& path) const = 0;
  // Replaces or creates the file whole: after a crash the old bytes or the new ones are there, never a
  // mixture.
  virtual void WriteBytes(const std::string& path, std::string_view bytes) = 0;
  // Opens for appending, creating the file when it is missing.
  virtual std::unique_ptr<AppendingFile> OpenForAppending(const std::string& path) = 0;

  // Takes the file for this program alone, creating it when it is missing; nothing while another program has
  // it.
  virtual std::unique_ptr<TakenFile> TakeFile(const std::string& path) = 0;

  virtual void DeleteFile(const std::string& path) = 0;
  // Removes what WriteBytes of programs that were killed left unfinished in the folder, as far as that is
  // possible: it is in nobody's way. What another program is writing stays.
  virtual void ClearUnfinished(const std::string& folder) = 0;
  // Renames within a volume; error 58 when `to` exists.
  virtual void MoveFile(const std::string& from, const std::string& to) = 0;

  virtual DateTime LastModified(const std::string& path) const = 0;
  // Names of the files directly in the folder, sorted.
  virtual std::vector<std::string> ListFiles(const std::string& folder) const = 0;
};

}  // namespace veritane::platform
