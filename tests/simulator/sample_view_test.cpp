// The sample that a print shows.
#include "platform/system/system_clock.h"
#include "simulator/simulated_spectrometer.h"
#include "tests/simulator/queued_device.h"
#include "tests/support/automation_connection.h"
#include "tests/support/errors.h"
#include "tests/support/memory_file_system.h"

#include <gmock/gmock.h>

namespace veritane::simulator {
namespace {

using tests::ErrorOf;

TEST(SampleViews, ADocumentWithoutSpectraLeavesTheSampleInViewAndIsNone) {
  tests::MemoryFileSystem files;
  files.WriteBytes("C:\\m.clm", "scans 4");
  files.WriteBytes("C:\\t.bpt", "Template = 1\nText = at 10 10 : {SpectName}");
  platform::SystemClock clock;
  clock.Set({2026, 11, 21, 10, 59, 7});
  QueuedDevice device;
  SimulatedSpectrometer simulated(files, clock, device);
  std::vector<std::string> printed;
  simulated.PrintInto({.folder = "C:\\Prints",
                       .makePdf = [](auto, const auto&, const auto&) { return "a page"; },
                       .printed = [&](const std::string& path) { printed.push_back(path); }});
  tests::ConnectionUnderTest connection(simulated);
  acquisition::SpectrometerApp& app = connection.App();
  const auto method = app.LoadCollectMethod("C:\\m.clm");
  device.Queue({1, 2, 3}, "Lot 7");
  device.Queue({1, 2, 3}, "Standard");

  const auto sample = app.NewDocument("C:\\sample.bsp");
  sample->CollectInto(*method);
  sample->PrepareSampleView();
  const auto standard = app.NewDocument("C:\\standard.bsp");
  EXPECT_EQ(ErrorOf([&] { standard->PrepareSampleView(); }), 9);
  standard->CollectInto(*method);
  app.BeginPrint();
  standard->OpenPrintTemplate("C:\\t.bpt")->PrintDoc();
  EXPECT_THAT(printed, ::testing::ElementsAre("C:\\Prints\\Lot 7 2026-11-21 10-59-07.pdf"));
}

}  // namespace
}  // namespace veritane::simulator
