// Looking for the newest spectrum in folders that come and go.
#include "apps/simulator_panel/newest_spectrum.h"

#include "platform/run_time_error.h"
#include "platform/system/system_machine.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace veritane::simulator_panel {
namespace {

TEST(NewestSpectrum, ADriveThatIsGoneForAWhileHasNoFolders) {
  const tests::TemporaryFolder folder;
  std::filesystem::create_directories(folder.Path() / "drive_c" / "Samples");
  platform::SystemMachine machine(folder.Path(), "C");
  machine.files.WriteBytes("C:\\Samples\\lot.bsp",
                           "##TITLE=lot\n##JCAMP-DX=5.01\n##DATA TYPE=INFRARED SPECTRUM\n##XUNITS=1/CM\n"
                           "##YUNITS=ABSORBANCE\n##FIRSTX=1000\n##LASTX=1002\n##NPOINTS=3\n##XFACTOR=1\n"
                           "##YFACTOR=1\n##XYDATA=(X++(Y..Y))\n1000 1 5 2\n##END=\n");
  bool is_gone = false;
  NewestSpectrum newest(machine.files, machine.clock, [&]() -> std::vector<std::string> {
    if (is_gone) throw platform::RunTimeError(platform::ErrorNumber::kDiskNotReady);
    return {"C:\\Samples"};
  });
  newest.Look();
  ASSERT_TRUE(newest.Found());
  EXPECT_EQ(newest.Found()->spectrum.name, "lot");

  is_gone = true;
  EXPECT_TRUE(newest.Look());
  EXPECT_FALSE(newest.Found());

  is_gone = false;
  EXPECT_TRUE(newest.Look());
  EXPECT_TRUE(newest.Found());
}

}  // namespace
}  // namespace veritane::simulator_panel
