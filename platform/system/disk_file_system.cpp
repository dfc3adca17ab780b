// What file operations promise, on the system's own calls.
#include "platform/system/disk_file_system.h"

#include <algorithm>
#include <utility>

#include "platform/run_time_error.h"
#include "platform/system/native_file.h"
#include "platform/system/native_path.h"
#include "platform/text_file.h"

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

// A new file that is gone with this object, unless it took another's place.
class TemporaryFile {
public:
  TemporaryFile(const fs::path& target, const std::string& path)
      : target_(target), path_(path), file_(NativeFile::CreateBeside(target, path)) {}
  ~TemporaryFile() {
    if (is_in_place_) return;
    std::error_code ignored;
    fs::remove(file_.Native(), ignored);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  NativeFile& File() { return file_; }

  void TakeItsPlace() {
    file_.Close();
    MoveOver(file_.Native(), target_, path_);
    is_in_place_ = true;
  }

private:
  const fs::path target_;
  const std::string path_;
  NativeFile file_;
  bool is_in_place_ = false;
};

class DiskAppendingFile : public AppendingFile {
public:
  DiskAppendingFile(const fs::path& native, const std::string& path, const Clock& clock)
      : native_(native), path_(path), clock_(clock) {
    Open();
  }

  void Append(std::string_view bytes) override {
    if (!file_ || !file_->IsInPlace()) Open();
    const std::int64_t before = file_->Size();
    // What is appended begins a line, also where a program was stopped in the middle of the one before.
    const std::string lines = (IsTorn(before) ? std::string(kLineEnd) : "").append(bytes);
    try {
      file_->Write(lines);
      file_->Flush();
    } catch (const RunTimeError&) {
      // Half a line is worse than none: take back what a full disk let through.
      file_->CutTo(before);
      throw;
    }
    file_->Stamp(clock_.Now());
    if (before == 0) FlushFolder(native_.parent_path(), path_);
  }

private:
  // Closed first: Windows gives a deleted file's name away only then.
  void Open() {
    file_.reset();
    file_.emplace(NativeFile::OpenToAppend(native_, path_));
  }

  // Whether the last line has no line end.
  bool IsTorn(std::int64_t size) const {
    return size > 0 && NativeFile::OpenToRead(native_, path_).ReadFrom(size - 1) != "\n";
  }

  const fs::path native_;
  const std::string path_;
  const Clock& clock_;
  std::optional<NativeFile> file_;
};

class DiskTakenFile : public TakenFile {
public:
  explicit DiskTakenFile(NativeFile file) : file_(std::move(file)) {}

private:
  NativeFile file_;
};

// What lies there. A file that cannot be looked at is an error: whoever took it for missing would make a new
// one in its place.
fs::file_status KindOf(const fs::path& native, const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(native, error);
  // A name that no file can have is no file's.
  if (error == std::errc::filename_too_long || error == std::errc::invalid_argument) {
    return fs::file_status(fs::file_type::not_found);
  }
  if (status.type() == fs::file_type::none) RaiseLookError(error, path);
  return status;
}

}  // namespace

bool DiskFileSystem::FileExists(const std::string& path) const {
  return paths_.Names(path) && fs::is_regular_file(KindOf(paths_.ToNative(path), path));
}

bool DiskFileSystem::FolderExists(const std::string& path) const {
  return paths_.Names(path) && fs::is_directory(KindOf(paths_.ToNative(path), path));
}

void DiskFileSystem::CreateFolder(const std::string& path) {
  CreateFolderAt(paths_.ToNative(path), path);
}

std::string DiskFileSystem::ReadBytes(const std::string& path) const {
  return NativeFile::OpenToRead(paths_.ToNative(path), path).ReadAll();
}

void DiskFileSystem::WriteBytes(const std::string& path, std::string_view bytes) {
  const fs::path native = paths_.ToNative(path);
  RequireReplaceable(native, path);
  TemporaryFile temporary(native, path);
  temporary.File().Write(bytes);
  temporary.File().Stamp(clock_.Now());
  temporary.File().Flush();
  temporary.TakeItsPlace();
}

std::unique_ptr<AppendingFile> DiskFileSystem::OpenForAppending(const std::string& path) {
  return std::make_unique<DiskAppendingFile>(paths_.ToNative(path), path, clock_);
}

std::unique_ptr<TakenFile> DiskFileSystem::TakeFile(const std::string& path) {
  std::optional<NativeFile> file = NativeFile::OpenAlone(paths_.ToNative(path), path);
  return file ? std::make_unique<DiskTakenFile>(std::move(*file)) : nullptr;
}

void DiskFileSystem::ClearUnfinished(const std::string& folder) {
  std::error_code error;
  for (fs::directory_iterator it(paths_.ToNative(folder), error), end; !error && it != end;
       it.increment(error)) {
    if (IsNameOfUnfinished(it->path().filename())) RemoveAbandoned(it->path());
  }
}

void DiskFileSystem::DeleteFile(const std::string& path) {
  RemoveFileAt(paths_.ToNative(path), path);
}

void DiskFileSystem::MoveFile(const std::string& from, const std::string& to) {
  const fs::path source = paths_.ToNative(from);
  const fs::path target = paths_.ToNative(to);
  if (!fs::exists(KindOf(source, from))) throw RunTimeError(ErrorNumber::kFileNotFound, from);
  if (fs::exists(KindOf(target, to))) throw RunTimeError(ErrorNumber::kFileExists, to);
  MoveOver(source, target, to);
}

DateTime DiskFileSystem::LastModified(const std::string& path) const {
  return clock_.ToLocal(LastChange(paths_.ToNative(path), path));
}

std::vector<std::string> DiskFileSystem::ListFiles(const std::string& folder) const {
  std::error_code error;
  std::vector<std::string> names;
  for (fs::directory_iterator it(paths_.ToNative(folder), error), end; !error && it != end;
       it.increment(error)) {
    if (it->is_regular_file()) names.push_back(Utf8Of(it->path().filename()));
  }
  if (error) throw RunTimeError(ErrorNumber::kPathNotFound, folder);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace veritane::platform
