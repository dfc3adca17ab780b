// The supervisor's side in the real window, from a new product to the first sample of it.
#include "tests/window/program_window_test.h"

namespace veritane::platform {
namespace {

class SupervisorWindowTest : public ProgramWindowTest {
protected:
  SupervisorWindowTest() : ProgramWindowTest(false) {}

  template <typename Kind>
  Kind& On(const std::string& form, const std::string& control) {
    return dynamic_cast<Kind&>(*desktop_.Find(form)->Find(control));
  }
  Step Put(const std::string& sample, Step step) {
    const std::function<void()> act = step.act;
    step.act = [this, sample, act] {
      bench_.SampleCompartment().Write({.sample = sample, .duration = 0, .seed = 1});
      act();
    };
    return step;
  }
  Step PressWhen(const char* name, std::function<bool()> is_time, int key, int modifiers = wxMOD_NONE) {
    return {name, std::move(is_time), [this, key, modifiers] { mouse_and_keys_.Char(key, modifiers); }};
  }
};

TEST_F(SupervisorWindowTest, ANewProductIsDefinedMeasuredAndItsSamplePassesByKeysAlone) {
  auto& product_id = On<TextBox>("frmCollectStd", "txtProductID");
  auto& method = On<ComboBox>("frmCollectStd", "cmbmth");
  auto& operators_product = On<ComboBox>("frmSamp", "cmbStandards");
  auto& sample_name = On<TextBox>("frmSamp", "txtSampName");
  Press('P', wxMOD_ALT);
  ASSERT_TRUE(main_.fraSupervisorMode.IsShown());
  // The tabs by their access keys, the dialog by the keys of a scanner and a keyboard.
  Press('T', wxMOD_ALT);
  ASSERT_EQ(main_.SSTab1.Tab(), shell::kStandardsTab);
  KeepScreenshot("standards-tab.png");
  PlayAlong(
      {{"the dialog", [] { return FocusIsIn("txtProductID"); }, [&] { mouse_and_keys_.Text("caff-9"); }},
       PressWhen(
           "the scanned Product ID", [&] { return product_id.Text() == "caff-9"; }, WXK_RETURN),
       {"the collect method", [] { return FocusIsIn("cmbmth"); },
        [&] {
          EXPECT_EQ(method.Text(), "Pressed disc");
          KeepScreenshot("new-standard.png");
          mouse_and_keys_.Char('S', wxMOD_ALT);
        }},
       AnswerBox("A new Background is required."),
       AnswerBox("Background Done"),
       Put("caffeine", AnswerBox("Ready for Sample.")),
       {"the Standard", [] { return DialogShows("Standard Done"); },
        [this] {
          KeepScreenshot("standard-done.png");
          mouse_and_keys_.Char(WXK_RETURN);
        }},
       {"the tabs again", [&] { return main_.fraSupervisorMode.IsShown(); }, [] {}}});
  Press('W', wxMOD_ALT);
  WaitForTheLastStep();
  const std::string data = "C:\\ProgramData\\Kestrova\\Veritane\\";
  EXPECT_TRUE(machine_.files.FileExists(data + "Standards\\caff-9.bsp"));
  EXPECT_NE(machine_.files.ReadBytes(data + "Meth.tbl").find("caff-9,Pressed disc,Euclidean,\r\n"),
            std::string::npos);

  Press('U', wxMOD_ALT);
  ASSERT_TRUE(main_.fraMainMenu.IsShown());
  PlayAlong({{"the sample's dialog", [] { return FocusIsIn("cmbStandards"); },
              [&] { mouse_and_keys_.Text("caff-9"); }},
             PressWhen(
                 "its Product ID", [&] { return operators_product.Text() == "caff-9"; }, WXK_RETURN),
             {"its name", [] { return FocusIsIn("txtSampName"); }, [&] { mouse_and_keys_.Text("drum 1"); }},
             PressWhen(
                 "the typed name", [&] { return sample_name.Text() == "drum 1"; }, WXK_RETURN),
             AnswerBox("Ready for Sample."),
             {"the result", [&] { return main_.fraSpectrum.IsShown(); }, [] {}}});
  // The menu's first button has the focus.
  Press(WXK_SPACE);
  WaitForTheLastStep();
  EXPECT_EQ(main_.chart.Labels()[Chart::kVerdictLabel], "PASS");
  EXPECT_GT(main_.State().comparison, 99);
  KeepScreenshot("new-product-passes.png");
}

TEST_F(SupervisorWindowTest, ThePartOfAProductIdIsHighlightedWithMouseOrKeyboard) {
  Click("cmdSupervisor");
  Press('I', wxMOD_ALT);
  ASSERT_EQ(main_.SSTab1.Tab(), shell::kOptionsTab);
  auto& example = On<TextBox>("frmParse", "txtTmpProductID");
  const std::string definition = folders_.ProgramFolder() + "\\Standards\\ProductID.par";
  PlayAlong({{"the dialog", [] { return FocusIsIn("txtTmpProductID"); },
              [&] { mouse_and_keys_.Text("lot-asa-26"); }},
             // A scanner ends its code with Enter.
             PressWhen(
                 "the example", [&] { return example.Text() == "lot-asa-26"; }, WXK_RETURN),
             {"back to the start", [] { return FocusIsIn("txtTmpProductID"); },
              [&] {
                mouse_and_keys_.Char(WXK_HOME);
                for (int i = 0; i < 4; ++i) mouse_and_keys_.Char(WXK_RIGHT);
                for (int i = 0; i < 3; ++i) mouse_and_keys_.Char(WXK_RIGHT, wxMOD_SHIFT);
              }},
             {"the part by keyboard", [&] { return example.HighlightedText() == "asa"; },
              [&] {
                KeepScreenshot("part-of-a-product-id.png");
                mouse_and_keys_.Char('K', wxMOD_ALT);
              }}});
  Click("cmdParse");
  WaitForTheLastStep();
  EXPECT_EQ(machine_.files.ReadBytes(definition), " 5 \r\n 3 \r\n");

  PlayAlong(
      {{"the dialog", [] { return FocusIsIn("txtTmpProductID"); }, [&] { mouse_and_keys_.Text("petpet"); }},
       {"a word by mouse", [&] { return example.Text() == "petpet"; },
        [&] {
          const wxWindow* box = Widget("txtTmpProductID");
          mouse_and_keys_.MouseMove(box->ClientToScreen(wxPoint(20, box->GetClientSize().y / 2)));
          mouse_and_keys_.MouseDblClick();
        }},
       {"the part by mouse", [&] { return example.HighlightedText() == "petpet"; },
        [&] { mouse_and_keys_.Char(WXK_RETURN); }}});
  Click("cmdParse");
  WaitForTheLastStep();
  EXPECT_EQ(machine_.files.ReadBytes(definition), " 1 \r\n 6 \r\n");
  std::filesystem::remove(machine_.paths.ToNative(definition));
}

}  // namespace
}  // namespace veritane::platform
