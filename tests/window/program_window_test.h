// The whole program in its real window, on a data folder of its own, played by a real mouse and real keys.
#pragma once

#include <wx/dialog.h>

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <string>

#include "apps/simulated_bench.h"
#include "apps/veritane_setup/data_layout.h"
#include "platform/pdf/pdf_printer.h"
#include "shell/frm_veritane.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_folders.h"
#include "tests/window/window_test.h"

namespace veritane::platform {

// A picture of the whole screen, kept where the tests were built. The toolkit's own copy of the screen may be
// stale, so a program outside takes it.
inline void KeepScreenshot(const std::string& name) {
  std::filesystem::create_directories(VERITANE_SCREENSHOTS);
  const std::string file = std::string(VERITANE_SCREENSHOTS) + "/" + name;
  EXPECT_EQ(std::system(("import -window root '" + file + "'").c_str()), 0) << file;
}

inline bool ShowsText(const wxWindow* window, const std::string& text) {
  if (window->GetLabel().utf8_string().find(text) != std::string::npos) return true;
  for (const wxWindow* child : window->GetChildren()) {
    if (ShowsText(child, text)) return true;
  }
  return false;
}

// Whether a dialog with this text in it is in front.
inline bool DialogShows(const std::string& text) {
  for (const wxWindow* window : wxTopLevelWindows) {
    const auto* dialog = dynamic_cast<const wxDialog*>(window);
    if (dialog != nullptr && dialog->IsShown() && dialog->IsModal() && ShowsText(dialog, text)) return true;
  }
  return false;
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

  // Does each step as soon as its condition holds, also while dialogs are open.
  struct Step {
    std::string name;
    std::function<bool()> isTime;
    std::function<void()> act;
  };
  void PlayAlong(std::deque<Step> steps) {
    steps_ = std::move(steps);
    timer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
      if (steps_.empty() || acting_ || !steps_.front().isTime()) return;
      acting_ = true;
      const Step step = steps_.front();
      steps_.pop_front();
      step.act();
      acting_ = false;
    });
    timer_.Start(300);
  }
  void WaitForTheLastStep() {
    constexpr int kLongest = 60000;
    for (int waited = 0; !steps_.empty() && waited < kLongest; waited += 250) Settle(250);
    EXPECT_TRUE(steps_.empty()) << "still waiting for: " << (steps_.empty() ? "" : steps_.front().name);
    Settle(500);
  }
  Step AnswerBox(const std::string& text) {
    return {text, [text] { return DialogShows(text); }, [this] { mouse_and_keys_.Char(WXK_RETURN); }};
  }

  static bool FocusIsIn(const char* name) {
    const wxWindow* focused = wxWindow::FindFocus();
    for (; focused != nullptr; focused = focused->GetParent()) {
      if (focused->GetName() == name) return true;
    }
    return false;
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
  std::deque<Step> steps_;
  wxTimer timer_;
  bool acting_ = false;
};

}  // namespace veritane::platform
