// Where the program's data lie, and the set-up of those folders at start-up.
#pragma once

#include "platform/machine.h"

#include <string>
#include <string_view>

namespace veritane::state {

// The names that depend on the instrument series.
struct FolderSet {
  std::string sampFolder = "Samples";
  std::string stdsFolder = "Standards";
  std::string methTable = "Meth.tbl";    // one row a product
  std::string methsTable = "Meths.tbl";  // the collect methods
};

// The Nexa names when the registry's "Obe Type" is the DWORD 6, else the plain ones.
FolderSet ChooseFolderSet(const platform::Registry& registry);

// The file of the data folder that a running Veritane has taken for itself.
inline constexpr const char* kDataFolderLock = "veritane.lock";

struct DataFolders {
  std::string appDir;   // ends in "\"
  std::string stdsDir;  // does not
  std::string sampDir;  // does not

  std::string InStandards(const std::string& leaf) const { return stdsDir + "\\" + leaf; }
  std::string InSamples(const std::string& leaf) const { return sampDir + "\\" + leaf; }
};

// The data folder below the common application data folder, with a trailing "\". "" for "" (the system has
// none).
std::string DataFolderBelow(const std::string& common_application_data);

// Where print-outs go that go into files: a folder of the data folder, without a trailing "\".
std::string PrintFolder(const std::string& data_folder);

// What stands for the data folder in the tables that ship.
inline constexpr std::string_view kInstallerMarker = "[VERITANE_TARGETDIR]";

// The text with `to` in place of every `from`. What was put in is not looked at again.
std::string ReplaceAll(std::string text, std::string_view from, std::string_view to);

// Replaces every marker of the installer in the two tables by `data_folder`, in the bytes as they stand, and
// ends a changed file with one more line end. A file without the marker is left untouched; error 53 for a
// missing one.
void MakeTablesConcrete(platform::FileSystem& files, const FolderSet& set, const std::string& data_folder);

// Names the folders and creates the Standards and the samples folder where they are missing. The data folder
// itself is the installer's to make.
DataFolders SetUpFolders(const platform::ShellFolders& shell, platform::FileSystem& files,
                         const FolderSet& set);

// The logged-on user, else the computer's name in brackets, else "<unknown user 1>"; "<unknown user 2>" when
// asking raised an error.
std::string CurrentUserName(const platform::UserAccount& account);

}  // namespace veritane::state
