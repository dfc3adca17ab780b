// Where a program that is installed keeps what belongs into its own folder.
#include "platform/system/system_machine.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace veritane::tests {
namespace {

using platform::PathMap;
using platform::SystemShellFolders;

TEST(ProgramFolderTest, IsWhereTheProgramLiesUnlessAFileBesideItNamesAnother) {
  const TemporaryFolder folder;
  const PathMap paths(folder.Path());
  const auto programs = folder.Path() / "drive_c" / "Programs";
  std::filesystem::create_directories(programs);
  const SystemShellFolders folders(paths, programs);
  EXPECT_EQ(folders.ProgramFolder(), "C:\\Programs");
  std::ofstream(programs / "program_folder") << "C:\\ProgramData\\Kestrova\\Veritane\n";
  EXPECT_EQ(folders.ProgramFolder(), "C:\\ProgramData\\Kestrova\\Veritane");
  std::ofstream(programs / "program_folder", std::ios::trunc);
  EXPECT_EQ(folders.ProgramFolder(), "C:\\Programs") << "an empty file names none";
}

}  // namespace
}  // namespace veritane::tests
