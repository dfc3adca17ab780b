// What each command does to a control, and what it refuses to do.
#include "tests/scripted/sample_forms.h"

#include <gmock/gmock.h>

namespace veritane::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(Clicking, PressesChecksAndToggles) {
  SampleRun sample;
  int clicks = 0;
  sample.frmMain.cmdGo.OnClick = [&] { ++clicks; };
  int changes = 0;
  sample.frmMain.chkPrint.OnClick = [&] { ++changes; };
  const Events events = sample.Lines({"click frmMain.cmdGo", "click FRMMAIN.cmdgo", "click frmMain.optTwo",
                                      "click frmMain.chkPrint", "click frmMain.chkPrint"});
  EXPECT_THAT(events.Refusals(), IsEmpty());
  EXPECT_EQ(clicks, 2);
  EXPECT_TRUE(sample.frmMain.optTwo.Checked());
  EXPECT_EQ(changes, 2);
  EXPECT_FALSE(sample.frmMain.chkPrint.Checked());
}

TEST(Clicking, AListBoxClicksItsSelectedEntryAgain) {
  SampleRun sample;
  int clicks = 0;
  sample.frmMain.lstMethods.OnClick = [&] { ++clicks; };
  const Events events =
      sample.Lines({"click frmMain.lstMethods", "choose frmMain.lstMethods #1", "click frmMain.lstMethods"});
  EXPECT_THAT(events.Refusals(), ElementsAre(HasSubstr("no selected entry")));
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(sample.frmMain.lstMethods.Selected(), 1);
}

TEST(Typing, EachCharacterAsksKeyPressAndOnlyAllowedOnesAppear) {
  SampleRun sample;
  TextBox& box = sample.frmMain.txtNumber;
  std::vector<int> keys;
  box.OnKeyPress = [&](int key) {
    keys.push_back(key);
    return key >= '0' && key <= '9';
  };
  std::vector<std::string> texts;
  sample.Lines({"set frmMain.txtNumber \"7\""});
  box.OnChange = [&] { texts.push_back(box.Text()); };
  sample.Lines({"type frmMain.txtNumber \"1a2é\""});
  EXPECT_THAT(keys, ElementsAre('1', 'a', '2', 0xE9));
  EXPECT_THAT(texts, ElementsAre("", "1", "12"));
  EXPECT_TRUE(box.HasFocus());
}

TEST(Typing, PastingRaisesChangeOnceAndNoKeyPress) {
  SampleRun sample;
  TextBox& box = sample.frmMain.txtNumber;
  box.OnKeyPress = [](int) { return false; };
  int changes = 0;
  box.OnChange = [&] { ++changes; };
  sample.Lines({"set frmMain.txtNumber \"abc µ\""});
  EXPECT_EQ(box.Text(), "abc µ");
  EXPECT_EQ(changes, 1);
}

TEST(Typing, AMessageBoxInBetweenIsAnsweredBeforeTheTextGoesOn) {
  SampleRun sample;
  TextBox& box = sample.frmMain.txtNumber;
  sample.Lines({"set frmMain.txtNumber 90"});
  box.OnChange = [&] {
    if (box.Text().empty()) sample.run.Screen().ShowMessage({.text = "Must be a value", .title = " Notice"});
  };
  const Events events = sample.Lines({"type frmMain.txtNumber 95", [&] { EXPECT_EQ(box.Text(), ""); },
                                      "answer OK", "get frmMain.txtNumber"});
  EXPECT_THAT(events.Messages(), ElementsAre("Must be a value"));
  EXPECT_EQ(events.LastGot("frmMain.txtNumber")["text"], "95");
}

TEST(Typing, StopsWithARefusalWhenTheBoxDisappears) {
  SampleRun sample;
  TextBox& box = sample.frmMain.txtNumber;
  box.OnChange = [&] { box.SetVisible(box.Text() != "ab"); };
  const Events events = sample.Lines({"type frmMain.txtNumber abcd"});
  EXPECT_THAT(events.Refusals(), ElementsAre("frmMain.txtNumber is hidden."));
  EXPECT_EQ(box.Text(), "ab");
}

TEST(Typing, ReplacesTheHighlightedPartAndCountsCharacters) {
  SampleRun sample;
  TextBox& box = sample.frmMain.txtNumber;
  sample.Lines({"set frmMain.txtNumber \"LOTé-ASPIRIN\"", "highlight frmMain.txtNumber 5 7"});
  EXPECT_EQ(box.HighlightedText(), "ASPIRIN");
  sample.Lines({"key frmMain.txtNumber µ"});
  EXPECT_EQ(box.Text(), "LOTé-µ");
  sample.Lines({"key frmMain.txtNumber Backspace", "highlight frmMain.txtNumber 0 4",
                "key frmMain.txtNumber Backspace"});
  EXPECT_EQ(box.Text(), "-");
}

TEST(Typing, IsRefusedWhereTheUserCouldNotType) {
  SampleRun sample;
  const Events events =
      sample.Lines({"type frmMain.txtReport x", "set frmMain.txtReport x", "type frmMain.cmdGo x",
                    "highlight frmMain.txtNumber -1 2", "set frmMain.cmbAlgorithm Fourier"});
  EXPECT_THAT(events.Refusals(),
              ElementsAre(HasSubstr("read-only"), HasSubstr("read-only"),
                          "frmMain.cmdGo is a button and takes no text.", "\"-1\" is not a start.",
                          "frmMain.cmbAlgorithm has no entry \"Fourier\"."));
  EXPECT_EQ(sample.frmMain.cmbAlgorithm.Selected(), -1);
}

TEST(Keys, EnterPressesTheDefaultButtonThatShows) {
  SampleRun sample;
  std::vector<std::string> pressed;
  sample.frmMain.cmdGo.OnClick = [&] {
    pressed.push_back("Go");
    sample.frmMain.cmdGo.SetVisible(false);
    sample.frmMain.fraResult.SetVisible(true);
  };
  sample.frmMain.cmdNext.OnClick = [&] { pressed.push_back("Next"); };
  sample.Lines({"key frmMain.txtNumber Enter", "key frmMain.cmbProduct Enter"});
  EXPECT_THAT(pressed, ElementsAre("Go", "Next"));
}

TEST(Keys, EnterAndSpacePressTheButtonThatHasTheFocus) {
  SampleRun sample;
  int defaults = 0;
  sample.frmDialog.cmdOK.OnClick = [&] { ++defaults; };
  sample.frmMain.cmdGo.OnClick = [&] { sample.frmDialog.ShowModal(); };
  const Events events =
      sample.Lines({"click frmMain.cmdGo", "key frmDialog.cmdAsk Enter", "answer OK",
                    "key frmDialog.cmdAsk Space", "answer OK", "key frmDialog.cmdCancel Space"});
  EXPECT_EQ(events.Messages().size(), 2U);
  EXPECT_EQ(defaults, 0);
  EXPECT_TRUE(sample.frmDialog.cancelled);
}

TEST(Keys, AnEnterThatKeyPressDiscardsPressesNoButton) {
  SampleRun sample;
  int defaults = 0;
  sample.frmMain.cmdGo.OnClick = [&] { ++defaults; };
  sample.frmMain.txtNumber.OnKeyPress = [](int key) { return key != kEnterKey; };
  sample.Lines({"key frmMain.txtNumber Enter"});
  EXPECT_EQ(defaults, 0);
  // A box of several lines keeps Enter for itself.
  sample.Lines({"key frmMain.txtNotes a", "key frmMain.txtNotes Enter"});
  EXPECT_EQ(defaults, 0);
  EXPECT_EQ(sample.frmMain.txtNotes.Text(), "a\n");
}

TEST(Keys, EscapePressesTheCancelButton) {
  SampleRun sample;
  sample.frmMain.cmdGo.OnClick = [&] { sample.frmDialog.ShowModal(); };
  const Events events = sample.Lines({"click frmMain.cmdGo", "key frmDialog.txtName Escape"});
  EXPECT_TRUE(sample.frmDialog.cancelled);
  EXPECT_FALSE(sample.frmDialog.Shown());
  EXPECT_THAT(events.Refusals(), IsEmpty());
}

TEST(Keys, EscapeClosesAFormWithoutACancelButtonUnlessItIsTheMainForm) {
  SampleRun sample;
  sample.frmDialog.cmdCancel.isCancel = false;
  sample.frmMain.cmdGo.OnClick = [&] { sample.frmDialog.ShowModal(); };
  const Events events =
      sample.Lines({"click frmMain.cmdGo", "key frmDialog.txtName Escape",
                    [&] { EXPECT_FALSE(sample.frmDialog.Shown()); }, "key frmMain.txtNumber Escape"});
  EXPECT_FALSE(sample.frmDialog.cancelled);
  EXPECT_TRUE(sample.frmMain.Shown());
  EXPECT_THAT(events.Refusals(), IsEmpty());
}

TEST(Keys, TabGoesToTheNextControlThatTakesKeys) {
  SampleRun sample;
  sample.frmMain.txtNotes.SetEnabled(false);
  sample.Lines({"key frmMain.txtNumber Tab"});
  EXPECT_EQ(sample.frmMain.Focused(), &sample.frmMain.txtReport);
  sample.Lines({"key frmMain.grid Tab"});
  EXPECT_EQ(sample.frmMain.Focused(), &sample.frmMain.cmdGo);
}

TEST(Keys, UpAndDownMoveThroughListsAndGridsWithinTheirEnds) {
  SampleRun sample;
  sample.Lines({"key frmMain.lstMethods Down", "key frmMain.lstMethods Down"});
  EXPECT_EQ(sample.frmMain.lstMethods.Selected(), 1);
  sample.Lines({"key frmMain.cmbAlgorithm Up", "key frmMain.cmbAlgorithm Up"});
  EXPECT_EQ(sample.frmMain.cmbAlgorithm.Text(), "Euclidean");
  sample.Lines({"key frmMain.grid Up"});
  EXPECT_EQ(sample.frmMain.grid.Row(), 1);
  sample.Lines({"key frmMain.grid Down", "key frmMain.grid Down"});
  EXPECT_EQ(sample.frmMain.grid.Row(), 2);
}

TEST(Keys, UnknownKeysAndControlsWithoutKeysAreRefused) {
  SampleRun sample;
  const Events events = sample.Lines({"key frmMain.txtNumber F5", "key frmMain.chart Enter"});
  EXPECT_THAT(events.Refusals(), ElementsAre(HasSubstr("\"F5\" is no key"), HasSubstr("takes no keys")));
}

TEST(Choosing, TakesAnEntryByTextOrByIndex) {
  SampleRun sample;
  int clicks = 0;
  sample.frmMain.cmbAlgorithm.OnClick = [&] { ++clicks; };
  sample.Lines({"choose frmMain.lstMethods \"Tablet B\"", "choose frmMain.cmbAlgorithm #1",
                "choose frmMain.cmbProduct P2"});
  EXPECT_EQ(sample.frmMain.lstMethods.Selected(), 1);
  EXPECT_EQ(sample.frmMain.cmbAlgorithm.Text(), "Mark Peaks");
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(sample.frmMain.cmbProduct.Text(), "P2");
  sample.Lines({"choose frmMain.lstMethods \"#1\""});
  EXPECT_EQ(sample.frmMain.lstMethods.Selected(), 2);
}

TEST(Choosing, RefusesWhatIsNotInTheList) {
  SampleRun sample;
  const Events events =
      sample.Lines({"choose frmMain.lstMethods \"Tablet C\"", "choose frmMain.cmbAlgorithm #2",
                    "choose frmMain.cmbAlgorithm #x", "choose frmMain.txtNumber 1",
                    "choose frmMain.cmbAlgorithm Mark Peaks"});
  EXPECT_THAT(events.Refusals(),
              ElementsAre("frmMain.lstMethods has no entry \"Tablet C\".",
                          "frmMain.cmbAlgorithm has no entry #2: it has 2.", "\"x\" is not an index.",
                          "frmMain.txtNumber is a textbox and has no entries to choose from.",
                          HasSubstr("Write it as: choose")));
}

TEST(TabsAndRows, ComeToTheFrontByIndex) {
  SampleRun sample;
  const Events events =
      sample.Lines({"click frmMain.chkOnSecondTab", "tab frmMain.tabs 1", "click frmMain.chkOnSecondTab",
                    "tab frmMain.tabs 2", "row frmMain.grid 2", "row frmMain.grid 0", "row frmMain.grid 3"});
  EXPECT_TRUE(sample.frmMain.chkOnSecondTab.Checked());
  EXPECT_EQ(sample.frmMain.grid.Row(), 2);
  EXPECT_THAT(events.Refusals(),
              ElementsAre("frmMain.chkOnSecondTab is hidden.", "frmMain.tabs has no tab 2: it has 2.",
                          "Row 0 of frmMain.grid is a heading.", HasSubstr("has no row 3")));
}

TEST(Refusals, NameTheControlAndWhatIsWrongWithIt) {
  SampleRun sample;
  sample.frmMain.optOne.SetEnabled(false);
  int clicks = 0;
  sample.frmMain.cmdNext.OnClick = [&] { ++clicks; };
  const Events events =
      sample.Lines({"click frmNone.cmdGo", "click frmMain.cmdNone", "click cmdGo", "click frmDialog.cmdOK",
                    "click frmMain.cmdNext", "click frmMain.optOne", "click frmMain.lblResult",
                    "press frmMain.cmdGo", "click", "close frmDialog"});
  EXPECT_THAT(
      events.Refusals(),
      ElementsAre("The form frmNone is missing.", "frmMain.cmdNone is missing: frmMain has no such control.",
                  "\"cmdGo\" is not written as form.control.",
                  "frmDialog.cmdOK is hidden: the form frmDialog is not shown.", "frmMain.cmdNext is hidden.",
                  "frmMain.optOne is disabled.", "frmMain.lblResult is hidden.",
                  "There is no command \"press\".", "Write it as: click F.C", "frmDialog is hidden."));
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(events.Last("refused")["line"], "close frmDialog");
  EXPECT_EQ(sample.run.Finish(), kExitLineRefused);
}

TEST(Refusals, AControlInADisabledFrameIsDisabled) {
  SampleRun sample;
  sample.frmMain.fraResult.SetVisible(true);
  sample.frmMain.fraResult.SetEnabled(false);
  const Events events = sample.Lines({"click frmMain.cmdNext", "key frmMain.txtNumber Enter"});
  EXPECT_THAT(events.Refusals(), ElementsAre("frmMain.cmdNext is disabled."));
}

}  // namespace
}  // namespace veritane::platform
