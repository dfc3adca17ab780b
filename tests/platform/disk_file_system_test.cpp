// Files on disk by Windows path: case, atomic replacement, errors by their numbers.
#include "platform/posix/disk_file_system.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>

#include "platform/posix/posix_machine.h"
#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"

namespace veritane::platform {
namespace {

namespace fs = std::filesystem;
using tests::ErrorOf;

class DiskFileSystemTest : public ::testing::Test {
protected:
  DiskFileSystemTest() { fs::create_directories(folder_.Path() / "drive_c" / "Data"); }

  tests::TemporaryFolder folder_;
  PathMap paths_{folder_.Path()};
  PosixClock clock_;
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

TEST_F(DiskFileSystemTest, NativePathsBelowDriveCAndElsewhereComeBackAsTheyWent) {
  EXPECT_EQ(paths_.ToWindows(folder_.Path() / "drive_c" / "Data" / "x.clm"), "C:\\Data\\x.clm");
  EXPECT_EQ(paths_.ToWindows("/usr/share"), "Z:\\usr\\share");
  EXPECT_EQ(paths_.ToNative("Z:\\usr\\share"), fs::path("/usr/share"));
  EXPECT_EQ(ErrorOf([&] { paths_.ToNative("Q:\\x"); }), 76);
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

TEST_F(DiskFileSystemTest, AFullDiskLeavesTheOldFileAndNoLitter) {
  files_.WriteBytes("C:\\Data\\table", "old");
  // A limit on the file size stands in for the full disk: the system refuses the write half way.
  const auto write_beyond_the_limit = [&] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{.rlim_cur = 4096, .rlim_max = RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const int error = ErrorOf([&] { files_.WriteBytes("C:\\Data\\table", std::string(100000, 'x')); });
    const bool old_is_there = files_.ReadBytes("C:\\Data\\table") == "old";
    const bool no_litter = files_.ListFiles("C:\\Data").size() == 1;
    auto log = files_.OpenForAppending("C:\\Data\\log");
    log->Append("first line\r\n");
    const int append_error = ErrorOf([&] { log->Append(std::string(100000, 'y')); });
    const bool no_half_line = files_.ReadBytes("C:\\Data\\log") == "first line\r\n";
    std::_Exit(error != 0 && append_error != 0 && old_is_there && no_litter && no_half_line ? 0 : 1);
  };
  EXPECT_EXIT(write_beyond_the_limit(), ::testing::ExitedWithCode(0), "");
}

TEST_F(DiskFileSystemTest, AProgramThatDiesDuringARewriteLeavesTheOldTableOrTheNewOne) {
  const std::string old_table = " 20000 \r\n" + std::string(400000, 'o');
  const std::string new_table = " 20001 \r\n" + std::string(400020, 'n');
  const std::string path = "C:\\Data\\Meth.tbl";
  files_.WriteBytes(path, old_table);
  int new_ones = 0;
  for (int trial = 0; trial < 150; ++trial) {
    const pid_t writer = ::fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
      for (;;) {
        files_.WriteBytes(path, new_table);
        files_.WriteBytes(path, old_table);
      }
    }
    // Each trial ends at another moment of the rewrites.
    ::usleep(static_cast<useconds_t>(500 + trial * 37));
    ::kill(writer, SIGKILL);
    ::waitpid(writer, nullptr, 0);
    const std::string found = files_.ReadBytes(path);
    ASSERT_TRUE(found == old_table || found == new_table)
        << "trial " << trial << ": " << found.size() << " bytes";
    new_ones += found == new_table ? 1 : 0;
  }
  EXPECT_GT(new_ones, 0) << "no rewrite was ever under way";
  files_.WriteBytes(path, "whole");
  EXPECT_EQ(files_.ReadBytes(path), "whole") << "what a dead writer left behind does not stand in the way";
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

TEST_F(DiskFileSystemTest, DatesFollowTheLocaleThatWasAskedFor) {
  const DateTime moment{.year = 2026, .month = 11, .day = 21, .hour = 10, .minute = 59, .second = 7};
  const PosixRegionalFormat plain("C");
  EXPECT_EQ(plain.ShortDate(moment), "11/21/26");
  EXPECT_EQ(plain.ShortTime(moment), "10:59:07");
  EXPECT_EQ(plain.GeneralDate(moment), "11/21/26 10:59:07");
  EXPECT_EQ(plain.LongDate(moment), "Saturday November 21 2026");
  const PosixRegionalFormat german("de_DE.UTF-8");
  EXPECT_EQ(german.ShortDate(moment), "21.11.2026");
  EXPECT_EQ(german.LongDate(moment), "Samstag November 21 2026");
  EXPECT_EQ(ErrorOf([] { PosixRegionalFormat("xx_YY"); }), 5);
}

}  // namespace
}  // namespace veritane::platform
