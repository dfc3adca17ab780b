// File calls of Windows.
#include "platform/system/native_file.h"

#include "platform/run_time_error.h"
#include "platform/windows/windows_time.h"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <utility>

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE HandleOf(std::intptr_t number) {
  return reinterpret_cast<HANDLE>(number);
}

[[noreturn]] void RaiseSystemError(DWORD code, const std::string& path) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      throw RunTimeError(ErrorNumber::kFileNotFound, path);
    case ERROR_INVALID_DRIVE:
      throw RunTimeError(ErrorNumber::kPathNotFound, path);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      throw RunTimeError(ErrorNumber::kDiskFull, path);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
      throw RunTimeError(ErrorNumber::kPermissionDenied, path);
    case ERROR_ALREADY_EXISTS:
    case ERROR_FILE_EXISTS:
      throw RunTimeError(ErrorNumber::kPathFileAccess, path);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      throw RunTimeError(ErrorNumber::kBadFileNumber, path);
    case ERROR_NOT_READY:
    // A network drive that is gone, which is another matter than a disk that fails.
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NETNAME_DELETED:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_NETWORK_UNREACHABLE:
    case ERROR_HOST_UNREACHABLE:
    case ERROR_SEM_TIMEOUT:
      throw RunTimeError(ErrorNumber::kDiskNotReady, path);
    default:
      throw RunTimeError(ErrorNumber::kDeviceError, path);
  }
}

// A missing folder on the way to a file that is to be written is 76, not 53.
[[noreturn]] void RaiseWriteError(DWORD code, const std::string& path) {
  if (code == ERROR_PATH_NOT_FOUND) throw RunTimeError(ErrorNumber::kPathNotFound, path);
  RaiseSystemError(code, path);
}

bool IsFolder(const fs::path& native) {
  const DWORD attributes = ::GetFileAttributesW(native.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The name that the file has on disk, which a replacement keeps: only its case can differ from what was asked
// for.
fs::path NameOnDisk(const fs::path& native) {
  WIN32_FIND_DATAW found;
  const HANDLE search = ::FindFirstFileW(native.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return native;
  ::FindClose(search);
  return native.parent_path() / found.cFileName;
}

// Virus scanners and indexers hold a new file open for a moment.
bool IsHeldByAnother(DWORD code) {
  return code == ERROR_SHARING_VIOLATION || code == ERROR_ACCESS_DENIED || code == ERROR_LOCK_VIOLATION;
}
constexpr int kMoveAttempts = 20;
constexpr DWORD kMillisecondsBetweenAttempts = 25;

}  // namespace

NativeFile::~NativeFile() {
  if (HandleOf(handle_) != INVALID_HANDLE_VALUE) ::CloseHandle(HandleOf(handle_));
}

NativeFile NativeFile::OpenToRead(const fs::path& native, const std::string& path) {
  if (IsFolder(native)) throw RunTimeError(ErrorNumber::kPathFileAccess, path);
  const HANDLE handle = ::CreateFileW(native.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) RaiseSystemError(::GetLastError(), path);
  return {reinterpret_cast<Handle>(handle), native, path};
}

NativeFile NativeFile::OpenToAppend(const fs::path& native, const std::string& path) {
  if (IsFolder(native)) throw RunTimeError(ErrorNumber::kPathFileAccess, path);
  // Nobody deletes or renames it meanwhile: the name of a deleted file would take lines that nobody finds.
  const HANDLE handle = ::CreateFileW(native.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) RaiseWriteError(::GetLastError(), path);
  return {reinterpret_cast<Handle>(handle), native, path};
}

std::optional<NativeFile> NativeFile::OpenAlone(const fs::path& native, const std::string& path) {
  // Whoever only reads it, a copy of the data folder being made, is not kept out.
  const HANDLE handle = ::CreateFileW(native.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                      nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle != INVALID_HANDLE_VALUE) return NativeFile(reinterpret_cast<Handle>(handle), native, path);
  if (::GetLastError() == ERROR_SHARING_VIOLATION) return std::nullopt;
  RaiseWriteError(::GetLastError(), path);
}

NativeFile NativeFile::CreateBeside(const fs::path& native, const std::string& path) {
  static std::atomic<unsigned> count{0};
  for (;;) {
    fs::path temporary = native;
    temporary += L"." + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(count++);
    temporary += kUnfinished;
    const HANDLE handle =
        ::CreateFileW(temporary.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                      CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) return {reinterpret_cast<Handle>(handle), temporary, path};
    // A process of the same number may have died here.
    if (::GetLastError() != ERROR_FILE_EXISTS) RaiseWriteError(::GetLastError(), path);
  }
}

std::string NativeFile::ReadFrom(std::int64_t position) {
  if (!::SetFilePointerEx(HandleOf(handle_), LARGE_INTEGER{.QuadPart = position}, nullptr, FILE_BEGIN)) {
    RaiseSystemError(::GetLastError(), path_);
  }
  return ReadAll();
}

std::string NativeFile::ReadAll() {
  constexpr std::size_t kLargestStep = std::size_t{1} << 30;
  std::string bytes(static_cast<std::size_t>(Size()), '\0');
  std::size_t filled = 0;
  for (;;) {
    // One byte beyond the known size tells whether the file has grown meanwhile.
    if (filled == bytes.size()) bytes.resize(bytes.size() + std::max<std::size_t>(1, bytes.size() / 8));
    const DWORD wanted = static_cast<DWORD>(std::min(bytes.size() - filled, kLargestStep));
    DWORD count = 0;
    if (!::ReadFile(HandleOf(handle_), bytes.data() + filled, wanted, &count, nullptr)) {
      RaiseSystemError(::GetLastError(), path_);
    }
    if (count == 0) break;
    filled += count;
  }
  bytes.resize(filled);
  return bytes;
}

void NativeFile::Write(std::string_view bytes) {
  constexpr std::size_t kLargestStep = std::size_t{1} << 30;
  while (!bytes.empty()) {
    // To the end in one step, wherever another program has moved it.
    OVERLAPPED at_end{};
    at_end.Offset = at_end.OffsetHigh = 0xffffffff;
    DWORD written = 0;
    if (!::WriteFile(HandleOf(handle_), bytes.data(),
                     static_cast<DWORD>(std::min(bytes.size(), kLargestStep)), &written, &at_end)) {
      RaiseSystemError(::GetLastError(), path_);
    }
    if (written == 0) throw RunTimeError(ErrorNumber::kDiskFull, path_);
    bytes.remove_prefix(written);
  }
}

std::int64_t NativeFile::Size() {
  LARGE_INTEGER size;
  if (!::GetFileSizeEx(HandleOf(handle_), &size)) RaiseSystemError(::GetLastError(), path_);
  return size.QuadPart;
}

bool NativeFile::IsInPlace() const {
  const HANDLE there =
      ::CreateFileW(native_.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (there == INVALID_HANDLE_VALUE) return false;
  BY_HANDLE_FILE_INFORMATION found{};
  BY_HANDLE_FILE_INFORMATION mine{};
  const bool is_known = ::GetFileInformationByHandle(there, &found) != 0 &&
                        ::GetFileInformationByHandle(HandleOf(handle_), &mine) != 0;
  ::CloseHandle(there);
  return is_known && found.dwVolumeSerialNumber == mine.dwVolumeSerialNumber &&
         found.nFileIndexHigh == mine.nFileIndexHigh && found.nFileIndexLow == mine.nFileIndexLow;
}

void NativeFile::CutTo(std::int64_t size) {
  LARGE_INTEGER end;
  end.QuadPart = size;
  if (!::SetFilePointerEx(HandleOf(handle_), end, nullptr, FILE_BEGIN) ||
      !::SetEndOfFile(HandleOf(handle_))) {
    RaiseSystemError(::GetLastError(), path_);
  }
}

void NativeFile::Stamp(std::chrono::system_clock::time_point moment) {
  const FILETIME time = FileTimeOf(moment);
  (void)::SetFileTime(HandleOf(handle_), nullptr, nullptr, &time);
}

void NativeFile::Flush() {
  if (!::FlushFileBuffers(HandleOf(handle_))) RaiseSystemError(::GetLastError(), path_);
}

// Closed first: not every file system lets an open file be moved.
void NativeFile::TakePlaceOf(const fs::path& target) {
  if (!::CloseHandle(HandleOf(std::exchange(handle_, -1)))) RaiseSystemError(::GetLastError(), path_);
  MoveOver(native_, target, path_);
}

// The standard library's look takes what is refused, and a drive that is gone, for missing.
FileKind KindOf(const fs::path& native, const std::string& path) {
  const DWORD attributes = ::GetFileAttributesW(native.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileKind::kFolder : FileKind::kFile;
  }
  switch (const DWORD code = ::GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_DIRECTORY:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return FileKind::kNone;
    default:
      RaiseSystemError(code, path);
  }
}

// The standard library gives codes of Windows, or those of its own where it asked the C library.
void RaiseLookError(const std::error_code& error, const std::string& path) {
  if (error.category() == std::system_category()) RaiseSystemError(static_cast<DWORD>(error.value()), path);
  throw RunTimeError(
      error == std::errc::permission_denied ? ErrorNumber::kPermissionDenied : ErrorNumber::kDeviceError,
      path);
}

void RemoveAbandoned(const fs::path& native) {
  // Only where nobody else has it open.
  const HANDLE handle =
      ::CreateFileW(native.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (handle != INVALID_HANDLE_VALUE) ::CloseHandle(handle);
}

void CreateFolderAt(const fs::path& native, const std::string& path) {
  if (!::CreateDirectoryW(native.c_str(), nullptr)) RaiseWriteError(::GetLastError(), path);
}

void RemoveFileAt(const fs::path& native, const std::string& path) {
  if (!::DeleteFileW(native.c_str())) RaiseSystemError(::GetLastError(), path);
}

void RequireReplaceable(const fs::path& native, const std::string& path) {
  const DWORD attributes = ::GetFileAttributesW(native.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) throw RunTimeError(ErrorNumber::kPathFileAccess, path);
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) throw RunTimeError(ErrorNumber::kPermissionDenied, path);
}

void MoveOver(const fs::path& from, const fs::path& to, const std::string& path) {
  const fs::path target = NameOnDisk(to);
  for (int attempt = 1;; ++attempt) {
    if (::MoveFileExW(from.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
      return;
    const DWORD code = ::GetLastError();
    if (attempt == kMoveAttempts || !IsHeldByAnother(code)) RaiseWriteError(code, path);
    ::Sleep(kMillisecondsBetweenAttempts);
  }
}

// A move writes through, and a new file's name goes to the disk with the file.
void FlushFolder(const fs::path&, const std::string&) {}

std::chrono::system_clock::time_point LastChange(const fs::path& native, const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!::GetFileAttributesExW(native.c_str(), GetFileExInfoStandard, &data))
    RaiseSystemError(::GetLastError(), path);
  return MomentOf(data.ftLastWriteTime);
}

}  // namespace veritane::platform
