// What a POSIX system's files are asked for beyond the rules that hold everywhere: mapped paths, a full disk,
// death.
#include "platform/system/system_machine.h"
#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace veritane::platform {
namespace {

namespace fs = std::filesystem;
using tests::ErrorOf;

class PosixFilesTest : public ::testing::Test {
protected:
  PosixFilesTest() { fs::create_directories(folder_.Path() / "drive_c" / "Data"); }

  tests::TemporaryFolder folder_;
  PathMap paths_{folder_.Path()};
  SystemClock clock_;
  DiskFileSystem files_{paths_, clock_};
};

TEST_F(PosixFilesTest, WhatCannotBeLookedAtIsNotTakenForMissing) {
  fs::create_symlink("loop", folder_.Path() / "drive_c" / "Data" / "loop");
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

}  // namespace
}  // namespace veritane::platform
