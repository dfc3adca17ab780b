// The data folders, the installer's marker in the tables, and the user's name.
#include "shell/state/data_folders.h"

#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "shell/state/string_table.h"

namespace veritane::state {

namespace {

constexpr std::uint32_t kNexaSeries = 6;
constexpr const char* kBelowApplicationData = "\\Kestrova\\Veritane\\";

std::string UpToNul(const std::string& text) {
  return text.substr(0, text.find('\0'));
}

}  // namespace

FolderSet ChooseFolderSet(const platform::Registry& registry) {
  if (registry.ReadDword("Software\\Tarnex\\Spectrometer", "Obe Type") != kNexaSeries) return {};
  return {.sampFolder = "NexaSamples",
          .stdsFolder = "NexaStandards",
          .methTable = "NexaMeth.tbl",
          .methsTable = "NexaMeths.tbl"};
}

std::string DataFolderBelow(const std::string& common_application_data) {
  return common_application_data.empty() ? "" : common_application_data + kBelowApplicationData;
}

std::string PrintFolder(const std::string& data_folder) {
  return data_folder + "Prints";
}

std::string ReplaceAll(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

void MakeTablesConcrete(platform::FileSystem& files, const FolderSet& set, const std::string& data_folder) {
  for (const std::string& table : {set.methTable, set.methsTable}) {
    const std::string path = data_folder + table;
    const std::string bytes = files.ReadBytes(path);
    if (bytes.find(kInstallerMarker) == std::string::npos) continue;
    files.WriteBytes(path, ReplaceAll(bytes, kInstallerMarker, data_folder).append(platform::kLineEnd));
  }
}

DataFolders SetUpFolders(const platform::ShellFolders& shell, platform::FileSystem& files,
                         const FolderSet& set) {
  DataFolders folders;
  folders.appDir = shell.CommonApplicationData(true) + kBelowApplicationData;
  folders.stdsDir = folders.appDir + set.stdsFolder;
  folders.sampDir = folders.appDir + set.sampFolder;
  for (const std::string& folder : {folders.stdsDir, folders.sampDir}) {
    if (!files.FolderExists(folder)) files.CreateFolder(folder);
  }
  return folders;
}

std::string CurrentUserName(const platform::UserAccount& account) {
  try {
    std::string name;
    if (const auto user = account.LoggedOnUser()) {
      name = UpToNul(*user);
    } else if (const auto computer = account.ComputerName()) {
      name = "[" + UpToNul(*computer) + "]";
    }
    return name.empty() ? Text(TextId::kUnknownUser) : name;
  } catch (const platform::RunTimeError&) {
    return Text(TextId::kUserCannotBeTold);
  }
}

}  // namespace veritane::state
