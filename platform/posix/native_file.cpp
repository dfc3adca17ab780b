// File calls of a POSIX system.
#include "platform/system/native_file.h"

#include "platform/run_time_error.h"
#include "platform/system/system_clock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void RaiseSystemError(int code, const std::string& path) {
  switch (code) {
    case ENOENT:
      throw RunTimeError(ErrorNumber::kFileNotFound, path);
    case ENOTDIR:
      throw RunTimeError(ErrorNumber::kPathNotFound, path);
    case ENOSPC:
    case EDQUOT:
      throw RunTimeError(ErrorNumber::kDiskFull, path);
    case EACCES:
    case EPERM:
    case EROFS:
      throw RunTimeError(ErrorNumber::kPermissionDenied, path);
    case EISDIR:
    case EEXIST:
      throw RunTimeError(ErrorNumber::kPathFileAccess, path);
    case ENAMETOOLONG:
    case EINVAL:
      throw RunTimeError(ErrorNumber::kBadFileNumber, path);
    // A network drive that is gone, which is another matter than a disk that fails.
    case ESTALE:
    case ENOTCONN:
    case EHOSTDOWN:
    case EHOSTUNREACH:
    case ENETUNREACH:
    case ETIMEDOUT:
    case ENODEV:
    case ENXIO:
      throw RunTimeError(ErrorNumber::kDiskNotReady, path);
    default:
      throw RunTimeError(ErrorNumber::kDeviceError, path);
  }
}

// A missing folder on the way to a file that is to be written is 76, not 53.
[[noreturn]] void RaiseWriteError(int code, const fs::path& native, const std::string& path) {
  std::error_code ignored;
  if (code == ENOENT && !fs::is_directory(native.parent_path(), ignored)) {
    throw RunTimeError(ErrorNumber::kPathNotFound, path);
  }
  RaiseSystemError(code, path);
}

struct stat StatusOf(int descriptor, const std::string& path) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) RaiseSystemError(errno, path);
  return status;
}

}  // namespace

NativeFile::~NativeFile() {
  if (handle_ >= 0) ::close(static_cast<int>(handle_));
}

NativeFile NativeFile::OpenToRead(const fs::path& native, const std::string& path) {
  const int descriptor = ::open(native.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) RaiseSystemError(errno, path);
  NativeFile file(descriptor, native, path);
  if (S_ISDIR(StatusOf(descriptor, path).st_mode)) RaiseSystemError(EISDIR, path);
  return file;
}

NativeFile NativeFile::OpenToAppend(const fs::path& native, const std::string& path) {
  const int descriptor = ::open(native.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
  if (descriptor < 0) RaiseWriteError(errno, native, path);
  return {descriptor, native, path};
}

std::optional<NativeFile> NativeFile::OpenAlone(const fs::path& native, const std::string& path) {
  const int descriptor = ::open(native.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (descriptor < 0) RaiseWriteError(errno, native, path);
  NativeFile file(descriptor, native, path);
  // A network drive that knows no locks cannot tell programs apart, and keeps none of them out.
  if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return std::nullopt;
  return file;
}

NativeFile NativeFile::CreateBeside(const fs::path& native, const std::string& path) {
  const std::string_view ending = kUnfinished;
  for (;;) {
    std::string temporary = (native.string() + ".XXXXXX").append(ending);
    const int descriptor = ::mkostemps(temporary.data(), static_cast<int>(ending.size()), O_CLOEXEC);
    if (descriptor < 0) RaiseWriteError(errno, native, path);
    NativeFile file(descriptor, temporary, path);
    // The lock goes with the program, however it ends. Where there are no locks, nobody clears up either.
    const bool is_anothers = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    // Somebody who clears up may have come between the name and the lock, and removes the file.
    if (is_anothers || (::access(temporary.c_str(), F_OK) != 0 && errno == ENOENT)) continue;
    // The name came with rights for its owner alone; the file is to have those of any new file.
    const mode_t mask = ::umask(0);
    ::umask(mask);
    if (::fchmod(descriptor, 0666 & ~mask) != 0) {
      const int code = errno;
      ::unlink(temporary.c_str());
      RaiseSystemError(code, path);
    }
    return file;
  }
}

std::string NativeFile::ReadFrom(std::int64_t position) {
  if (::lseek(static_cast<int>(handle_), position, SEEK_SET) < 0) RaiseSystemError(errno, path_);
  return ReadAll();
}

std::string NativeFile::ReadAll() {
  const int descriptor = static_cast<int>(handle_);
  const off_t size = StatusOf(descriptor, path_).st_size;
  std::string bytes(static_cast<std::size_t>(std::max<off_t>(size, 0)), '\0');
  std::size_t filled = 0;
  for (;;) {
    // One byte beyond the known size tells whether the file has grown meanwhile.
    if (filled == bytes.size()) bytes.resize(bytes.size() + std::max<std::size_t>(1, bytes.size() / 8));
    const ssize_t count = ::read(descriptor, bytes.data() + filled, bytes.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseSystemError(errno, path_);
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
  }
  bytes.resize(filled);
  return bytes;
}

void NativeFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(static_cast<int>(handle_), bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      RaiseSystemError(errno, path_);
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

std::int64_t NativeFile::Size() {
  return StatusOf(static_cast<int>(handle_), path_).st_size;
}

bool NativeFile::IsInPlace() const {
  struct stat mine {};
  struct stat there {};
  return ::fstat(static_cast<int>(handle_), &mine) == 0 && ::stat(native_.c_str(), &there) == 0 &&
         there.st_dev == mine.st_dev && there.st_ino == mine.st_ino;
}

void NativeFile::CutTo(std::int64_t size) {
  if (::ftruncate(static_cast<int>(handle_), size) != 0) RaiseSystemError(errno, path_);
}

void NativeFile::Stamp(std::chrono::system_clock::time_point moment) {
  const auto since_epoch = moment.time_since_epoch();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(since_epoch);
  const auto rest = std::chrono::duration_cast<std::chrono::nanoseconds>(since_epoch - seconds);
  const timespec time{.tv_sec = seconds.count(), .tv_nsec = rest.count()};
  const timespec times[2] = {time, time};
  (void)::futimens(static_cast<int>(handle_), times);
}

void NativeFile::Flush() {
  if (::fsync(static_cast<int>(handle_)) != 0) RaiseSystemError(errno, path_);
}

// Moved while it is open and locked: nobody can take it for what a dead writer left.
void NativeFile::TakePlaceOf(const fs::path& target) {
  MoveOver(native_, target, path_);
}

FileKind KindOf(const fs::path& native, const std::string& path) {
  struct stat status {};
  if (::stat(native.c_str(), &status) == 0) {
    if (S_ISREG(status.st_mode)) return FileKind::kFile;
    return S_ISDIR(status.st_mode) ? FileKind::kFolder : FileKind::kOther;
  }
  switch (errno) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case EINVAL:
      return FileKind::kNone;
    default:
      RaiseSystemError(errno, path);
  }
}

void RaiseLookError(const std::error_code& error, const std::string& path) {
  RaiseSystemError(error.value(), path);
}

void RemoveAbandoned(const fs::path& native) {
  const int descriptor = ::open(native.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
  if (descriptor < 0) return;
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) (void)::unlink(native.c_str());
  ::close(descriptor);
}

void CreateFolderAt(const fs::path& native, const std::string& path) {
  if (::mkdir(native.c_str(), 0777) != 0) RaiseWriteError(errno, native, path);
}

void RemoveFileAt(const fs::path& native, const std::string& path) {
  if (::unlink(native.c_str()) != 0) RaiseSystemError(errno, path);
}

void RequireReplaceable(const fs::path& native, const std::string& path) {
  std::error_code ignored;
  if (fs::is_directory(native, ignored)) RaiseSystemError(EISDIR, path);
  // A file that may not be written is not to be replaced either, even where the folder would allow it.
  if (fs::exists(native, ignored) && ::access(native.c_str(), W_OK) != 0) RaiseSystemError(errno, path);
}

void MoveOver(const fs::path& from, const fs::path& to, const std::string& path) {
  if (::rename(from.c_str(), to.c_str()) != 0) RaiseWriteError(errno, to, path);
  FlushFolder(to.parent_path(), path);
}

void FlushFolder(const fs::path& folder, const std::string& path) {
  const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) {
    // A folder that may be written but not read is left to the system.
    if (errno != EACCES) RaiseSystemError(errno, path);
    return;
  }
  const int code = ::fsync(descriptor) == 0 ? 0 : errno;
  ::close(descriptor);
  // Not every file system knows how to flush a folder.
  if (code != 0 && code != EINVAL && code != ENOTSUP) RaiseSystemError(code, path);
}

std::chrono::system_clock::time_point LastChange(const fs::path& native, const std::string& path) {
  struct stat status {};
  if (::stat(native.c_str(), &status) != 0) RaiseSystemError(errno, path);
  return MomentAt(status.st_mtim.tv_sec);
}

}  // namespace veritane::platform
