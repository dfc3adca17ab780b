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
inline constexpr unsigned kChanges = 1;
inline constexpr unsigned kTakesSpace = 2;
inline constexpr unsigned kNeedsPermission = 4;

struct Operation {
  const char* name;
  unsigned traits;

  bool Has(unsigned trait) const { return (traits & trait) != 0; }
};

inline constexpr Operation kCreate{"create", kChanges | kTakesSpace | kNeedsPermission};
inline constexpr Operation kOpenToWrite{"open", kChanges | kNeedsPermission};
inline constexpr Operation kWrite{"write", kChanges | kTakesSpace};
inline constexpr Operation kFlush{"flush", kChanges | kTakesSpace};
inline constexpr Operation kFlushFolder{"flush-folder", kChanges};
inline constexpr Operation kClose{"close", kChanges | kTakesSpace};
inline constexpr Operation kShorten{"shorten", kChanges};
inline constexpr Operation kSetMode{"set-mode", kChanges | kNeedsPermission};
inline constexpr Operation kSetTime{"set-time", kChanges | kNeedsPermission};
inline constexpr Operation kRename{"rename", kChanges | kTakesSpace | kNeedsPermission};
inline constexpr Operation kDelete{"delete", kChanges | kNeedsPermission};
inline constexpr Operation kMakeFolder{"make-folder", kChanges | kTakesSpace | kNeedsPermission};
inline constexpr Operation kOpenToRead{"open-to-read", kNeedsPermission};
inline constexpr Operation kRead{"read", 0};
inline constexpr Operation kLook{"look", kNeedsPermission};
inline constexpr Operation kList{"list", kNeedsPermission};

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

struct NamedFault {
  const char* name;
  Fault fault;
};

inline constexpr NamedFault kFaults[] = {{"kill-before", Fault::kKillBefore},
                                         {"kill-after", Fault::kKillAfter},
                                         {"kill-halfway", Fault::kKillHalfway},
                                         {"full", Fault::kFull},
                                         {"denied", Fault::kDenied},
                                         {"broken", Fault::kBroken},
                                         {"read-only", Fault::kReadOnly},
                                         {"stale", Fault::kStale},
                                         {"unplugged", Fault::kUnplugged}};

inline Fault FaultOf(const std::string& kind) {
  for (const auto& [name, fault] : kFaults) {
    if (kind == name) return fault;
  }
  return Fault::kNone;
}

inline bool Fits(Fault fault, const Operation& operation) {
  switch (fault) {
    case Fault::kKillBefore:
    case Fault::kKillAfter:
    case Fault::kReadOnly:
      return operation.Has(kChanges);
    case Fault::kKillHalfway:
      return operation.name == kWrite.name;
    case Fault::kFull:
      return operation.Has(kTakesSpace);
    case Fault::kDenied:
      return operation.Has(kNeedsPermission);
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
    for (const auto& [name, fault] : kFaults) {
      if (Fits(fault, operation)) text += (text.empty() ? "" : ",") + std::string(name);
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
