// The print queue's commands, played by small scripts.
#include "platform/posix/printing/command_print_queue.h"

#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_data.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace veritane::platform {
namespace {

using ::testing::HasSubstr;

class CommandPrintQueueTest : public ::testing::Test {
protected:
  std::string Script(const std::string& name, const std::string& body) {
    const std::filesystem::path path = folder_.Path() / name;
    std::ofstream(path) << "#!/bin/sh\n" << body << "\n";
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path.string();
  }
  bool HasPrinter(const std::string& lpstat_body) {
    return CommandPrintQueue("lp", Script("lpstat", lpstat_body)).HasPrinter();
  }
  std::string Content(const std::string& name) { return tests::BytesOf(folder_.Path() / name); }

  tests::TemporaryFolder folder_;
};

TEST_F(CommandPrintQueueTest, ADefaultPrinterIsWhatTheSystemNames) {
  EXPECT_TRUE(HasPrinter("[ \"$1\" = -d ] && echo 'system default destination: Office'"));
  EXPECT_TRUE(HasPrinter("echo \"$LC_ALL\" | grep -q '^C' && echo 'system default destination: Office'"));
  EXPECT_FALSE(HasPrinter("echo 'no system default destination'"));
  EXPECT_FALSE(HasPrinter("echo 'lpstat: Bad file descriptor' >&2; exit 1"));
  EXPECT_FALSE(HasPrinter("echo 'system default destination: Office'; exit 1"));
  EXPECT_FALSE(CommandPrintQueue("lp", (folder_.Path() / "missing").string()).HasPrinter());
}

TEST_F(CommandPrintQueueTest, LpGetsEveryByteAndTheTitle) {
  const std::string output = (folder_.Path() / "printed").string();
  CommandPrintQueue queue(Script("lp", "echo \"$@\" > '" + output + ".words'; cat > '" + output + "'"));
  // More than a pipe holds, and bytes of every kind.
  std::string pdf;
  for (int i = 0; i < 300000; ++i) pdf += static_cast<char>(i);
  queue.Submit(pdf, "Spectrum; rm \"x\"");
  EXPECT_EQ(Content("printed"), pdf);
  EXPECT_EQ(Content("printed.words"), "-t Spectrum; rm \"x\" -o fit-to-page -\n");
}

TEST_F(CommandPrintQueueTest, ARefusalIsAnErrorInThePrintersWords) {
  const auto refusal = [](const std::string& lp) {
    // Nobody reads the input.
    return tests::ErrorTextOf([&] { CommandPrintQueue(lp).Submit(std::string(300000, 'x'), "T"); }, 57);
  };
  EXPECT_THAT(refusal(Script("lp", "echo 'lp: The printer is on fire' >&2; exit 1")),
              HasSubstr("lp: The printer is on fire"));
  EXPECT_NE(refusal(Script("lp", "kill -9 $$")), "");
  EXPECT_THAT(refusal((folder_.Path() / "missing").string()), HasSubstr("cannot be run"));
}

}  // namespace
}  // namespace veritane::platform
