// The whole program in its real window, on a data folder of its own, played by a real mouse and real keys.
#pragma once

#include "apps/simulated_bench.h"
#include "apps/veritane_setup/data_layout.h"
#include "platform/pdf/pdf_printer.h"
#include "shell/frm_veritane.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_folders.h"
#include "tests/window/window_test.h"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace veritane::platform {

// A picture of the whole screen, kept where the tests were built. The toolkit's own copy of the screen may be
// stale, so a program outside takes it.
inline void KeepScreenshot(const std::string& name) {
  std::filesystem::create_directories(VERITANE_SCREENSHOTS);
  const std::string file = std::string(VERITANE_SCREENSHOTS) + "/" + name;
  EXPECT_EQ(std::system(("import -window root '" + file + "'").c_str()), 0) << file;
}

class ProgramWindowTest : public WindowTest {
protected:
  explicit ProgramWindowTest(bool is_demonstration) {
    std::filesystem::create_directories(folder_.Path() / "drive_c" / "Program");
    setup::LayOutData(Facilities());
    setup::SetDemonstrationMode(Facilities(), is_demonstration);
    bench_.SampleCompartment().Write({.sample = "empty", .duration = 0, .seed = 1});
    desktop_.UsePrinter(printer_);
    main_.Form_Load();
    Settle(500);
  }

  Machine Facilities() {
    return {.files = machine_.files,
            .registry = *machine_.registry,
            .folders = folders_,
            .user = machine_.user,
            .clock = machine_.clock,
            .regional = machine_.regional,
            .libraries = machine_.libraries};
  }

  tests::TemporaryFolder folder_;
  SystemMachine machine_{folder_.Path(), "C"};
  tests::TestFolders folders_;
  apps::SimulatedBench bench_{machine_, [](std::chrono::milliseconds) {}};
  shell::FrmVeritane main_{desktop_, Facilities(),
                           [this](const std::string& prog_id) { return bench_.Create(prog_id); }};
  // There is no printer: everything goes into files.
  PdfPrinter printer_{machine_.files, machine_.clock, [this] { return main_.PrintFolder(); }};
};

}  // namespace veritane::platform
