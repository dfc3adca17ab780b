// Real keys and a real mouse on drawn controls: typing, options, lists, boxes, dialogs.
#include "platform/controls.h"
#include "platform/run_time_error.h"
#include "platform/wx/file_filter.h"
#include "tests/window/window_test.h"

#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/clipbrd.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

namespace veritane::platform {
namespace {

using ::testing::ElementsAre;

class EntryForm : public Form {
public:
  explicit EntryForm(Desktop& desktop) : Form(desktop, "frmEntry") {
    SetCaption("Entry");
    product.isEditable = true;
    product.AddAll({"Aspirin", "Caffeine"});
    method.AddAll({"Tablet", "Powder"});
    list.AddAll({"one", "two", "three"});
    okay.SetCaption("O&K");
    okay.isDefault = true;
    cancel.SetCaption("&Cancel");
    cancel.isCancel = true;
    check.SetCaption("Sho&w");
    OptionButton::Group({&first, &second});
    first.SetCaption("&First");
    second.SetCaption("&Second");
    okay.OnClick = [this] { pressed.push_back("okay"); };
    cancel.OnClick = [this] { pressed.push_back("cancel"); };
    first.OnClick = [this] { pressed.push_back("first"); };
    second.OnClick = [this] { pressed.push_back("second"); };
    check.OnClick = [this] { pressed.push_back("check"); };
    list.OnClick = [this] { pressed.push_back(list.SelectedItem()); };
    method.OnClick = [this] { pressed.push_back(method.SelectedItem()); };
    product.OnClick = [this] { pressed.push_back(product.SelectedItem()); };
    box.OnChange = [this] { changes.push_back(box.Text()); };
  }

  ComboBox product{*this, "product"};
  TextBox box{*this, "box"};
  TextBox other{*this, "other"};
  ComboBox method{*this, "method"};
  ListBox list{*this, "list"};
  OptionButton first{*this, "first"};
  OptionButton second{*this, "second"};
  CheckBox check{*this, "check"};
  Button okay{*this, "okay"};
  Button cancel{*this, "cancel"};

  std::vector<std::string> pressed;
  std::vector<std::string> changes;
};

class WxControlsTest : public WindowTest {
protected:
  void OpenEntry() { Open(form_); }
  void Focus(Control& control) {
    control.SetFocus();
    Settle();
  }
  void Paste(const char* text) {
    ASSERT_TRUE(wxTheClipboard->Open());
    wxTheClipboard->SetData(new wxTextDataObject(text));
    wxTheClipboard->Close();
    Press('V', wxMOD_CONTROL);
  }
  std::string Shown(const std::string& name) {
    return dynamic_cast<wxTextEntry&>(*Widget(name)).GetValue().utf8_string();
  }

  EntryForm form_{desktop_};
};

TEST_F(WxControlsTest, TypedKeysReachTheBoxOnlyWhenTheProgramAllowsThem) {
  std::vector<int> keys;
  form_.box.OnKeyPress = [&](int key) {
    keys.push_back(key);
    return (key >= '0' && key <= '9') || key == kBackspaceKey;
  };
  OpenEntry();
  Focus(form_.box);
  Type("1a2");
  Press(WXK_BACK);
  EXPECT_THAT(keys, ElementsAre('1', 'a', '2', kBackspaceKey));
  EXPECT_THAT(form_.changes, ElementsAre("1", "12", "1"));
  EXPECT_EQ(Shown("box"), "1");
}

TEST_F(WxControlsTest, PastedTextIsNotFiltered) {
  form_.box.OnKeyPress = [](int) { return false; };
  OpenEntry();
  Focus(form_.box);
  Paste("seven");
  EXPECT_EQ(form_.box.Text(), "seven");
}

TEST_F(WxControlsTest, WhatTheBoxDropsOfAPastedTextIsNotOnScreenEither) {
  form_.box.SetText("seven");
  form_.changes.clear();
  OpenEntry();
  Focus(form_.box);
  Press(WXK_END);
  Paste("\t\t");
  EXPECT_EQ(Shown("box"), "seven");
  EXPECT_EQ(form_.box.Text(), "seven");
  EXPECT_THAT(form_.changes, ElementsAre());
}

TEST_F(WxControlsTest, TypingOverAHighlightedTextIsOneChange) {
  form_.box.SetText("90");
  form_.changes.clear();
  OpenEntry();
  form_.box.Highlight(0, 2);
  Focus(form_.box);
  Type("8");
  EXPECT_THAT(form_.changes, ElementsAre("8"));
}

TEST_F(WxControlsTest, WhatTheUserHighlightsIsKnownToTheHandler) {
  std::string highlighted;
  form_.okay.OnClick = [&] { highlighted = form_.box.HighlightedText(); };
  OpenEntry();
  form_.box.SetText("äöü-ASPIRIN");
  Focus(form_.box);
  Press(WXK_HOME);
  for (int i = 0; i < 3; ++i) mouse_and_keys_.Char(WXK_RIGHT, wxMOD_SHIFT);
  Settle();
  Click("okay");
  EXPECT_EQ(highlighted, "äöü");
}

TEST_F(WxControlsTest, AScannerTypesFastAndEndsWithEnter) {
  form_.product.OnKeyPress = [&](int key) {
    if (key != kEnterKey) return true;
    form_.other.SetFocus();
    return false;
  };
  OpenEntry();
  Focus(form_.product);
  mouse_and_keys_.Text("LOT123");
  mouse_and_keys_.Char(WXK_RETURN);
  mouse_and_keys_.Text("next");
  Settle(600);
  EXPECT_EQ(form_.product.Text(), "LOT123");
  EXPECT_EQ(form_.other.Text(), "next");
  EXPECT_THAT(form_.pressed, ElementsAre());
}

TEST_F(WxControlsTest, EnterPressesTheDefaultButtonAndEscapeTheOther) {
  OpenEntry();
  Focus(form_.box);
  Press(WXK_RETURN);
  Focus(form_.product);
  Press(WXK_RETURN);
  Press(WXK_ESCAPE);
  Focus(form_.cancel);
  Press(WXK_RETURN);
  EXPECT_THAT(form_.pressed, ElementsAre("okay", "okay", "cancel", "cancel"));
}

TEST_F(WxControlsTest, AccessKeysReachButtonsOptionsAndCheckBoxes) {
  OpenEntry();
  Focus(form_.box);
  Press('K', wxMOD_ALT);
  Press('S', wxMOD_ALT);
  Press('W', wxMOD_ALT);
  EXPECT_THAT(form_.pressed, ElementsAre("okay", "second", "check"));
  EXPECT_EQ(form_.box.Text(), "");
}

TEST_F(WxControlsTest, OptionsShowNoneUntilOneIsChecked) {
  OpenEntry();
  auto& first = dynamic_cast<wxRadioButton&>(*Widget("first"));
  auto& second = dynamic_cast<wxRadioButton&>(*Widget("second"));
  EXPECT_FALSE(first.GetValue() || second.GetValue());
  Click("first");
  Click("second");
  EXPECT_THAT(form_.pressed, ElementsAre("first", "second"));
  form_.first.Check();
  EXPECT_TRUE(first.GetValue() && !second.GetValue());
}

TEST_F(WxControlsTest, AClickInAListChoosesAlsoTheEntryThatIsChosenAlready) {
  OpenEntry();
  const int line = Widget("list")->GetCharHeight();
  for (int i = 0; i < 2; ++i) Click(Widget("list"), wxPoint(20, line / 2 + 3));
  EXPECT_THAT(form_.pressed, ElementsAre("one", "one"));
  form_.list.Select(2);
  EXPECT_EQ(dynamic_cast<wxListBox&>(*Widget("list")).GetSelection(), 2);
}

TEST_F(WxControlsTest, EntriesOfComboBoxesAreChosenByKeys) {
  OpenEntry();
  Focus(form_.method);
  Press(WXK_DOWN);
  Press(WXK_DOWN);
  EXPECT_EQ(form_.method.Text(), "Powder");
  EXPECT_THAT(form_.pressed, ElementsAre("Tablet", "Powder"));
  form_.pressed.clear();
  form_.product.Select(1);
  EXPECT_EQ(Shown("product"), "Caffeine");
}

TEST_F(WxControlsTest, AMessageBoxIsAnsweredByKeys) {
  std::vector<MessageAnswer> answers;
  form_.okay.OnClick = [&] {
    answers.push_back(
        desktop_.ShowMessage({.text = " a", .title = " Notice", .buttons = MessageButtons::kOkCancel}));
    answers.push_back(
        desktop_.ShowMessage({.text = "Delete R&D?", .title = "", .buttons = MessageButtons::kYesNo}));
    answers.push_back(desktop_.ShowMessage({.text = "b", .title = ""}));
  };
  OpenEntry();
  PlayAlong({{"the first box", [] { return DialogShows(" a"); },
              [&] {
                EXPECT_EQ(dynamic_cast<wxTopLevelWindow&>(*Widget("message")).GetTitle(), " Notice");
                EXPECT_EQ(Widget("text")->GetLabel(), " a");
                mouse_and_keys_.Char(WXK_ESCAPE);
              }},
             AnswerBox("Delete R", 'n'),
             AnswerBox("b")});
  Click("okay");
  EXPECT_THAT(answers, ElementsAre(MessageAnswer::kCancel, MessageAnswer::kNo, MessageAnswer::kOk));
}

TEST_F(WxControlsTest, AModalFormBlocksTheOthersUntilItHides) {
  EntryForm dialog(desktop_);
  dialog.okay.OnClick = [&] { dialog.Hide(); };
  bool has_returned = false;
  form_.okay.OnClick = [&] {
    dialog.ShowModal();
    has_returned = true;
  };
  OpenEntry();
  PlayAlong({{"the dialog", [&] { return dialog.Shown() && FocusIsIn("product"); },
              [&] {
                EXPECT_FALSE(has_returned);
                // The close button of the window underneath.
                dynamic_cast<wxTopLevelWindow&>(*Widget("frmEntry")).Close();
                mouse_and_keys_.Text("abc");
              }},
             {"the text", [&] { return dialog.product.Text() == "abc"; },
              [&] { mouse_and_keys_.Char(WXK_RETURN); }}});
  Click("okay");
  EXPECT_TRUE(has_returned);
  EXPECT_TRUE(form_.Shown());
  EXPECT_EQ(dialog.product.Text(), "abc");
}

TEST_F(WxControlsTest, InputDuringARunningHandlerStartsNothing) {
  int clicks = 0;
  form_.cancel.OnClick = [&] { ++clicks; };
  const auto press_cancel = [&] { mouse_and_keys_.Char('C', wxMOD_ALT); };
  form_.okay.OnClick = [&] {
    press_cancel();
    desktop_.ProcessPendingEvents();
    wxMilliSleep(400);
    press_cancel();
    mouse_and_keys_.Text("zz");
    wxMilliSleep(100);
  };
  OpenEntry();
  Focus(form_.box);
  Press('K', wxMOD_ALT);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(form_.box.Text(), "");
  Press('C', wxMOD_ALT);
  EXPECT_EQ(clicks, 1);
}

TEST_F(WxControlsTest, ARunTimeErrorIsShownAndTheProgramGoesOn) {
  form_.okay.OnClick = [] { throw RunTimeError(ErrorNumber::kFileNotFound); };
  OpenEntry();
  PlayAlong({AnswerBox("Run-time error 53")});
  Click("okay");
  EXPECT_FALSE(ui_.Ended());
  Click("cancel");
  EXPECT_THAT(form_.pressed, ElementsAre("cancel"));
}

TEST_F(WxControlsTest, AnyOtherExceptionEndsTheProgramWithStatusOne) {
  form_.okay.OnClick = [] { throw std::logic_error("a fault of the program"); };
  OpenEntry();
  PlayAlong({{"the last box", [] { return DialogShows("The program has to end: a fault of the program"); },
              [&] {
                EXPECT_FALSE(ui_.Ended());
                mouse_and_keys_.Char(WXK_RETURN);
              }}});
  Click("okay");
  EXPECT_TRUE(ui_.Ended());
  EXPECT_EQ(ui_.ExitStatus(), 1);
}

TEST_F(WxControlsTest, EndingTheProgramClosesItsDialogs) {
  EntryForm dialog(desktop_);
  dialog.okay.OnClick = [&] { desktop_.End(3); };
  form_.okay.OnClick = [&] { dialog.ShowModal(); };
  OpenEntry();
  PlayAlong({{"the dialog", [&] { return dialog.Shown() && FocusIsIn("product"); },
              [&] { mouse_and_keys_.Char(WXK_RETURN); }}});
  Click("okay");
  EXPECT_EQ(ui_.ExitStatus(), 3);
  EXPECT_FALSE(dialog.Shown());
}

TEST(FileFilter, NamesMatchWithoutRegardToCase) {
  EXPECT_EQ(NativeFilter("(*.clm)|*.clm"), "(*.clm)|*.[cC][lL][mM]");
}

}  // namespace
}  // namespace veritane::platform
