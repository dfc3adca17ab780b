// settings.ini between file, state and controls.
#include "tests/shell/program_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SettingsTest : public ProgramTest {
protected:
  // A start that measures would need an instrument; these tests look at the settings alone.
  void SetUp() override { WriteMeasuringMethod(); }
};

// The file's text, null without a file.
class DamagedSettingsTest : public SettingsTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(DamagedSettingsTest,
       AMissingOrDamagedFileGivesTheDefaultsAndIsWrittenAtOnceFromTheControlsAsTheyStood) {
  if (GetParam() != nullptr) Write(Data("settings.ini"), GetParam());
  Play({"start"});
  const state::Options& options = program_->State().options;
  EXPECT_EQ(options.passThreshold, 90);
  EXPECT_EQ(options.PasswordRequired, 0);
  EXPECT_EQ(options.Password, "");
  EXPECT_EQ(options.backOption, 1);
  EXPECT_EQ(run_.Get("frmVeritane.optManualBackground")["checked"], true);
  EXPECT_EQ(run_.Get("frmVeritane.chkPrintPassFail")["checked"], 1);
  EXPECT_EQ(Read(Data("settings.ini")), "0\r\n0\r\n\r\n1\r\n0\r\n90\r\n0\r\n\r\n1\r\n1\r\n");
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedSettingsTest,
                         ::testing::Values(nullptr, "",
                                           "1\r\n1\r\nABC\r\n2\r\n4\r\n55\r\n0\r\n\r\n",  // eight lines
                                           "1\r\n1\r\nABC\r\n2\r\n4\r\nhigh\r\n0\r\n\r\n1\r\n1\r\n",
                                           "1\r\n1\r\nABC\r\n2\r\n4\r\n\r\n0\r\n\r\n1\r\n1\r\n",
                                           "1\r\n1\r\nABC\r\n2\r\n40000\r\n55\r\n0\r\n\r\n1\r\n1\r\n",
                                           "1\r\n1\r\nA,B\r\n2\r\n4\r\n55\r\n0\r\n\r\n1\r\n1\r\n",
                                           "1\r\n1\r\nABC\r\n2\r\n4\r\n-1\r\n0\r\n\r\n1\r\n1\r\n",
                                           "1\r\n1\r\nABC\r\n2\r\n4\r\nnan\r\n0\r\n\r\n1\r\n1\r\n"));

TEST_F(SettingsTest, WhatTheFileSaysShowsOnTheControlsAndSurvivesAnExit) {
  const std::string text = "1\r\n1\r\nSECRET\r\n2\r\n4\r\n85.5\r\n0\r\n\r\n0\r\n1\r\n";
  Write(Data("settings.ini"), text);
  const auto events = Play({"start"});
  EXPECT_THAT(events.Messages(), IsEmpty());
  EXPECT_THAT(events.Named("form").size(), 1U) << "checking the option at the start asks for no password";
  EXPECT_EQ(run_.Get("frmVeritane.optPassword")["checked"], true);
  EXPECT_EQ(run_.Get("frmVeritane.optBackInterval")["checked"], true);
  EXPECT_EQ(run_.Get("frmVeritane.txtbackInterval")["text"], "4");
  EXPECT_EQ(run_.Get("frmVeritane.txtbackInterval")["enabled"], true);
  EXPECT_EQ(run_.Get("frmVeritane.txtThreshold")["text"], "85.5");
  EXPECT_EQ(program_->State().options.backInterval, 4);
  Play({"click frmVeritane.cmdExit"});
  EXPECT_EQ(Read(Data("settings.ini")), "1\r\n1\r\nSECRET\r\n2\r\n4\r\n85.5\r\n0\r\n\r\n0\r\n0\r\n");
}

TEST_F(SettingsTest, AnUnknownBackgroundPolicyLeavesTheOptionsAsTheyWereDesigned) {
  WriteSettings(true, "90", "5");
  Play({"start"});
  for (const char* option : {"optManualBackground", "optBackInterval", "optBackBeforeSample"}) {
    EXPECT_EQ(run_.Get(std::string("frmVeritane.") + option)["checked"], false) << option;
  }
}

TEST_F(SettingsTest, TheThresholdIsCheckedOnEveryChangeAlsoOfAnEmptiedBox) {
  WriteSettings(true);
  Play({"start", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 4"});
  for (const char* text : {"", "-", "abc", "100.01", "-1", "85,5"}) {
    const auto events = Play({"set frmVeritane.txtThreshold \"50\"",
                              "set frmVeritane.txtThreshold \"" + std::string(text) + "\"", "answer OK"});
    EXPECT_THAT(events.Messages(), ElementsAre("Must be a value between 0 and 100.")) << text;
    EXPECT_EQ(events.Last("message")["icon"], "information");
    EXPECT_EQ(run_.Get("frmVeritane.txtThreshold")["text"], text) << "the text stays as typed";
    Play({"set frmVeritane.txtThreshold \"50\""});
  }
  for (const char* text : {"0", "100", "85.5"}) {
    EXPECT_THAT(Play({"set frmVeritane.txtThreshold \"" + std::string(text) + "\""}).Messages(), IsEmpty())
        << text;
  }
}

TEST_F(SettingsTest, ReturningToTheOperatorTurnsTheTextsIntoSettings) {
  WriteSettings(true);
  Play({"start", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 1",
        "click frmVeritane.optBackInterval", "type frmVeritane.txtbackInterval \"1x2\"",
        "tab frmVeritane.SSTab1 4", "set frmVeritane.txtThreshold \"97.5\"",
        "click frmVeritane.cmdMainMenu"});
  EXPECT_EQ(program_->State().options.passThreshold, 97.5);
  EXPECT_EQ(program_->State().options.backOption, 2);
  EXPECT_EQ(program_->State().options.backInterval, 12) << "letters do not reach the box";
  EXPECT_EQ(Read(Data("Meths.tbl")), " 1 \r\n" + Standard("Disc.clm") + "\r\n");
}

TEST_F(SettingsTest, AThresholdOrHoursThatCannotBeReadBackKeepTheSupervisorUntilTheyAreMended) {
  Write(Data("settings.ini"), "1\r\n1\r\nSECRET\r\n2\r\n4\r\n85.5\r\n0\r\n\r\n1\r\n1\r\n");
  Play({"start", "click frmVeritane.cmdSupervisor", "type frmPassword.txtPassword \"secret\"",
        "key frmPassword.txtPassword Enter", "tab frmVeritane.SSTab1 4"});
  auto events = Play({"set frmVeritane.txtThreshold \"-5\"", "answer OK", "click frmVeritane.cmdMainMenu",
                      "answer OK", "set frmVeritane.txtThreshold \"80\""});
  EXPECT_EQ(events.Last("message")["text"], "Must be a value between 0 and 100.");
  events = Play({"tab frmVeritane.SSTab1 1", "set frmVeritane.txtbackInterval \"\"",
                 "click frmVeritane.cmdMainMenu", "answer OK", "set frmVeritane.txtbackInterval \"99999\"",
                 "click frmVeritane.cmdMainMenu", "answer OK"});
  EXPECT_EQ(events.Messages().size(), 2U);
  EXPECT_TRUE(IsVisible("frmVeritane.fraSupervisorMode"));
  Play({"set frmVeritane.txtbackInterval \"6\"", "click frmVeritane.cmdMainMenu"});
  EXPECT_EQ(program_->State().options.passThreshold, 80);
  EXPECT_EQ(program_->State().options.backInterval, 6);
  EXPECT_EQ(program_->State().options.Password, "SECRET") << "nothing else was lost";
}

TEST_F(SettingsTest, APasswordIsSetByTwoEqualEntriesAndAskedForWithoutRegardToCase) {
  WriteSettings(true);
  Play({"start", "click frmVeritane.cmdSupervisor", "click frmVeritane.optPassword",
        "type frmPassword.txtPassword \"abc\"", "key frmPassword.txtPassword Enter",
        "type frmPassword.txtPassword \"aBC\"", "click frmPassword.cmdPasswordOK",
        "click frmVeritane.cmdMainMenu"});
  EXPECT_EQ(program_->State().options.Password, "ABC");
  const std::string log = Read(Data("log.txt"));
  const auto refused = Play({"click frmVeritane.cmdSupervisor", "type frmPassword.txtPassword \"abd\"",
                             "key frmPassword.txtPassword Enter", "answer OK"});
  EXPECT_THAT(refused.Messages(), ElementsAre(" Access Denied"));
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
  EXPECT_EQ(Read(Data("log.txt")), log) << "a wrong password leaves no trace";
  Play({"click frmVeritane.cmdSupervisor", "type frmPassword.txtPassword \"aBc\"",
        "key frmPassword.txtPassword Enter"});
  EXPECT_TRUE(IsVisible("frmVeritane.fraSupervisorMode"));
  EXPECT_EQ(Read(Data("log.txt")), log + "Supervisor Mode accessed on 11/21/26 at 10:59:00\r\n");
}

TEST_F(SettingsTest, TwoDifferentEntriesFallBackToNoPassword) {
  WriteSettings(true);
  const auto events =
      Play({"start", "click frmVeritane.cmdSupervisor", "click frmVeritane.optPassword",
            "type frmPassword.txtPassword \"abc\"", "key frmPassword.txtPassword Enter",
            "type frmPassword.txtPassword \"abd\"", "key frmPassword.txtPassword Enter", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre("Incorrect Password"));
  EXPECT_EQ(run_.Get("frmVeritane.optNoPassword")["checked"], true);
  EXPECT_EQ(program_->State().options.PasswordRequired, 0);
}

TEST_F(SettingsTest, PrintingWithATemplateNeedsOneBeforeTheTabOrTheModeIsLeft) {
  WriteSettings(true);
  const auto events = Play({"start", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 4",
                            "click frmVeritane.optPrintTemplate", "tab frmVeritane.SSTab1 0", "answer OK",
                            "click frmVeritane.cmdMainMenu", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre("Please select a Print Template, or Select Default Printing",
                                             "A print template must be selected."));
  EXPECT_EQ(run_.Get("frmVeritane.SSTab1")["tab"], 4);
  EXPECT_TRUE(IsVisible("frmVeritane.fraSupervisorMode"));
}

TEST_F(SettingsTest, TheProductTableShowsWithItsFirstRowCurrent) {
  WriteSettings(true);
  WriteProducts({"P1,Disc,Fourier,", "P2,Disc,PLS,C:\\x.cal"});
  Play({"start", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 3"});
  const auto grid = run_.Get("frmVeritane.grid");
  EXPECT_THAT(grid["rows"][0], ElementsAre("Product ID", "Collect Method", "Algorithm", "File Name"));
  EXPECT_THAT(grid["rows"][2], ElementsAre("P2", "Disc", "PLS", "C:\\x.cal"));
  EXPECT_EQ(run_.Get("frmVeritane.cmbAlgorithm")["text"], "Fourier");
  Play({"row frmVeritane.grid 2"});
  EXPECT_EQ(run_.Get("frmVeritane.cmbAlgorithm")["text"], "PLS");
}

}  // namespace
}  // namespace veritane::tests
