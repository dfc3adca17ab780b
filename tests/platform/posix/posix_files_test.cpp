// What a POSIX system's files are asked for beyond the rules that hold everywhere: mapped paths, a full disk,
// death, folders and files that are not as they should be, and two programs at work in one folder.
#include "platform/system/system_machine.h"
#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>

namespace veritane::platform {
namespace {

namespace fs = std::filesystem;
using tests::ErrorOf;

class PosixFilesTest : public ::testing::Test {
protected:
  PosixFilesTest() { fs::create_directories(data_); }

  tests::TemporaryFolder folder_;
  const fs::path data_ = folder_.Path() / "drive_c" / "Data";
  PathMap paths_{folder_.Path()};
  SystemClock clock_;
  DiskFileSystem files_{paths_, clock_};
};

TEST_F(PosixFilesTest, WhatCannotBeLookedAtIsNotTakenForMissing) {
  fs::create_symlink("loop", data_ / "loop");
  EXPECT_EQ(ErrorOf([&] { files_.FileExists("C:\\Data\\loop"); }), 57);
  EXPECT_EQ(ErrorOf([&] { files_.FolderExists("C:\\Data\\loop"); }), 57);
  EXPECT_EQ(ErrorOf([&] { files_.MoveFile("C:\\Data\\loop", "C:\\Data\\other"); }), 57);
}

TEST_F(PosixFilesTest, WhatIsAppendedToAFileThatWasDeletedOrRenamedLandsInANewOne) {
  auto log = files_.OpenForAppending("C:\\Data\\log.txt");
  log->Append("one\r\n");
  files_.MoveFile("C:\\Data\\log.txt", "C:\\Data\\kept.txt");
  log->Append("two\r\n");
  files_.DeleteFile("C:\\Data\\log.txt");
  log->Append("three\r\n");
  log->Append("four\r\n");
  EXPECT_EQ(files_.ReadBytes("C:\\Data\\kept.txt"), "one\r\n");
  EXPECT_EQ(files_.ReadBytes("C:\\Data\\log.txt"), "three\r\nfour\r\n");
}

TEST_F(PosixFilesTest, PathsOutsideOfDriveCAreBelowDriveZ) {
  EXPECT_EQ(paths_.ToWindows("/usr/share"), "Z:\\usr\\share");
  EXPECT_EQ(paths_.ToNative("Z:\\usr\\share"), fs::path("/usr/share"));
  EXPECT_EQ(ErrorOf([&] { paths_.ToNative("Q:\\x"); }), 76);
}

TEST_F(PosixFilesTest, AFullDiskLeavesTheOldFileAndNoLitter) {
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

TEST_F(PosixFilesTest, AProgramThatDiesDuringARewriteLeavesTheOldTableOrTheNewOne) {
  const std::string old_table = " 20000 \r\n" + std::string(400000, 'o');
  const std::string new_table = " 20001 \r\n" + std::string(400020, 'n');
  const std::string path = "C:\\Data\\Meth.tbl";
  files_.WriteBytes(path, old_table);
  int new_ones = 0;
  for (int trial = 0; trial < 150; ++trial) {
    const auto before = fs::last_write_time(paths_.ToNative(path));
    const pid_t writer = ::fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
      for (;;) {
        files_.WriteBytes(path, new_table);
        files_.WriteBytes(path, old_table);
      }
    }
    // Each trial ends at another moment of the rewrites, once they have begun.
    for (int waited = 0; waited < 50000 && fs::last_write_time(paths_.ToNative(path)) == before; ++waited) {
      ::usleep(100);
    }
    ::usleep(static_cast<useconds_t>(trial * 37));
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

TEST_F(PosixFilesTest, NamesThatLeadNowhereAreNotListedAndHideNoOthers) {
  files_.WriteBytes("C:\\Data\\one", "1");
  fs::create_symlink("loop", data_ / "loop");
  fs::create_symlink("nothing", data_ / "dangling");
  fs::create_directory(data_ / "folder");
  files_.WriteBytes("C:\\Data\\two", "2");
  EXPECT_EQ(files_.ListFiles("C:\\Data"), (std::vector<std::string>{"one", "two"}));
}

TEST_F(PosixFilesTest, WhyAFolderCannotBeListedShowsInTheError) {
  files_.WriteBytes("C:\\Data\\file", "");
  fs::create_symlink("loop", data_ / "loop");
  EXPECT_EQ(ErrorOf([&] { files_.ListFiles("C:\\None"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.ListFiles("C:\\Data\\file"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.ListFiles("C:\\Data\\loop"); }), 57);
}

TEST_F(PosixFilesTest, ATimeThatTheClockCannotTellIsAnOverflow) {
  files_.WriteBytes("C:\\Data\\back.bsp", "x");
  const timespec late{.tv_sec = 10'413'792'000, .tv_nsec = 0};  // the year 2300
  const timespec times[2] = {late, late};
  const fs::path native = data_ / "back.bsp";
  ASSERT_EQ(::utimensat(AT_FDCWD, native.c_str(), times, 0), 0);
  struct stat status {};
  ASSERT_EQ(::stat(native.c_str(), &status), 0);
  if (status.st_mtim.tv_sec != late.tv_sec) GTEST_SKIP() << "this file system knows no such time";
  EXPECT_EQ(ErrorOf([&] { files_.LastModified("C:\\Data\\back.bsp"); }), 6);
}

TEST_F(PosixFilesTest, ClearingUpTakesNothingFromAProgramThatWrites) {
  const fs::path stale = data_ / "Meth.tbl.x7Gh2K.unfinished";
  std::ofstream(stale) << "x";
  const pid_t clearer = ::fork();
  ASSERT_GE(clearer, 0);
  if (clearer == 0) {
    for (;;) files_.ClearUnfinished("C:\\Data");
  }
  // It is at work once it has taken what a dead writer left.
  for (int waited = 0; waited < 50000 && fs::exists(stale); ++waited) ::usleep(100);
  EXPECT_FALSE(fs::exists(stale));
  int failures = 0;
  for (int i = 0; i < 200; ++i)
    failures += ErrorOf([&] { files_.WriteBytes("C:\\Data\\table", "x"); }) == 0 ? 0 : 1;
  ::kill(clearer, SIGKILL);
  ::waitpid(clearer, nullptr, 0);
  EXPECT_EQ(failures, 0);
  EXPECT_EQ(files_.ListFiles("C:\\Data"), std::vector<std::string>{"table"});
}

}  // namespace
}  // namespace veritane::platform
