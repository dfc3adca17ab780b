// Setting the mode in a data folder that is there.
#include "apps/veritane_setup/data_layout.h"

#include "platform/system/system_machine.h"
#include "shell/state/data_folders.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace veritane::setup {
namespace {

class DemonstrationModeTest : public ::testing::Test {
protected:
  DemonstrationModeTest() {
    std::filesystem::create_directories(folder_.Path() / "drive_c" / "ProgramData" / "Kestrova" / "Veritane");
  }

  std::string Settings() const { return machine_.files.ReadBytes(data_folder_ + "settings.ini"); }

  tests::TemporaryFolder folder_;
  platform::SystemMachine machine_{folder_.Path(), "C"};
  const std::string data_folder_ = state::DataFolderBelow(machine_.folders.CommonApplicationData(true));
};

TEST_F(DemonstrationModeTest, OnlyTheFirstLineChanges) {
  SetDemonstrationMode(machine_.Facilities(), true);
  const std::string made = Settings();
  EXPECT_TRUE(made.starts_with("1\r\n")) << made;
  SetDemonstrationMode(machine_.Facilities(), false);
  EXPECT_EQ(Settings(), "0" + made.substr(1));
}

TEST_F(DemonstrationModeTest, BesideTheRunningProgramNothingChanges) {
  SetDemonstrationMode(machine_.Facilities(), true);
  const std::string before = Settings();
  auto program = machine_.files.TakeFile(data_folder_ + state::kDataFolderLock);
  ASSERT_NE(program, nullptr);
  EXPECT_THROW(SetDemonstrationMode(machine_.Facilities(), false), ProgramIsRunning);
  EXPECT_EQ(Settings(), before);
  EXPECT_NO_THROW(SetDemonstrationMode(machine_.Facilities(), true)) << "it is so already";
  program.reset();
  SetDemonstrationMode(machine_.Facilities(), false);
  EXPECT_NE(Settings(), before);
}

}  // namespace
}  // namespace veritane::setup
