// Preloaded into a program, numbers its operations on files below one folder and lets one of them fail: the
// program is killed there, the disk is full, access is denied, or the device reports an error. Linux only.
//
// FILE_FAULTS_BELOW   the folder, absolute; without it nothing happens at all
// FILE_FAULTS_REPORT  a file outside of it: a line per operation, "number name faults path", with the
//                     faults that fit the operation; "fault number name path" where one was injected
// FILE_FAULTS_AT      the number of the operation that fails, from 1
// FILE_FAULTS_KIND    kill-before, kill-after, kill-halfway, full, denied, broken, read-only, stale or
//                     unplugged
// FILE_FAULTS_WHILE   a file: as long as it is there, every later operation that the fault fits
//                     fails, too
#include "tests/faults/fault_plan.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <string>
#include <unordered_map>

namespace {

using namespace veritane::faults;

struct OpenFile {
  std::string path;
  bool isWritten = false;
  bool isFolder = false;
  // The disk took half of the write before; there is no room for the rest.
  bool isFull = false;
};

std::unordered_map<int, OpenFile>& OpenFiles() {
  static auto& files = *new std::unordered_map<int, OpenFile>;
  return files;
}

OpenFile* FileOf(int descriptor) {
  const auto found = OpenFiles().find(descriptor);
  return found == OpenFiles().end() ? nullptr : &found->second;
}

std::string Absolute(int folder, const char* path) {
  if (path[0] == '/') return path;
  if (const OpenFile* file = folder == AT_FDCWD ? nullptr : FileOf(folder)) return file->path + "/" + path;
  char current[PATH_MAX];
  return (::getcwd(current, sizeof current) == nullptr ? "" : std::string(current)) + "/" + path;
}

// Lets the operation happen or fail as planned; `failed` is what the caller gets in place of a result.
template <typename Result, typename Call>
Result Perform(const Operation& operation, const std::string& path, Result failed, Call call) {
  if (!ThePlan().IsWatched(path)) return call();
  const Fault fault = ThePlan().Next(operation, path);
  if (IsError(fault)) {
    errno = ErrorOf(fault);
    return failed;
  }
  const Result result = call();
  if (fault == Fault::kKillAfter) Kill();
  return result;
}

bool Exists(const std::string& path) {
  return Real<int (*)(const char*, int)>("access")(path.c_str(), F_OK) == 0;
}

template <typename Call>
int Open(const std::string& path, int flags, Call call) {
  const bool writes = (flags & O_ACCMODE) != O_RDONLY;
  const bool creates = (flags & O_CREAT) != 0 && !Exists(path);
  const bool is_folder = (flags & O_DIRECTORY) != 0;
  const Operation& operation = is_folder ? kList : creates ? kCreate : writes ? kOpenToWrite : kOpenToRead;
  const int descriptor = Perform(operation, path, -1, call);
  if (descriptor >= 0 && ThePlan().IsWatched(path)) {
    OpenFiles()[descriptor] = {.path = path, .isWritten = writes, .isFolder = is_folder};
  }
  return descriptor;
}

template <typename Call>
int OnDescriptor(const Operation& operation, int descriptor, Call call) {
  const OpenFile* const file = FileOf(descriptor);
  return file == nullptr ? call() : Perform(operation, file->path, -1, call);
}

int Flush(int descriptor, const char* function) {
  const OpenFile* const file = FileOf(descriptor);
  return OnDescriptor(file != nullptr && file->isFolder ? kFlushFolder : kFlush, descriptor,
                      [&] { return Real<int (*)(int)>(function)(descriptor); });
}

// The name that mkostemps found takes the place of the pattern.
template <typename Call>
int MakeTemporary(char* pattern, Call call) {
  const std::string path = Absolute(AT_FDCWD, pattern);
  const int descriptor = Perform(kCreate, path, -1, call);
  if (descriptor >= 0 && ThePlan().IsWatched(path)) {
    OpenFiles()[descriptor] = {.path = Absolute(AT_FDCWD, pattern), .isWritten = true};
  }
  return descriptor;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return Open(Absolute(AT_FDCWD, path), flags,
              [&] { return Real<int (*)(const char*, int, ...)>("open")(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return Open(Absolute(folder, path), flags,
              [&] { return Real<int (*)(int, const char*, int, ...)>("openat")(folder, path, flags, mode); });
}

int mkostemps(char* pattern, int ending, int flags) {
  return MakeTemporary(pattern,
                       [&] { return Real<int (*)(char*, int, int)>("mkostemps")(pattern, ending, flags); });
}

ssize_t write(int descriptor, const void* bytes, size_t size) {
  const auto real = Real<ssize_t (*)(int, const void*, size_t)>("write");
  OpenFile* const file = FileOf(descriptor);
  if (file == nullptr) return real(descriptor, bytes, size);
  if (file->isFull) {
    file->isFull = false;
    errno = ENOSPC;
    return -1;
  }
  const Fault fault = ThePlan().Next(kWrite, file->path);
  if (IsError(fault) && fault != Fault::kFull) {
    errno = ErrorOf(fault);
    return -1;
  }
  if (fault != Fault::kFull && fault != Fault::kKillHalfway) {
    const ssize_t written = real(descriptor, bytes, size);
    if (fault == Fault::kKillAfter) Kill();
    return written;
  }
  const ssize_t written = real(descriptor, bytes, size / 2);
  if (fault == Fault::kKillHalfway) Kill();
  file->isFull = true;
  return written;
}

ssize_t read(int descriptor, void* bytes, size_t size) {
  const auto real = Real<ssize_t (*)(int, void*, size_t)>("read");
  const OpenFile* const file = FileOf(descriptor);
  if (file == nullptr) return real(descriptor, bytes, size);
  return Perform(kRead, file->path, ssize_t{-1}, [&] { return real(descriptor, bytes, size); });
}

int fsync(int descriptor) {
  return Flush(descriptor, "fsync");
}

int fdatasync(int descriptor) {
  return Flush(descriptor, "fdatasync");
}

// A descriptor is gone even where its closing reports an error.
int close(int descriptor) {
  const auto real = Real<int (*)(int)>("close");
  const OpenFile* const file = FileOf(descriptor);
  if (file == nullptr) return real(descriptor);
  const OpenFile closed = *file;
  OpenFiles().erase(descriptor);
  const Fault fault = closed.isWritten ? ThePlan().Next(kClose, closed.path) : Fault::kNone;
  const int result = real(descriptor);
  if (fault == Fault::kKillAfter) Kill();
  if (!IsError(fault)) return result;
  errno = ErrorOf(fault);
  return -1;
}

int ftruncate(int descriptor, off_t size) noexcept {
  return OnDescriptor(kShorten, descriptor,
                      [&] { return Real<int (*)(int, off_t)>("ftruncate")(descriptor, size); });
}

int fchmod(int descriptor, mode_t mode) noexcept {
  return OnDescriptor(kSetMode, descriptor,
                      [&] { return Real<int (*)(int, mode_t)>("fchmod")(descriptor, mode); });
}

int futimens(int descriptor, const timespec* times) noexcept {
  return OnDescriptor(kSetTime, descriptor,
                      [&] { return Real<int (*)(int, const timespec*)>("futimens")(descriptor, times); });
}

int rename(const char* from, const char* to) noexcept {
  return Perform(kRename, Absolute(AT_FDCWD, to), -1,
                 [&] { return Real<int (*)(const char*, const char*)>("rename")(from, to); });
}

int unlink(const char* path) noexcept {
  return Perform(kDelete, Absolute(AT_FDCWD, path), -1,
                 [&] { return Real<int (*)(const char*)>("unlink")(path); });
}

int remove(const char* path) noexcept {
  return Perform(kDelete, Absolute(AT_FDCWD, path), -1,
                 [&] { return Real<int (*)(const char*)>("remove")(path); });
}

int mkdir(const char* path, mode_t mode) noexcept {
  return Perform(kMakeFolder, Absolute(AT_FDCWD, path), -1,
                 [&] { return Real<int (*)(const char*, mode_t)>("mkdir")(path, mode); });
}

int stat(const char* path, struct stat* status) noexcept {
  return Perform(kLook, Absolute(AT_FDCWD, path), -1,
                 [&] { return Real<int (*)(const char*, struct stat*)>("stat")(path, status); });
}

int lstat(const char* path, struct stat* status) noexcept {
  return Perform(kLook, Absolute(AT_FDCWD, path), -1,
                 [&] { return Real<int (*)(const char*, struct stat*)>("lstat")(path, status); });
}

}  // extern "C"
