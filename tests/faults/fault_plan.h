// What can befall an operation on a file, and when it is to: the plan that the preloaded library follows,
// from the variables of the environment that file_faults.cpp lists.
#pragma once

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>

namespace veritane::faults {

// The function that the program would have called without this library.
template <typename Function>
Function Real(const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

inline std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

// What can befall an operation besides the end of the program, which fits each that changes something.
struct Operation {
  const char* name;
  bool changes;
  bool takesSpace;
  bool needsPermission;
};

inline constexpr Operation kCreate{
    .name = "create", .changes = true, .takesSpace = true, .needsPermission = true};
inline constexpr Operation kOpenToWrite{
    .name = "open", .changes = true, .takesSpace = false, .needsPermission = true};
inline constexpr Operation kWrite{
    .name = "write", .changes = true, .takesSpace = true, .needsPermission = false};
inline constexpr Operation kFlush{
    .name = "flush", .changes = true, .takesSpace = true, .needsPermission = false};
inline constexpr Operation kFlushFolder{
    .name = "flush-folder", .changes = true, .takesSpace = false, .needsPermission = false};
inline constexpr Operation kClose{
    .name = "close", .changes = true, .takesSpace = true, .needsPermission = false};
inline constexpr Operation kShorten{
    .name = "shorten", .changes = true, .takesSpace = false, .needsPermission = false};
inline constexpr Operation kSetMode{
    .name = "set-mode", .changes = true, .takesSpace = false, .needsPermission = true};
inline constexpr Operation kSetTime{
    .name = "set-time", .changes = true, .takesSpace = false, .needsPermission = true};
inline constexpr Operation kRename{
    .name = "rename", .changes = true, .takesSpace = true, .needsPermission = true};
inline constexpr Operation kDelete{
    .name = "delete", .changes = true, .takesSpace = false, .needsPermission = true};
inline constexpr Operation kMakeFolder{
    .name = "make-folder", .changes = true, .takesSpace = true, .needsPermission = true};
inline constexpr Operation kOpenToRead{
    .name = "open-to-read", .changes = false, .takesSpace = false, .needsPermission = true};
inline constexpr Operation kRead{
    .name = "read", .changes = false, .takesSpace = false, .needsPermission = false};
inline constexpr Operation kLook{
    .name = "look", .changes = false, .takesSpace = false, .needsPermission = true};
inline constexpr Operation kList{
    .name = "list", .changes = false, .takesSpace = false, .needsPermission = true};

enum class Fault {
  kNone,
  kKillBefore,
  kKillAfter,
  kKillHalfway,
  kFull,
  kDenied,
  kBroken,
  kReadOnly,
  kStale,
  kUnplugged
};

inline Fault FaultOf(const std::string& kind) {
  if (kind == "kill-before") return Fault::kKillBefore;
  if (kind == "kill-after") return Fault::kKillAfter;
  if (kind == "kill-halfway") return Fault::kKillHalfway;
  if (kind == "full") return Fault::kFull;
  if (kind == "denied") return Fault::kDenied;
  if (kind == "broken") return Fault::kBroken;
  if (kind == "read-only") return Fault::kReadOnly;
  if (kind == "stale") return Fault::kStale;
  if (kind == "unplugged") return Fault::kUnplugged;
  return Fault::kNone;
}

inline bool Fits(Fault fault, const Operation& operation) {
  switch (fault) {
    case Fault::kKillBefore:
    case Fault::kKillAfter:
    case Fault::kReadOnly:
      return operation.changes;
    case Fault::kKillHalfway:
      return operation.name == kWrite.name;
    case Fault::kFull:
      return operation.takesSpace;
    case Fault::kDenied:
      return operation.needsPermission;
    case Fault::kBroken:
    case Fault::kStale:
    case Fault::kUnplugged:
      return true;
    case Fault::kNone:
      break;
  }
  return false;
}

inline int ErrorOf(Fault fault) {
  switch (fault) {
    case Fault::kFull:
      return ENOSPC;
    case Fault::kDenied:
      return EACCES;
    case Fault::kReadOnly:
      return EROFS;
    case Fault::kStale:
      return ESTALE;
    case Fault::kUnplugged:
      return ENOTCONN;
    default:
      return EIO;
  }
}

inline bool IsError(Fault fault) {
  return fault >= Fault::kFull;
}

// Without buffers, so that a killed program has told everything.
[[noreturn]] inline void Kill() {
  ::kill(::getpid(), SIGKILL);
  for (;;) ::pause();
}

class Plan {
public:
  Plan() {
    if (const std::string path = Variable("FILE_FAULTS_REPORT"); !path.empty()) {
      report_ = Real<int (*)(const char*, int, ...)>("open")(path.c_str(),
                                                             O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    }
  }

  bool IsWatched(const std::string& path) const {
    return !folder_.empty() && path.starts_with(folder_) &&
           (path.size() == folder_.size() || path[folder_.size()] == '/');
  }

  // Numbers the operation and tells which fault, if any, is to befall it.
  Fault Next(const Operation& operation, const std::string& path) {
    ++count_;
    Tell(std::to_string(count_) + " " + operation.name + " " + FittingFaults(operation) + " " + path);
    const bool is_first = count_ == at_;
    if (!is_first && !(at_ > 0 && count_ > at_ && Lasts() && Fits(fault_, operation))) return Fault::kNone;
    Tell("fault " + std::to_string(count_) + " " + operation.name + " " + path);
    if (fault_ == Fault::kKillBefore) Kill();
    return fault_;
  }

private:
  bool Lasts() const {
    return !while_.empty() && Real<int (*)(const char*, int)>("access")(while_.c_str(), F_OK) == 0;
  }

  static std::string FittingFaults(const Operation& operation) {
    std::string text;
    for (const char* kind : {"kill-before", "kill-after", "kill-halfway", "full", "denied", "broken",
                             "read-only", "stale", "unplugged"}) {
      if (Fits(FaultOf(kind), operation)) text += (text.empty() ? "" : ",") + std::string(kind);
    }
    return text;
  }

  void Tell(const std::string& line) const {
    const std::string text = line + "\n";
    if (report_ >= 0 && Real<ssize_t (*)(int, const void*, size_t)>("write")(
                            report_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
      // A report with holes would pass for a program that does less than it does.
      Kill();
    }
  }

  const std::string folder_ = Variable("FILE_FAULTS_BELOW");
  const std::string while_ = Variable("FILE_FAULTS_WHILE");
  const long at_ = std::atol(Variable("FILE_FAULTS_AT").c_str());
  const Fault fault_ = FaultOf(Variable("FILE_FAULTS_KIND"));
  int report_ = -1;
  long count_ = 0;
};

// Never destroyed: files are closed until the very end of the program.
inline Plan& ThePlan() {
  static Plan& plan = *new Plan;
  return plan;
}

}  // namespace veritane::faults
