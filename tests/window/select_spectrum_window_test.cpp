// Choosing a spectrum of a file with real keys and a real mouse.
#include "review/frm_select_spectrum.h"
#include "tests/window/window_test.h"

#include <wx/listbox.h>

namespace veritane::platform {
namespace {

class SelectSpectrumWindowTest : public WindowTest {
protected:
  // Shows the dialog, acts while it is on screen, and returns the chosen entry, -1 for none.
  int ChooseBy(const std::function<void()>& act) {
    dialog_.lstSpectrum.Clear();
    dialog_.lstSpectrum.AddAll({"Lot 1", "Lot 2", "Lot 3"});
    PlayAlong({{"the list", [] { return FocusIsIn("lstSpectrum"); }, act}});
    dialog_.ShowModal();
    EXPECT_FALSE(dialog_.Shown());
    return dialog_.lstSpectrum.Selected();
  }

  Form main_{desktop_, "frmMain"};
  review::FrmSelectSpectrum dialog_{desktop_};
};

TEST_F(SelectSpectrumWindowTest, ArrowsWalkThroughTheListEnterTakesAndEscapeTakesNone) {
  Open(main_);
  EXPECT_EQ(ChooseBy([this] {
              Press(WXK_HOME);
              Press(WXK_DOWN);
              EXPECT_TRUE(dialog_.Shown());
              EXPECT_EQ(dialog_.lstSpectrum.Selected(), -1) << "walking chooses nothing";
              Press(WXK_RETURN);
            }),
            1);
  EXPECT_EQ(ChooseBy([this] {
              Press(WXK_END);
              Press(WXK_ESCAPE);
            }),
            -1);
}

TEST_F(SelectSpectrumWindowTest, AClickTakesTheEntryUnderThePointer) {
  Open(main_);
  EXPECT_EQ(ChooseBy([this] {
              const auto& list = dynamic_cast<const wxListBox&>(*Widget("lstSpectrum"));
              int y = 0;
              while (y < list.GetClientSize().y && list.HitTest(wxPoint(20, y)) != 2) ++y;
              Click(&list, {20, y + 3});
            }),
            2);
}

}  // namespace
}  // namespace veritane::platform
