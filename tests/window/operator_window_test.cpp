// The operator's side in the real window, from the menu to PASS.
#include "tests/window/program_window_test.h"

namespace veritane::platform {
namespace {

class OperatorWindowTest : public ProgramWindowTest {
protected:
  OperatorWindowTest() : ProgramWindowTest(true) {}

  // A demonstration of this product, "lot 7", with keys alone from the sample button on.
  void MeasureSample(const char* product_id) {
    Form* samp = desktop_.Find("frmSamp");
    auto& product = dynamic_cast<ComboBox&>(*samp->Find("cmbStandards"));
    auto& name = dynamic_cast<TextBox&>(*samp->Find("txtSampName"));
    PlayAlong(
        {{"the dialog", [&] { return FocusIsIn("cmbStandards"); }, [&] { mouse_and_keys_.Text(product_id); }},
         {"the Product ID", [&] { return product.Text() == product_id; },
          [&] { mouse_and_keys_.Char(WXK_RETURN); }},
         {"the sample name", [&] { return FocusIsIn("txtSampName"); },
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
  }
};

TEST_F(OperatorWindowTest, FromTheMenuToAPassWithMouseAndKeys) {
  ASSERT_TRUE(main_.fraMainMenu.IsShown());
  KeepScreenshot("operator-menu.png");
  MeasureSample("asa-100-ft");

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

TEST_F(OperatorWindowTest, AReportLiesBesideItsSpectrumUntilEscape) {
  const std::string table = "C:\\ProgramData\\Kestrova\\Veritane\\Meth.tbl";
  std::string rows = machine_.files.ReadBytes(table);
  rows.replace(rows.find("Euclidean"), std::string("Euclidean").size(), "Lumivar");
  machine_.files.WriteBytes(table, rows);
  MeasureSample("asa-100");
  const Form* results = desktop_.Find("frmResults");
  EXPECT_TRUE(results->Shown());
  EXPECT_TRUE(Widget("frmResults")->IsShown());
  KeepScreenshot("lumivar-report.png");
  Press(WXK_ESCAPE);
  EXPECT_FALSE(results->Shown());
  EXPECT_FALSE(Widget("frmResults")->IsShown());
  KeepScreenshot("lumivar-bands.png");
  main_.chart.Zoom({1000, 1800}, {0, 1});
  Settle();
  KeepScreenshot("lumivar-zoomed.png");
  // The keyboard is where it is after any other result: one key leads to the next sample.
  bool is_asked_for = false;
  PlayAlong({{"the next sample", [] { return FocusIsIn("cmbStandards"); },
              [&] {
                is_asked_for = true;
                mouse_and_keys_.Char(WXK_ESCAPE);
              }}});
  Press(WXK_RETURN);
  WaitForTheLastStep();
  EXPECT_TRUE(is_asked_for);
}

}  // namespace
}  // namespace veritane::platform
