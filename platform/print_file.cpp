// Naming prints so that none replaces another.
#include "platform/print_file.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "platform/utf8.h"

namespace veritane::platform {

namespace {

// With folder and moment it stays inside what Windows takes as a path.
constexpr std::size_t kLongestTitle = 100;
constexpr std::string_view kForbidden = "\\/:*?\"<>|";

std::string FileNameOf(std::string_view title) {
  std::string name = Characters(title, 0, kLongestTitle);
  std::ranges::replace_if(
      name, [](char c) { return (c >= 0 && c < ' ') || c == 0x7f || kForbidden.find(c) != kForbidden.npos; },
      '_');
  const std::size_t first = name.find_first_not_of(' ');
  return first == std::string::npos ? "Print" : name.substr(first, name.find_last_not_of(' ') - first + 1);
}

std::string FileMoment(const DateTime& moment) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d-%02d-%02d", moment.year, moment.month,
                moment.day, moment.hour, moment.minute, moment.second);
  return text.data();
}

}  // namespace

std::string NewPrintPath(FileSystem& files, const std::string& folder, std::string_view title,
                         const DateTime& moment) {
  if (!files.FolderExists(folder)) files.CreateFolder(folder);
  const std::string name = folder + "\\" + FileNameOf(title) + " " + FileMoment(moment);
  std::string path = name + ".pdf";
  for (int number = 2; files.FileExists(path); ++number) {
    path = name + " (" + std::to_string(number) + ").pdf";
  }
  return path;
}

}  // namespace veritane::platform
