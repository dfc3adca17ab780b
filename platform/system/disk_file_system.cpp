// What file operations promise, on the system's own calls.
#include "platform/system/disk_file_system.h"

#include "platform/run_time_error.h"
#include "platform/system/native_file.h"
#include "platform/system/native_path.h"
#include "platform/text_file.h"

#include <algorithm>
#include <utility>

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

// A new file that is gone with this object, unless it took another's place.
class TemporaryFile {
public:
  TemporaryFile(const fs::path& target, const std::string& path)
      : target_(target), file_(NativeFile::CreateBeside(target, path)) {}
  ~TemporaryFile() {
    if (is_in_place_) return;
    std::error_code ignored;
    fs::remove(file_.Native(), ignored);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  NativeFile& File() { return file_; }

  void TakeItsPlace() {
    file_.TakePlaceOf(target_);
    is_in_place_ = true;
  }

private:
  const fs::path target_;
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

}  // namespace

bool DiskFileSystem::FileExists(const std::string& path) const {
  return paths_.Names(path) && KindOf(paths_.ToNative(path), path) == FileKind::kFile;
}

bool DiskFileSystem::FolderExists(const std::string& path) const {
  return paths_.Names(path) && KindOf(paths_.ToNative(path), path) == FileKind::kFolder;
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
  if (KindOf(source, from) == FileKind::kNone) throw RunTimeError(ErrorNumber::kFileNotFound, from);
  if (KindOf(target, to) != FileKind::kNone) throw RunTimeError(ErrorNumber::kFileExists, to);
  MoveOver(source, target, to);
}

DateTime DiskFileSystem::LastModified(const std::string& path) const {
  return clock_.ToLocal(LastChange(paths_.ToNative(path), path));
}

std::vector<std::string> DiskFileSystem::ListFiles(const std::string& folder) const {
  const fs::path native = paths_.ToNative(folder);
  if (KindOf(native, folder) != FileKind::kFolder) throw RunTimeError(ErrorNumber::kPathNotFound, folder);
  std::error_code error;
  std::vector<std::string> names;
  for (fs::directory_iterator it(native, error), end; !error && it != end; it.increment(error)) {
    // A name that leads nowhere, or to what may not be looked at, is no file of ours.
    std::error_code ignored;
    if (it->is_regular_file(ignored)) names.push_back(Utf8Of(it->path().filename()));
  }
  if (error) RaiseLookError(error, folder);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace veritane::platform
