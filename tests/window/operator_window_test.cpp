// The program in its real window, from the operator menu to PASS, with a real mouse and real keys.
#include <wx/dialog.h>

#include <cstdlib>
#include <deque>
#include <filesystem>

#include "apps/simulated_bench.h"
#include "apps/veritane_setup/data_layout.h"
#include "shell/frm_veritane.h"
#include "tests/support/temporary_folder.h"
#include "tests/window/window_test.h"

namespace veritane::platform {
namespace {

// A picture of the whole screen, kept where the tests were built. The toolkit's own copy of the screen may be
// stale, so a program outside takes it.
void KeepScreenshot(const std::string& name) {
  std::filesystem::create_directories(VERITANE_SCREENSHOTS);
  const std::string file = std::string(VERITANE_SCREENSHOTS) + "/" + name;
  EXPECT_EQ(std::system(("import -window root '" + file + "'").c_str()), 0) << file;
}

bool ShowsText(const wxWindow* window, const std::string& text) {
  if (window->GetLabel().utf8_string().find(text) != std::string::npos) return true;
  for (const wxWindow* child : window->GetChildren()) {
    if (ShowsText(child, text)) return true;
  }
  return false;
}

// Whether a dialog with this text in it is in front.
bool DialogShows(const std::string& text) {
  for (const wxWindow* window : wxTopLevelWindows) {
    const auto* dialog = dynamic_cast<const wxDialog*>(window);
    if (dialog != nullptr && dialog->IsShown() && dialog->IsModal() && ShowsText(dialog, text)) return true;
  }
  return false;
}

class OperatorWindowTest : public WindowTest {
protected:
  OperatorWindowTest() {
    std::filesystem::create_directories(folder_.Path() / "drive_c");
    setup::LayOutData(machine_.Facilities());
    setup::SetDemonstrationMode(machine_.Facilities(), true);
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

  tests::TemporaryFolder folder_;
  PosixMachine machine_{folder_.Path(), "C"};
  apps::SimulatedBench bench_{machine_, [](std::chrono::milliseconds) {}};
  shell::FrmVeritane main_{desktop_, machine_.Facilities(),
                           [this](const std::string& prog_id) { return bench_.Create(prog_id); }};
  std::deque<Step> steps_;
  wxTimer timer_;
  bool acting_ = false;
};

TEST_F(OperatorWindowTest, FromTheMenuToAPassWithMouseAndKeys) {
  ASSERT_TRUE(main_.fraMainMenu.IsShown());
  KeepScreenshot("operator-menu.png");
  const auto focus_is_in = [](const char* name) {
    const wxWindow* focused = wxWindow::FindFocus();
    for (; focused != nullptr; focused = focused->GetParent()) {
      if (focused->GetName() == name) return true;
    }
    return false;
  };
  Form* samp = desktop_.Find("frmSamp");
  auto& product = dynamic_cast<ComboBox&>(*samp->Find("cmbStandards"));
  auto& name = dynamic_cast<TextBox&>(*samp->Find("txtSampName"));
  PlayAlong({{"the dialog", [&] { return focus_is_in("cmbStandards"); },
              [&] { mouse_and_keys_.Text("asa-100-ft"); }},
             {"the Product ID", [&] { return product.Text() == "asa-100-ft"; },
              [&] { mouse_and_keys_.Char(WXK_RETURN); }},
             {"the sample name", [&] { return focus_is_in("txtSampName"); },
              [&] { mouse_and_keys_.Text("lot 7"); }},
             {"the typed name", [&] { return name.Text() == "lot 7"; },
              [&] {
                KeepScreenshot("sample-entry.png");
                mouse_and_keys_.Char(WXK_RETURN);
              }},
             AnswerBox("A new Background is required."),
             AnswerBox("Background Done"),
             AnswerBox("Ready for Sample."),
             {"the result", [&] { return main_.fraSpectrum.IsShown(); }, [] {}}});
  Click("cmdSample");
  WaitForTheLastStep();

  EXPECT_EQ(main_.chart.Labels()[Chart::kVerdictLabel], "PASS");
  EXPECT_NE(main_.lblResult.Caption().find("Sample Name: lot 7"), std::string::npos);
  EXPECT_TRUE(machine_.files.FileExists("C:\\ProgramData\\Kestrova\\Veritane\\Samples\\asa-100-ft.his"));
  KeepScreenshot("operator-pass.png");

  // The pointer over the chart reads it out; dragging zooms, the button takes the zoom back.
  const wxWindow* chart = Widget("chart");
  const wxSize size = chart->GetClientSize();
  Point(chart, {size.x / 2, size.y / 2});
  Settle();
  EXPECT_NE(main_.lblReadout.Caption().find(','), std::string::npos);
  EXPECT_EQ(desktop_.MousePointer(), Pointer::kCrosshair);
  const wxPoint corner = chart->ClientToScreen(wxPoint(size.x / 2, size.y / 3));
  mouse_and_keys_.MouseDragDrop(corner.x, corner.y, corner.x + size.x / 5, corner.y + size.y / 4);
  Settle();
  EXPECT_TRUE(main_.chart.IsZoomed());
  KeepScreenshot("zoomed.png");
  Click("cmdResetLimits");
  EXPECT_FALSE(main_.chart.IsZoomed());
  EXPECT_EQ(desktop_.MousePointer(), Pointer::kDefault);
}

}  // namespace
}  // namespace veritane::platform
