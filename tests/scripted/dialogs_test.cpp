// Message boxes, file choosers and modal forms: the program waits in them, and the next lines answer.
#include "tests/scripted/sample_forms.h"

#include <gmock/gmock.h>

namespace veritane::platform {
namespace {

using nlohmann::ordered_json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(MessageBoxes, AreAnsweredByTheFollowingLines) {
  SampleRun sample;
  std::vector<MessageAnswer> answers;
  sample.frmMain.cmdGo.OnClick = [&] {
    for (const MessageButtons buttons :
         {MessageButtons::kOk, MessageButtons::kOkCancel, MessageButtons::kYesNo}) {
      answers.push_back(sample.run.Screen().ShowMessage(
          {.text = "Ready", .title = " Notice", .icon = MessageIcon::kExclamation, .buttons = buttons}));
    }
  };
  const Events events = sample.Lines({"click frmMain.cmdGo", [&] { EXPECT_THAT(answers, IsEmpty()); },
                                      "answer OK", "answer Cancel", "answer yes"});
  EXPECT_THAT(answers, ElementsAre(MessageAnswer::kOk, MessageAnswer::kCancel, MessageAnswer::kYes));
  const std::vector<ordered_json> shown = events.Named("message");
  ASSERT_EQ(shown.size(), 3U);
  EXPECT_EQ(shown[0].dump(),
            R"({"event":"message","title":" Notice","text":"Ready","icon":"exclamation","buttons":["OK"]})");
  EXPECT_EQ(shown[1]["buttons"], ordered_json({"OK", "Cancel"}));
  EXPECT_EQ(shown[2]["buttons"], ordered_json({"Yes", "No"}));
}

TEST(MessageBoxes, LieOverEverythingUntilAnswered) {
  SampleRun sample;
  int clicks = 0;
  sample.frmMain.cmdGo.OnClick = [&] {
    ++clicks;
    sample.run.Screen().ShowMessage({.text = "Scan?", .title = ""});
  };
  const Events events =
      sample.Lines({"click frmMain.cmdGo", "click frmMain.cmdGo", "close frmMain", "type frmMain.txtNumber 1",
                    "answer Yes", "file \"C:\\x\"", "cancel", "get frmMain.cmdGo", "answer OK", "answer OK"});
  EXPECT_EQ(clicks, 1);
  EXPECT_THAT(events.Refusals(),
              ElementsAre("frmMain.cmdGo is behind the message box \"Scan?\".",
                          "frmMain is behind the message box \"Scan?\".",
                          "frmMain.txtNumber is behind the message box \"Scan?\".",
                          "The message box \"Scan?\" has no button \"Yes\", only: OK.",
                          "There is no file chooser to answer.", "There is no file chooser to cancel.",
                          "There is no message box to answer."));
  EXPECT_TRUE(events.LastGot("frmMain.cmdGo")["enabled"]);
}

TEST(FileChoosers, GiveTheWindowsPathOrNothing) {
  SampleRun sample;
  std::vector<std::optional<std::string>> files;
  sample.frmMain.cmdGo.OnClick = [&] {
    files.push_back(sample.run.Screen().ChooseFile(
        {.title = " Select clm file", .filter = "(*.clm)|*.clm", .folder = "C:\\Standards\\"}));
  };
  const Events events =
      sample.Lines({"click frmMain.cmdGo", "answer OK", "click frmMain.cmdGo", "file \"\"",
                    "file \"C:\\x\\Tablet A.clm\"", "click frmMain.cmdGo", "cancel", "cancel"});
  EXPECT_THAT(files, ElementsAre("C:\\x\\Tablet A.clm", std::nullopt));
  EXPECT_EQ(events.Last("file-dialog").dump(),
            R"({"event":"file-dialog","title":" Select clm file","filter":"(*.clm)|*.clm",)"
            R"("folder":"C:\\Standards\\"})");
  EXPECT_THAT(events.Refusals(),
              ElementsAre("There is no message box to answer.",
                          "frmMain.cmdGo is behind the file chooser \" Select clm file\".",
                          HasSubstr("no empty name"), "There is no file chooser to cancel."));
}

TEST(ModalForms, ReturnToTheirHandlerWhenHidden) {
  SampleRun sample;
  std::vector<std::string> steps;
  sample.frmMain.cmdGo.OnClick = [&] {
    steps.push_back("before");
    sample.frmDialog.ShowModal();
    steps.push_back("after " + sample.frmDialog.txtName.Text());
  };
  const Events events =
      sample.Lines({"click frmMain.cmdGo", "click frmMain.cmdGo", "close frmMain", "click frmDialog.cmdOK",
                    "click frmDialog.txtName", "answer OK", "type frmDialog.txtName \"Lot 7\"",
                    "key frmDialog.txtName Enter", [&] { steps.push_back("free"); }, "get frmMain.cmdGo"});
  EXPECT_THAT(steps, ElementsAre("before", "after Lot 7", "free"));
  EXPECT_THAT(events.Messages(), ElementsAre("Please enter a name."));
  EXPECT_THAT(events.Refusals(), ElementsAre("frmMain.cmdGo is behind the modal form frmDialog.",
                                             "frmMain is behind the modal form frmDialog.",
                                             "frmDialog.txtName is behind the message box \" Notice\"."));
  const std::vector<ordered_json> forms = events.Named("form");
  ASSERT_EQ(forms.size(), 3U);
  EXPECT_EQ(forms[0].dump(),
            R"({"event":"form","name":"frmMain","caption":"Sample program","shown":true,"modal":false})");
  EXPECT_EQ(forms[1].dump(),
            R"({"event":"form","name":"frmDialog","caption":"Name","shown":true,"modal":true})");
  EXPECT_EQ(forms[2].dump(),
            R"({"event":"form","name":"frmDialog","caption":"Name","shown":false,"modal":true})");
}

TEST(ModalForms, CanShowDialogsOfTheirOwnAndBeClosed) {
  SampleRun sample;
  bool returned = false;
  sample.frmMain.cmdGo.OnClick = [&] {
    sample.frmDialog.ShowModal();
    returned = true;
  };
  const Events events = sample.Lines({"click frmMain.cmdGo", "click frmDialog.cmdAsk",
                                      "click frmDialog.cmdOK", "answer OK", [&] { EXPECT_FALSE(returned); },
                                      "close frmDialog", [&] { EXPECT_TRUE(returned); }, "list"});
  EXPECT_THAT(events.Messages(), ElementsAre("From the dialog"));
  EXPECT_THAT(events.Refusals(), ElementsAre("frmDialog.cmdOK is behind the message box \"Nested\"."));
}

TEST(ModalForms, KeepStandingAfterAnErrorInTheirHandlers) {
  SampleRun sample;
  sample.frmMain.cmdGo.OnClick = [&] { sample.frmDialog.ShowModal(); };
  const Events events =
      sample.Lines({"click frmMain.cmdGo", "click frmDialog.cmdFail", "answer OK",
                    [&] { EXPECT_TRUE(sample.frmDialog.Shown()); }, "click frmDialog.cmdCancel"});
  EXPECT_EQ(events.Last("error").dump(), R"({"event":"error","number":53,"text":"File not found"})");
  EXPECT_THAT(events.Messages(), ElementsAre("Run-time error 53: File not found"));
  EXPECT_EQ(sample.run.Finish(), 0);
}

TEST(LinesThatRunOut, InADialogEndTheRunAndNoHandlerGoesOn) {
  for (const char* dialog : {"message", "file", "modal"}) {
    SampleRun sample;
    bool went_on = false;
    sample.frmMain.cmdGo.OnClick = [&] {
      if (*dialog == 'm' && dialog[1] == 'e') sample.run.Screen().ShowMessage({.text = "?", .title = "Box"});
      if (*dialog == 'f') sample.run.Screen().ChooseFile({.title = "File", .filter = "", .folder = ""});
      if (dialog[1] == 'o') sample.frmDialog.ShowModal();
      went_on = true;
    };
    const Events events = sample.Lines({"click frmMain.cmdGo", "click frmMain.cmdNone"});
    EXPECT_FALSE(went_on) << dialog;
    EXPECT_EQ(events.All().back()["event"], "exit");
    EXPECT_EQ(events.All().back()["status"], kExitStoppedOnError);
    const std::string reason = events.All().back()["reason"];
    EXPECT_THAT(reason, HasSubstr(*dialog == 'f'     ? "file chooser \"File\""
                                  : dialog[1] == 'o' ? "modal form frmDialog"
                                                     : "message box \"Box\""));
    EXPECT_FALSE(sample.frmDialog.Shown());
    EXPECT_THROW(sample.Lines({"list"}), std::logic_error);
  }
}

TEST(LinesThatRunOut, UnwindThroughEveryDialogThatIsOpen) {
  SampleRun sample;
  int caught = 0;
  sample.frmMain.cmdGo.OnClick = [&] {
    try {
      sample.frmDialog.ShowModal();
    } catch (const std::exception&) {
      ++caught;
    }
    sample.run.Screen().ShowMessage({.text = "not reached", .title = ""});
  };
  const Events events = sample.Lines({"click frmMain.cmdGo", "click frmDialog.cmdAsk"});
  EXPECT_EQ(caught, 0);
  EXPECT_THAT(events.Messages(), ElementsAre("From the dialog"));
  EXPECT_THAT(events.All().back()["reason"].get<std::string>(), HasSubstr("message box \"Nested\""));
  // Hiding the dialog is part of the unwinding, nothing that the program did.
  EXPECT_TRUE(events.Last("form")["shown"]);
}

TEST(LinesThatRunOut, StopTheRunEvenWhenAHandlerCatchesEverything) {
  SampleRun sample;
  bool went_on = false;
  sample.frmDialog.cmdAsk.OnClick = [&] {
    try {
      sample.run.Screen().ShowMessage({.text = "?", .title = "Box"});
    } catch (...) {
    }
  };
  sample.frmMain.cmdGo.OnClick = [&] {
    sample.frmDialog.ShowModal();
    went_on = true;
  };
  const Events events = sample.Lines({"click frmMain.cmdGo", "click frmDialog.cmdAsk"});
  EXPECT_FALSE(went_on);
  EXPECT_EQ(events.All().back()["reason"], "The script ended while the message box \"Box\" was open.");
}

TEST(LinesThatRunOut, AreNotAskedForAgain) {
  int asked = 0;
  std::vector<ordered_json> events;
  ScriptedInterface screen(
      [&]() -> std::optional<std::string> {
        ++asked;
        return asked == 2 ? std::nullopt : std::optional<std::string>("click frmMain.cmdGo");
      },
      [&](const ordered_json& event) { events.push_back(event); });
  Desktop desktop(screen);
  SampleMain frmMain(desktop);
  frmMain.cmdGo.OnClick = [&] {
    try {
      desktop.ShowMessage({.text = "first", .title = ""});
    } catch (...) {
      desktop.ShowMessage({.text = "second", .title = ""});
    }
  };
  const auto start = [&] { frmMain.Show(); };
  EXPECT_EQ(screen.Run(desktop, {.start = start, .setInstrument = {}, .setClock = {}}), kExitStoppedOnError);
  EXPECT_EQ(asked, 2);
  ASSERT_EQ(events.size(), 2U);
  EXPECT_EQ(events[0]["text"], "first");
}

}  // namespace
}  // namespace veritane::platform
