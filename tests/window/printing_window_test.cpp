// Printing and the screen copy in the real window.
#include "tests/support/pdf_text.h"
#include "tests/window/program_window_test.h"

#include <gmock/gmock.h>
#include <wx/bitmap.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/image.h>

#include <set>

namespace veritane::platform {
namespace {

class PrintingWindowTest : public ProgramWindowTest {
protected:
  PrintingWindowTest() : ProgramWindowTest(true) {
    PlayAlong({{"sample entry", [] { return FocusIsIn("cmbStandards") || FocusIsIn("txtSampName"); },
                [this] {
                  Form& samp = *desktop_.Find("frmSamp");
                  dynamic_cast<ComboBox&>(*samp.Find("cmbStandards")).SetText("ASA-100");
                  dynamic_cast<TextBox&>(*samp.Find("txtSampName")).SetText("Lot 7");
                  dynamic_cast<TextBox&>(*samp.Find("txtOperatorName")).SetText("Ann");
                  dynamic_cast<Button&>(*samp.Find("cmdProductIDOkay")).Click();
                }},
               AnswerBox("A new Background is required"),
               AnswerBox("Background Done"),
               AnswerBox("Ready for Sample")});
    desktop_.Perform([this] { main_.cmdSample_Click(); });
    WaitForTheLastStep();
  }

  static wxImage ClipboardPicture() {
    const wxClipboardLocker clipboard;
    wxBitmapDataObject data;
    EXPECT_TRUE(wxTheClipboard->GetData(data));
    return data.GetBitmap().IsOk() ? data.GetBitmap().ConvertToImage() : wxImage();
  }
  static std::set<unsigned> ColoursIn(const wxImage& picture, const wxRect& part) {
    std::set<unsigned> colours;
    for (int y = part.GetTop(); y <= part.GetBottom(); ++y) {
      for (int x = part.GetLeft(); x <= part.GetRight(); ++x) {
        colours.insert(static_cast<unsigned>(picture.GetRed(x, y)) << 16 |
                       static_cast<unsigned>(picture.GetGreen(x, y)) << 8 | picture.GetBlue(x, y));
      }
    }
    return colours;
  }
};

TEST_F(PrintingWindowTest, TheScreenCopyIsThePanelsPicture) {
  ASSERT_TRUE(main_.fraSpectrum.Visible());
  {
    const wxClipboardLocker clipboard;
    wxTheClipboard->SetData(new wxTextDataObject("before"));
  }
  Click("cmdScreenCopy");
  const wxImage picture = ClipboardPicture();
  ASSERT_TRUE(picture.IsOk());
  const wxWindow* panel = Widget("fraSpectrum");
  EXPECT_EQ(picture.GetSize(), panel->GetClientSize());
  picture.SaveFile(std::string(VERITANE_SCREENSHOTS) + "/screen_copy.png", wxBITMAP_TYPE_PNG);

  // The chart with both traces, and the buttons below it with their captions.
  const wxWindow* chart = Widget("chart");
  const wxRect chart_part(panel->ScreenToClient(chart->GetScreenPosition()), chart->GetSize());
  const auto colours = ColoursIn(picture, chart_part);
  EXPECT_TRUE(colours.contains(0xffffff)) << "paper";
  EXPECT_GT(colours.size(), 20U) << "traces, texts, lines";
  const wxWindow* button = Widget("cmdPrint");
  const wxRect button_part(panel->ScreenToClient(button->GetScreenPosition()), button->GetSize());
  EXPECT_GT(ColoursIn(picture, button_part).size(), 5U) << "a caption";
}

TEST_F(PrintingWindowTest, WithoutAPrinterTheUserIsToldWhereTheFileIs) {
  ASSERT_TRUE(main_.fraSpectrum.Visible());
  PlayAlong({AnswerBox("No printer is installed. The print-out is in this file:\n")});
  Click("cmdPrint");
  WaitForTheLastStep();
  const auto prints = machine_.files.ListFiles(main_.PrintFolder());
  ASSERT_EQ(prints.size(), 1U);
  EXPECT_THAT(tests::TextOfPdf(machine_.paths.ToNative(main_.PrintFolder() + "\\" + prints[0])),
              ::testing::HasSubstr("Lot 7"));
}

}  // namespace
}  // namespace veritane::platform
