// The system's own file calls, so that every failure is seen and flushing is ours to order. Each function
// raises the RunTimeError of its failure with `path`, the name by which the program knows the file.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace veritane::platform {

// An open file that is closed when it goes out of scope.
class NativeFile {
public:
  static NativeFile OpenToRead(const std::filesystem::path& native, const std::string& path);
  // Created where it is missing; what is written goes to its end.
  static NativeFile OpenToAppend(const std::filesystem::path& native, const std::string& path);
  // For this program alone, created where it is missing; nothing while another program has it.
  static std::optional<NativeFile> OpenAlone(const std::filesystem::path& native, const std::string& path);
  // A new file beside `native`, under a name that nothing has and that IsNameOfUnfinished knows. While it is
  // open RemoveAbandoned leaves it alone.
  static NativeFile CreateBeside(const std::filesystem::path& native, const std::string& path);

  NativeFile(NativeFile&& other) noexcept;
  NativeFile& operator=(NativeFile&&) = delete;
  ~NativeFile();

  const std::filesystem::path& Native() const { return native_; }

  std::string ReadAll();
  // What stands from a position on, 0 being the beginning.
  std::string ReadFrom(std::int64_t position);
  void Write(std::string_view bytes);
  std::int64_t Size();
  // Whether the file's name still leads to it: it was neither deleted nor renamed, and can be looked at.
  bool IsInPlace() const;
  // Cuts the file to a size that it had.
  void CutTo(std::int64_t size);
  // Sets the time of the last change. A file system that keeps no times still holds the data, so nothing is
  // raised.
  void Stamp(std::chrono::system_clock::time_point moment);
  // Returns when the bytes are on the disk.
  void Flush();
  // Gives the file, which has been flushed, the place of `target`. It is of no use afterwards.
  void TakePlaceOf(const std::filesystem::path& target);

private:
  // A descriptor of a POSIX system, a handle of Windows.
  using Handle = std::intptr_t;
  NativeFile(Handle handle, std::filesystem::path native, std::string path);

  Handle handle_;
  std::filesystem::path native_;
  std::string path_;
};

enum class FileKind { kNone, kFile, kFolder, kOther };
// What lies there: nothing also for a name that no file can have. What cannot be looked at is an error:
// whoever took it for missing would make a new one in its place.
FileKind KindOf(const std::filesystem::path& native, const std::string& path);

// Raises what the standard library's look at a file or folder ended with.
[[noreturn]] void RaiseLookError(const std::error_code& error, const std::string& path);

// Ends the names of files that are still being written.
inline constexpr const char* kUnfinished = ".unfinished";
// Whether CreateBeside gives such names.
bool IsNameOfUnfinished(const std::filesystem::path& name);
// Removes what a writer that is gone left of CreateBeside. One that lives, or a file system that cannot tell,
// keeps its file.
void RemoveAbandoned(const std::filesystem::path& native);

void CreateFolderAt(const std::filesystem::path& native, const std::string& path);
void RemoveFileAt(const std::filesystem::path& native, const std::string& path);
// Error 70 or 75 for what WriteBytes may not replace: a folder, a file that may not be written.
void RequireReplaceable(const std::filesystem::path& native, const std::string& path);
// `from` becomes `to`, in one step and for good: after a power failure one of the two is there, whole.
void MoveOver(const std::filesystem::path& from, const std::filesystem::path& to, const std::string& path);
// Makes the new name of a file in the folder survive a power failure, where the file system knows how to.
void FlushFolder(const std::filesystem::path& folder, const std::string& path);
std::chrono::system_clock::time_point LastChange(const std::filesystem::path& native,
                                                 const std::string& path);

}  // namespace veritane::platform
