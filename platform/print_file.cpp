// Naming prints so that none replaces another.
#include "platform/print_file.h"

#include "platform/utf8.h"
#include "platform/windows_path.h"

#include <algorithm>

namespace veritane::platform {

namespace {

// With folder and moment it stays inside what Windows takes as a path.
constexpr std::size_t kLongestTitle = 100;

std::string FileNameOf(std::string_view title) {
  std::string name = Characters(title, 0, kLongestTitle);
  std::ranges::replace_if(
      name,
      [](char c) {
        return (c >= 0 && c < ' ') || c == 0x7f || kForbiddenInNames.find(c) != std::string_view::npos;
      },
      '_');
  const std::size_t first = name.find_first_not_of(' ');
  return first == std::string::npos ? "Print" : name.substr(first, name.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string NewPrintPath(FileSystem& files, const std::string& folder, std::string_view title,
                         const DateTime& moment) {
  if (!files.FolderExists(folder)) files.CreateFolder(folder);
  const std::string name = folder + "\\" + FileNameOf(title) + " " + MomentText(moment, '-', ' ', '-');
  std::string path = name + ".pdf";
  for (int number = 2; files.FileExists(path); ++number) {
    path = name + " (" + std::to_string(number) + ").pdf";
  }
  return path;
}

}  // namespace veritane::platform
