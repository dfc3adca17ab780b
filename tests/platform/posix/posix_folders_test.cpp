// Folders and files of a POSIX system that are not as they should be, and two programs at work in one folder.
#include "platform/system/system_machine.h"
#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

namespace veritane::platform {
namespace {

namespace fs = std::filesystem;
using tests::ErrorOf;

class PosixFoldersTest : public ::testing::Test {
protected:
  PosixFoldersTest() { fs::create_directories(data_); }

  tests::TemporaryFolder folder_;
  const fs::path data_ = folder_.Path() / "drive_c" / "Data";
  PathMap paths_{folder_.Path()};
  SystemClock clock_;
  DiskFileSystem files_{paths_, clock_};
};

TEST_F(PosixFoldersTest, NamesThatLeadNowhereAreNotListedAndHideNoOthers) {
  files_.WriteBytes("C:\\Data\\one", "1");
  fs::create_symlink("loop", data_ / "loop");
  fs::create_symlink("nothing", data_ / "dangling");
  fs::create_directory(data_ / "folder");
  files_.WriteBytes("C:\\Data\\two", "2");
  EXPECT_EQ(files_.ListFiles("C:\\Data"), (std::vector<std::string>{"one", "two"}));
}

TEST_F(PosixFoldersTest, WhyAFolderCannotBeListedShowsInTheError) {
  files_.WriteBytes("C:\\Data\\file", "");
  fs::create_symlink("loop", data_ / "loop");
  EXPECT_EQ(ErrorOf([&] { files_.ListFiles("C:\\None"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.ListFiles("C:\\Data\\file"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_.ListFiles("C:\\Data\\loop"); }), 57);
}

TEST_F(PosixFoldersTest, ATimeThatTheClockCannotTellIsAnOverflow) {
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

TEST_F(PosixFoldersTest, ClearingUpTakesNothingFromAProgramThatWrites) {
  const pid_t clearer = ::fork();
  ASSERT_GE(clearer, 0);
  if (clearer == 0) {
    for (;;) files_.ClearUnfinished("C:\\Data");
  }
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
