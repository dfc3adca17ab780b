// Files on disk by Windows path: case, atomic replacement, errors by their numbers; and what else the system
// is asked for everywhere: registry, program folder, clock and dates.
#include "platform/system/disk_file_system.h"

#include "platform/system/native_file.h"
#include "platform/system/registry_file.h"
#include "platform/system/system_machine.h"
#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <limits>

namespace veritane::platform {
namespace {

namespace fs = std::filesystem;
using tests::ErrorOf;

class DiskFileSystemTest : public ::testing::Test {
protected:
  DiskFileSystemTest() { fs::create_directories(folder_.Path() / "drive_c" / "Data"); }

  tests::TemporaryFolder folder_;
  PathMap paths_{folder_.Path()};
  SystemClock clock_;
  DiskFileSystem files_{paths_, clock_};
};

TEST_F(DiskFileSystemTest, NamesAreFoundWithoutRegardToCaseAndKeepTheCaseTheyWereMadeWith) {
  files_.WriteBytes("C:\\Data\\Aspirin.bsp", "one");
  EXPECT_EQ(files_.ReadBytes("c:\\DATA\\ASPIRIN.BSP"), "one");
  files_.WriteBytes("C:\\data\\aspirin.BSP", "two");
  EXPECT_EQ(files_.ListFiles("C:\\Data"), std::vector<std::string>{"Aspirin.bsp"});
  EXPECT_EQ(files_.ReadBytes("C:/Data/Aspirin.bsp"), "two");
  files_.DeleteFile("C:\\DATA\\aspirin.bsp");
  EXPECT_FALSE(files_.FileExists("C:\\Data\\Aspirin.bsp"));
}

TEST_F(DiskFileSystemTest, PathsBelowDriveCComeBackAsTheyWentAndNoneIsNothing) {
  EXPECT_EQ(paths_.ToWindows(folder_.Path() / "drive_c" / "Data" / "x.clm"), "C:\\Data\\x.clm");
  EXPECT_EQ(paths_.ToNative("C:\\Data\\x.clm"), paths_.ToNative("\\Data\\x.clm"));
  EXPECT_EQ(ErrorOf([&] { paths_.ToNative(""); }), 52);
  EXPECT_FALSE(files_.FileExists("Q:\\x"));
}

TEST_F(DiskFileSystemTest, FailuresCarryTheNumbersThatTheProgramKnows) {
  files_.WriteBytes("C:\\Data\\a", "a");
  files_.WriteBytes("C:\\Data\\b", "b");
  EXPECT_EQ(ErrorOf([&] { files_.ReadBytes("C:\\Data\\none"); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_.DeleteFile("C:\\Data\\none"); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_.WriteBytes("C:\\None\\x", "x"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.OpenForAppending("C:\\None\\x"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.CreateFolder("C:\\Data"); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.ReadBytes("C:\\Data"); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_.MoveFile("C:\\Data\\a", "C:\\Data\\B"); }), 58);
  EXPECT_EQ(files_.ReadBytes("C:\\Data\\b"), "b");
}

TEST_F(DiskFileSystemTest, ALineIsNeverAppendedToATornOne) {
  files_.WriteBytes("C:\\Data\\log", "whole\r\nto");
  auto log = files_.OpenForAppending("C:\\Data\\log");
  log->Append("next\r\n");
  log->Append("last\r\n");
  EXPECT_EQ(files_.ReadBytes("C:\\Data\\log"), "whole\r\nto\r\nnext\r\nlast\r\n");
  EXPECT_FALSE(files_.FileExists("C:\\Data\\" + std::string(400, 'x'))) << "a name that no file can have";
}

TEST_F(DiskFileSystemTest, AFileThatIsTakenIsNobodyElsesUntilItIsLetGo) {
  auto taken = files_.TakeFile("C:\\Data\\lock");
  ASSERT_NE(taken, nullptr);
  EXPECT_EQ(files_.TakeFile("C:\\DATA\\Lock"), nullptr);
  taken.reset();
  EXPECT_NE(files_.TakeFile("C:\\Data\\lock"), nullptr);
  EXPECT_EQ(ErrorOf([&] { files_.TakeFile("C:\\None\\lock"); }), 76);
}

TEST_F(DiskFileSystemTest, WrittenFilesCarryTheClocksTime) {
  const DateTime moment{.year = 2026, .month = 11, .day = 21, .hour = 10, .minute = 59, .second = 0};
  clock_.Set(moment);
  files_.WriteBytes("C:\\Data\\back.bsp", "x");
  EXPECT_EQ(files_.LastModified("C:\\Data\\back.bsp"), moment);
}

TEST_F(DiskFileSystemTest, AppendingGoesOnWhereTheFileEnds) {
  files_.OpenForAppending("C:\\Data\\log.txt")->Append("one\r\n");
  files_.OpenForAppending("C:\\Data\\LOG.TXT")->Append("two\r\n");
  EXPECT_EQ(files_.ReadBytes("C:\\Data\\log.txt"), "one\r\ntwo\r\n");
}

TEST_F(DiskFileSystemTest, OnlyWhatAWriterThatIsGoneLeftIsCleared) {
  std::optional<NativeFile> writer =
      NativeFile::CreateBeside(paths_.ToNative("C:\\Data\\Meth.tbl"), "C:\\Data\\Meth.tbl");
  const std::vector<std::string> others{"Meth.tbl", "a.b c.unfinished", "a.unfinished", "a.x7Gh2K",
                                        "b.12-3.unfinished.bsp"};
  for (const std::string& name : others) files_.WriteBytes("C:\\Data\\" + name, "x");
  for (const char* name : {"Meth.tbl.x7Gh2K.unfinished", "back A.bsp.12-3.unfinished"}) {
    files_.WriteBytes("C:\\Data\\" + std::string(name), "x");
  }
  files_.ClearUnfinished("C:\\Data");
  EXPECT_EQ(files_.ListFiles("C:\\Data").size(), others.size() + 1) << "and what is being written";
  writer.reset();
  files_.ClearUnfinished("C:\\Data");
  EXPECT_THAT(files_.ListFiles("C:\\Data"), ::testing::UnorderedElementsAreArray(others));
  files_.ClearUnfinished("C:\\None");
}

TEST_F(DiskFileSystemTest, TheRegistryGivesOnlyDwordsOfTheKeyAskedFor) {
  std::ofstream(folder_.Path() / "registry.reg")
      << "REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\Software\\Other]\r\n\"Obe Type\"=dword:00000007\r\n"
         "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Tarnex\\Spectrometer]\r\n\"Name\"=\"6\"\r\n\"Obe "
         "Type\"=dword:00000006\r\n";
  const RegistryFile registry(folder_.Path() / "registry.reg");
  EXPECT_EQ(registry.ReadDword("Software\\Tarnex\\Spectrometer", "Obe Type"), 6U);
  EXPECT_EQ(registry.ReadDword("Software\\Tarnex\\Spectrometer", "Name"), std::nullopt)
      << "a string is no number";
  EXPECT_EQ(registry.ReadDword("Software\\Tarnex", "Obe Type"), std::nullopt);
  EXPECT_EQ(RegistryFile(folder_.Path() / "none").ReadDword("x", "y"), std::nullopt);
}

TEST_F(DiskFileSystemTest, TheProgramFolderIsWhereTheProgramLiesUnlessAFileBesideItNamesAnother) {
  const fs::path programs = folder_.Path() / "drive_c" / "Programs";
  fs::create_directories(programs);
  const SystemShellFolders folders(paths_, programs);
  EXPECT_EQ(folders.ProgramFolder(), "C:\\Programs");
  std::ofstream(programs / "program_folder") << "C:\\ProgramData\\Kestrova\\Veritane\n";
  EXPECT_EQ(folders.ProgramFolder(), "C:\\ProgramData\\Kestrova\\Veritane");
  std::ofstream(programs / "program_folder", std::ios::trunc);
  EXPECT_EQ(folders.ProgramFolder(), "C:\\Programs") << "an empty file names none";
}

TEST_F(DiskFileSystemTest, MomentsBeyondTheClocksRangeAreAnOverflow) {
  for (const int year : {1500, 1676, 2263, 2300, 9999}) {
    EXPECT_EQ(ErrorOf([&] { clock_.Set({.year = year, .month = 1, .day = 1}); }), 6) << year;
  }
  for (const std::int64_t seconds :
       {std::int64_t{9'223'372'036}, std::int64_t{-9'223'372'037}, std::numeric_limits<std::int64_t>::max(),
        std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_EQ(ErrorOf([&] { MomentAt(seconds); }), 6) << seconds;
  }
}

TEST_F(DiskFileSystemTest, TheClockTellsAllMomentsInItsRangeAlsoTheSecondBeforeItsEpoch) {
  for (const DateTime& moment :
       {DateTime{.year = 1678, .month = 1, .day = 1},
        DateTime{.year = 1969, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59},
        DateTime{.year = 2261, .month = 12, .day = 31}}) {
    clock_.Set(moment);
    EXPECT_EQ(clock_.LocalNow(), moment) << moment.year;
  }
  EXPECT_EQ(MomentAt(-1).time_since_epoch(), std::chrono::seconds(-1));
}

TEST_F(DiskFileSystemTest, DatesFollowTheLocaleThatWasAskedFor) {
  const DateTime moment{.year = 2026, .month = 11, .day = 21, .hour = 10, .minute = 59, .second = 7};
  const SystemRegionalFormat plain("C");
  EXPECT_EQ(plain.ShortDate(moment), "11/21/26");
  EXPECT_EQ(plain.ShortTime(moment), "10:59:07");
  EXPECT_EQ(plain.GeneralDate(moment), "11/21/26 10:59:07");
  EXPECT_EQ(plain.LongDate(moment), "Saturday November 21 2026");
  const SystemRegionalFormat german("de_DE.UTF-8");
  EXPECT_EQ(german.ShortDate(moment), "21.11.2026");
  EXPECT_EQ(german.LongDate(moment), "Samstag November 21 2026");
  EXPECT_EQ(ErrorOf([] { SystemRegionalFormat("xx_YY"); }), 5);
}

}  // namespace
}  // namespace veritane::platform
