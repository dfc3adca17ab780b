// File operations through the system's own calls, so that every failure is seen and flushing is ours to
// order.
#include "platform/posix/disk_file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/run_time_error.h"

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

// An open file that is closed when it goes out of scope.
class Descriptor {
public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }
  // Closes now, so that the caller sees a failure.
  int Close() {
    const int result = ::close(number_);
    number_ = -1;
    return result;
  }

private:
  int number_;
};

// Writes everything or returns the error's code; 0 for success.
int WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

void Stamp(int descriptor, const Clock& clock) {
  const auto since_epoch = clock.Now().time_since_epoch();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(since_epoch);
  const auto rest = std::chrono::duration_cast<std::chrono::nanoseconds>(since_epoch - seconds);
  const timespec moment{.tv_sec = seconds.count(), .tv_nsec = rest.count()};
  const timespec times[2] = {moment, moment};
  // A file system that keeps no such times still holds the data; the age of a file then follows its own
  // clock.
  (void)::futimens(descriptor, times);
}

class PosixAppendingFile : public AppendingFile {
public:
  PosixAppendingFile(const fs::path& native, std::string path, const Clock& clock)
      : path_(std::move(path)),
        clock_(clock),
        descriptor_(::open(native.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666)) {
    if (!descriptor_.IsOpen()) RaiseWriteError(errno, native, path_);
  }

  void Append(std::string_view bytes) override {
    const off_t before = ::lseek(descriptor_.Number(), 0, SEEK_END);
    if (const int code = WriteAll(descriptor_.Number(), bytes); code != 0) {
      // Half a line is worse than none: take back what a full disk let through.
      if (before >= 0 && ::ftruncate(descriptor_.Number(), before) != 0) RaiseSystemError(errno, path_);
      RaiseSystemError(code, path_);
    }
    Stamp(descriptor_.Number(), clock_);
  }

private:
  const std::string path_;
  const Clock& clock_;
  Descriptor descriptor_;
};

struct stat StatusOf(const fs::path& native, const std::string& path) {
  struct stat status {};
  if (::stat(native.c_str(), &status) != 0) RaiseSystemError(errno, path);
  return status;
}

// Makes the new name of a file survive a power failure.
void FlushFolder(const fs::path& folder) {
  const Descriptor descriptor(
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.IsOpen()) ::fsync(descriptor.Number());
}

}  // namespace

bool DiskFileSystem::FileExists(const std::string& path) const {
  std::error_code error;
  return paths_.Names(path) && fs::is_regular_file(paths_.ToNative(path), error);
}

bool DiskFileSystem::FolderExists(const std::string& path) const {
  std::error_code error;
  return paths_.Names(path) && fs::is_directory(paths_.ToNative(path), error);
}

void DiskFileSystem::CreateFolder(const std::string& path) {
  const fs::path native = paths_.ToNative(path);
  if (::mkdir(native.c_str(), 0777) != 0) RaiseWriteError(errno, native, path);
}

std::string DiskFileSystem::ReadBytes(const std::string& path) const {
  const fs::path native = paths_.ToNative(path);
  const Descriptor file(::open(native.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) RaiseSystemError(errno, path);
  struct stat status {};
  if (::fstat(file.Number(), &status) != 0) RaiseSystemError(errno, path);
  if (S_ISDIR(status.st_mode)) RaiseSystemError(EISDIR, path);
  std::string bytes(static_cast<std::size_t>(std::max<off_t>(status.st_size, 0)), '\0');
  std::size_t filled = 0;
  for (;;) {
    // One byte beyond the known size tells whether the file has grown meanwhile.
    if (filled == bytes.size()) bytes.resize(bytes.size() + std::max<std::size_t>(1, bytes.size() / 8));
    const ssize_t count = ::read(file.Number(), bytes.data() + filled, bytes.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseSystemError(errno, path);
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
  }
  bytes.resize(filled);
  return bytes;
}

void DiskFileSystem::WriteBytes(const std::string& path, std::string_view bytes) {
  const fs::path native = paths_.ToNative(path);
  std::error_code ignored;
  if (fs::is_directory(native, ignored)) RaiseSystemError(EISDIR, path);
  // A file that may not be written is not to be replaced either, even where the folder would allow it.
  if (fs::exists(native, ignored) && ::access(native.c_str(), W_OK) != 0) RaiseSystemError(errno, path);
  std::string temporary = native.string() + ".XXXXXX";
  Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.IsOpen()) RaiseWriteError(errno, native, path);
  const mode_t mask = ::umask(0);
  ::umask(mask);
  int code = ::fchmod(file.Number(), 0666 & ~mask) == 0 ? 0 : errno;
  if (code == 0) code = WriteAll(file.Number(), bytes);
  if (code == 0) Stamp(file.Number(), clock_);
  if (code == 0 && ::fsync(file.Number()) != 0) code = errno;
  if (file.Close() != 0 && code == 0) code = errno;
  if (code == 0 && ::rename(temporary.c_str(), native.c_str()) != 0) code = errno;
  if (code != 0) {
    ::unlink(temporary.c_str());
    RaiseSystemError(code, path);
  }
  FlushFolder(native.parent_path());
}

std::unique_ptr<AppendingFile> DiskFileSystem::OpenForAppending(const std::string& path) {
  return std::make_unique<PosixAppendingFile>(paths_.ToNative(path), path, clock_);
}

void DiskFileSystem::DeleteFile(const std::string& path) {
  if (::unlink(paths_.ToNative(path).c_str()) != 0) RaiseSystemError(errno, path);
}

void DiskFileSystem::MoveFile(const std::string& from, const std::string& to) {
  const fs::path source = paths_.ToNative(from);
  const fs::path target = paths_.ToNative(to);
  std::error_code ignored;
  if (!fs::exists(source, ignored)) RaiseSystemError(ENOENT, from);
  if (fs::exists(target, ignored)) throw RunTimeError(ErrorNumber::kFileExists, to);
  if (::rename(source.c_str(), target.c_str()) != 0) RaiseWriteError(errno, target, to);
  FlushFolder(target.parent_path());
}

DateTime DiskFileSystem::LastModified(const std::string& path) const {
  const struct stat status = StatusOf(paths_.ToNative(path), path);
  return clock_.ToLocal(std::chrono::system_clock::from_time_t(status.st_mtim.tv_sec));
}

std::vector<std::string> DiskFileSystem::ListFiles(const std::string& folder) const {
  std::error_code error;
  std::vector<std::string> names;
  for (fs::directory_iterator it(paths_.ToNative(folder), error), end; !error && it != end;
       it.increment(error)) {
    if (it->is_regular_file()) names.push_back(it->path().filename().string());
  }
  if (error) throw RunTimeError(ErrorNumber::kPathNotFound, folder);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace veritane::platform
