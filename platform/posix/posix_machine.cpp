// Clock, registry text, folders, names and regional formats of a POSIX system.
#include "platform/posix/posix_machine.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <ctime>
#include <fstream>
#include <sstream>

#include "platform/run_time_error.h"
#include "platform/windows_path.h"

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

std::tm ToTm(const DateTime& moment) {
  std::tm broken{};
  broken.tm_year = moment.year - 1900;
  broken.tm_mon = moment.month - 1;
  broken.tm_mday = moment.day;
  broken.tm_hour = moment.hour;
  broken.tm_min = moment.minute;
  broken.tm_sec = moment.second;
  broken.tm_wday = DayOfWeek(moment);
  broken.tm_isdst = -1;
  return broken;
}

fs::path NativeProgramFolder() {
  return fs::read_symlink("/proc/self/exe").parent_path();
}

// One line of REGEDIT4 text: "name"=dword:0000000f.
std::optional<std::uint32_t> DwordOf(const std::string& line, const std::string& name) {
  const std::size_t close = line.find('"', 1);
  if (!line.starts_with('"') || close == std::string::npos) return std::nullopt;
  if (UpperCase(line.substr(1, close - 1)) != UpperCase(name)) return std::nullopt;
  const std::string rest = line.substr(close + 1);
  constexpr std::string_view kMark = "=dword:";
  if (!rest.starts_with(kMark)) return std::nullopt;
  std::uint32_t value = 0;
  const char* begin = rest.data() + kMark.size();
  const char* end = rest.data() + rest.size();
  const auto [stop, error] = std::from_chars(begin, end, value, 16);
  return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

}  // namespace

std::chrono::system_clock::time_point PosixClock::Now() const {
  return fixed_ ? *fixed_ : std::chrono::system_clock::now();
}

DateTime PosixClock::ToLocal(std::chrono::system_clock::time_point moment) const {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
  std::tm broken{};
  if (::localtime_r(&seconds, &broken) == nullptr) throw RunTimeError(ErrorNumber::kOverflow, "the date");
  return {.year = broken.tm_year + 1900,
          .month = broken.tm_mon + 1,
          .day = broken.tm_mday,
          .hour = broken.tm_hour,
          .minute = broken.tm_min,
          .second = std::min(broken.tm_sec, 59)};
}

void PosixClock::Set(const DateTime& local) {
  std::tm broken = ToTm(local);
  fixed_ = std::chrono::system_clock::from_time_t(std::mktime(&broken));
}

std::optional<std::uint32_t> RegistryFile::ReadDword(const std::string& key, const std::string& value) const {
  std::ifstream file(file_, std::ios::binary);
  const std::string wanted = UpperCase("[HKEY_LOCAL_MACHINE\\" + key + "]");
  bool is_in_key = false;
  for (std::string line; std::getline(file, line);) {
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.pop_back();
    if (line.starts_with('[')) {
      is_in_key = UpperCase(line) == wanted;
    } else if (is_in_key) {
      if (const auto found = DwordOf(line, value)) return found;
    }
  }
  return std::nullopt;
}

std::string PosixShellFolders::CommonApplicationData(bool create) const {
  const std::string folder = "C:\\ProgramData";
  const fs::path native = paths_.ToNative(folder);
  std::error_code error;
  if (create) fs::create_directories(native, error);
  return fs::is_directory(native, error) ? folder : "";
}

std::string PosixShellFolders::ProgramFolder() const {
  return paths_.ToWindows(NativeProgramFolder());
}

std::optional<std::string> PosixUserAccount::LoggedOnUser() const {
  std::array<char, 4096> buffer{};
  passwd entry{};
  passwd* found = nullptr;
  if (::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) {
    return std::nullopt;
  }
  return std::string(entry.pw_name);
}

std::optional<std::string> PosixUserAccount::ComputerName() const {
  std::array<char, 256> buffer{};
  if (::gethostname(buffer.data(), buffer.size() - 1) != 0) return std::nullopt;
  return std::string(buffer.data());
}

PosixRegionalFormat::PosixRegionalFormat(const std::string& locale_name)
    : locale_(::newlocale(LC_ALL_MASK, locale_name.c_str(), nullptr)) {
  if (locale_ == nullptr && locale_name.empty()) locale_ = ::newlocale(LC_ALL_MASK, "C", nullptr);
  if (locale_ == nullptr) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "the locale \"" + locale_name + "\" is not installed");
  }
}

PosixRegionalFormat::~PosixRegionalFormat() {
  ::freelocale(locale_);
}

std::string PosixRegionalFormat::Format(const char* pattern, const DateTime& moment) const {
  const std::tm broken = ToTm(moment);
  std::array<char, 256> buffer{};
  const std::size_t length = ::strftime_l(buffer.data(), buffer.size(), pattern, &broken, locale_);
  return std::string(buffer.data(), length);
}

std::string PosixRegionalFormat::ShortDate(const DateTime& moment) const {
  return Format("%x", moment);
}
std::string PosixRegionalFormat::ShortTime(const DateTime& moment) const {
  return Format("%X", moment);
}
std::string PosixRegionalFormat::GeneralDate(const DateTime& moment) const {
  return Format("%x %X", moment);
}

std::string PosixRegionalFormat::LongDate(const DateTime& moment) const {
  return Format("%A %B ", moment) + std::to_string(moment.day) + " " + std::to_string(moment.year);
}

PosixMachine::PosixMachine(const fs::path& root, const std::string& locale_name)
    : paths(root),
      files(paths, clock),
      registry(paths.Root() / "registry.reg"),
      folders(paths),
      regional(locale_name),
      libraries(paths, NativeProgramFolder()) {}

Machine PosixMachine::Facilities() {
  return {.files = files,
          .registry = registry,
          .folders = folders,
          .user = user,
          .clock = clock,
          .regional = regional,
          .libraries = libraries};
}

}  // namespace veritane::platform
