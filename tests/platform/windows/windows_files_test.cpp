// What files on Windows are asked for beyond the rules that hold everywhere: death in mid-rewrite, files that
// others hold open, paths of the system's own.
#include "platform/system/native_file.h"
#include "platform/system/native_path.h"
#include "platform/system/system_machine.h"
#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
// Behind the program's own headers, whose names its macros would change.
#include <windows.h>

namespace veritane::platform {
namespace {

namespace fs = std::filesystem;
using tests::ErrorOf;

constexpr const char* kRootVariable = "VERITANE_REWRITER_ROOT";
constexpr const char* kTable = "C:\\Data\\Meth.tbl";

std::string OldTable() {
  return " 20000 \r\n" + std::string(400000, 'o');
}
std::string NewTable() {
  return " 20001 \r\n" + std::string(400020, 'n');
}

class WindowsFilesTest : public ::testing::Test {
protected:
  WindowsFilesTest() { fs::create_directories(folder_.Path() / "drive_c" / "Data"); }

  HANDLE OpenElsewhere(const char* path, DWORD sharing) {
    return ::CreateFileW(machine_.paths.ToNative(path).c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                         0, nullptr);
  }

  tests::TemporaryFolder folder_;
  SystemMachine machine_{folder_.Path(), "C"};
};

// Not a test: the process that the one below starts and kills.
TEST(RewriterProcess, DISABLED_RewritesForEver) {
  const char* const root = std::getenv(kRootVariable);
  ASSERT_NE(root, nullptr);
  SystemMachine machine(root, "C");
  for (;;) {
    machine.files.WriteBytes(kTable, NewTable());
    machine.files.WriteBytes(kTable, OldTable());
  }
}

PROCESS_INFORMATION StartRewriter() {
  std::wstring program(32768, L'\0');
  program.resize(::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
  std::wstring command =
      L"\"" + program +
      L"\" --gtest_also_run_disabled_tests --gtest_brief=1 --gtest_filter=RewriterProcess.*";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  EXPECT_TRUE(::CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &startup, &process));
  return process;
}

TEST_F(WindowsFilesTest, AProgramThatDiesDuringARewriteLeavesTheOldTableOrTheNewOne) {
  ::SetEnvironmentVariableA(kRootVariable, Utf8Of(folder_.Path()).c_str());
  machine_.files.WriteBytes(kTable, OldTable());
  int new_ones = 0;
  for (int trial = 0; trial < 12; ++trial) {
    const PROCESS_INFORMATION writer = StartRewriter();
    // Each trial ends at another moment of the rewrites, once they have begun.
    const auto first = LastChange(machine_.paths.ToNative(kTable), kTable);
    for (int waited = 0; waited < 1000 && LastChange(machine_.paths.ToNative(kTable), kTable) == first;
         ++waited) {
      ::Sleep(5);
    }
    ::Sleep(static_cast<DWORD>(trial * 3));
    ::TerminateProcess(writer.hProcess, 1);
    ::WaitForSingleObject(writer.hProcess, INFINITE);
    ::CloseHandle(writer.hProcess);
    ::CloseHandle(writer.hThread);
    const std::string found = machine_.files.ReadBytes(kTable);
    ASSERT_TRUE(found == OldTable() || found == NewTable())
        << "trial " << trial << ": " << found.size() << " bytes";
    new_ones += found == NewTable() ? 1 : 0;
  }
  EXPECT_GT(new_ones, 0) << "no rewrite was ever under way";
  machine_.files.WriteBytes(kTable, "whole");
  EXPECT_EQ(machine_.files.ReadBytes(kTable), "whole")
      << "what a dead writer left behind does not stand in the way";
}

TEST_F(WindowsFilesTest, AFileThatAnotherProgramKeepsStaysAsItIsAndIsError70) {
  machine_.files.WriteBytes(kTable, "old");
  const HANDLE other = OpenElsewhere(kTable, FILE_SHARE_READ);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  EXPECT_EQ(ErrorOf([&] { machine_.files.WriteBytes(kTable, "new"); }), 70);
  ::CloseHandle(other);
  EXPECT_EQ(machine_.files.ReadBytes(kTable), "old");
  EXPECT_EQ(machine_.files.ListFiles("C:\\Data").size(), 1U) << "no litter";
}

TEST_F(WindowsFilesTest, AReadOnlyFileIsNotReplaced) {
  machine_.files.WriteBytes(kTable, "old");
  const fs::path native = machine_.paths.ToNative(kTable);
  ASSERT_TRUE(::SetFileAttributesW(native.c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_EQ(ErrorOf([&] { machine_.files.WriteBytes(kTable, "new"); }), 70);
  EXPECT_EQ(machine_.files.ReadBytes(kTable), "old");
  ::SetFileAttributesW(native.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFilesTest, TwoLogsOnOneFileLoseNoLine) {
  const auto one = machine_.files.OpenForAppending("C:\\Data\\log.txt");
  const auto other = machine_.files.OpenForAppending("C:\\Data\\log.txt");
  one->Append("1\r\n");
  other->Append("2\r\n");
  one->Append("3\r\n");
  EXPECT_EQ(machine_.files.ReadBytes("C:\\Data\\log.txt"), "1\r\n2\r\n3\r\n");
}

TEST_F(WindowsFilesTest, NamesOutsideOfAsciiAreKept) {
  const std::string name =
      "Pr\xC3\xBC"
      "fung \xCE\xB1 \xE2\x82\xAC.bsp";
  machine_.files.WriteBytes("C:\\Data\\" + name, "x");
  EXPECT_EQ(machine_.files.ListFiles("C:\\Data"), std::vector<std::string>{name});
  EXPECT_EQ(machine_.paths.ToWindows(machine_.paths.ToNative("C:\\Data\\" + name)), "C:\\Data\\" + name);
}

TEST_F(WindowsFilesTest, TheSystemsOwnDriveCIsNotTheDataRoots) {
  const fs::path outside = folder_.Path() / "outside.txt";
  const std::string path = machine_.paths.ToWindows(outside);
  EXPECT_EQ(machine_.paths.ToNative(path), outside);
  machine_.files.WriteBytes(path, "outside");
  EXPECT_TRUE(fs::exists(outside));
  EXPECT_FALSE(machine_.files.FileExists("C:\\outside.txt"));
}

TEST_F(WindowsFilesTest, WithoutADataRootPathsAreTheSystemsOwn) {
  SystemMachine own("", "C");
  const std::string folder = Utf8Of(folder_.Path());
  own.files.WriteBytes(folder + "\\own.txt", "here");
  EXPECT_EQ(own.paths.ToWindows(folder_.Path() / "own.txt"), folder + "\\own.txt");
  EXPECT_TRUE(fs::exists(folder_.Path() / "own.txt"));
  EXPECT_EQ(own.files.ReadBytes(folder + "/OWN.TXT"), "here");
  const std::string data = own.folders.CommonApplicationData(true);
  EXPECT_TRUE(own.files.FolderExists(data)) << data;
  EXPECT_NE(data.back(), '\\');
  EXPECT_EQ(own.folders.CommonApplicationData(false), data);
}

TEST_F(WindowsFilesTest, AFileThatIsOpenForAppendingIsNeitherDeletedNorRenamed) {
  auto log = machine_.files.OpenForAppending("C:\\Data\\log.txt");
  log->Append("one\r\n");
  const fs::path native = machine_.paths.ToNative("C:\\Data\\log.txt");
  EXPECT_FALSE(::DeleteFileW(native.c_str()));
  EXPECT_FALSE(::MoveFileW(native.c_str(), (native.parent_path() / "kept.txt").c_str()));
  log->Append("two\r\n");
  EXPECT_EQ(machine_.files.ReadBytes("C:\\Data\\log.txt"), "one\r\ntwo\r\n");
}

}  // namespace
}  // namespace veritane::platform
