// The screens of the program in the smallest window that it allows.
#include "tests/window/program_window_test.h"

#include <wx/toplevel.h>

namespace veritane::platform {
namespace {

class ScreensWindowTest : public ProgramWindowTest {
protected:
  ScreensWindowTest() : ProgramWindowTest(true) {}

  // Each control in front lies whole inside what it lies on.
  void ExpectNothingClipped(const std::string& screen) {
    Settle();
    for (const Control* control : main_.Controls()) {
      if (!control->IsShown()) continue;
      const wxWindow* widget = Widget(control->Name());
      const wxSize room = widget->GetParent()->GetClientSize();
      const wxRect place = widget->GetRect();
      EXPECT_GT(place.width, 0) << screen << ": " << control->Name();
      EXPECT_LT(place.GetRight(), room.x) << screen << ": " << control->Name();
      EXPECT_LT(place.GetBottom(), room.y) << screen << ": " << control->Name();
    }
  }
};

TEST_F(ScreensWindowTest, NothingIsClippedInTheSmallestWindow) {
  auto& window = dynamic_cast<wxTopLevelWindow&>(*Widget("frmVeritane"));
  window.SetClientSize(window.GetMinClientSize());
  ExpectNothingClipped("menu");
  main_.cmdSupervisor.Click();
  for (int page = 0; page < shell::kTabCount; ++page) {
    main_.SSTab1.SetTab(page);
    ExpectNothingClipped("tab " + std::to_string(page));
  }
  main_.fraSupervisorMode.SetVisible(false);
  main_.fraSpectrum.SetVisible(true);
  ExpectNothingClipped("spectrum");
}

}  // namespace
}  // namespace veritane::platform
