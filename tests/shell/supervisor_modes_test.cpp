// What the supervisor's tabs do on the way, the hand-over to expert mode, and by which name the operator is
// greeted.
#include "shell/state/data_folders.h"
#include "tests/shell/program_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class SupervisorModesTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(true);
    Write(Standard("Disc.clm"), "From = 400\r\nTo = 1600\r\nSpacing = 4\r\n");
    Write(Standard("Film.clm"), "From = 400\r\nTo = 1600\r\nSpacing = 4\r\n");
    Write(Data("Meths.tbl"), " 2 \r\n" + Standard("Disc.clm") + "\r\n" + Standard("Film.clm") + "\r\n");
    Write(Data("Disc.nul"), " 1 \r\n2400 - 2300\r\n");
    Write(Data("Film.nul"), " 1 \r\n1100 - 1000\r\n");
    Play({"start", "click frmVeritane.cmdSupervisor"});
    Calls();
  }
};

TEST_F(SupervisorModesTest, TheExitToExpertModeSavesAndLeavesTheApplicationToTheExpert) {
  Play({"tab frmVeritane.SSTab1 4", "set frmVeritane.txtThreshold \"85.5\"", "tab frmVeritane.SSTab1 6",
        "click frmVeritane.cmdExpertMode"});
  EXPECT_TRUE(run_.Screen().Ended());
  EXPECT_THAT(Calls(), ElementsAre("Interactive(true)", "Interactive(true)")) << "nobody asks it to quit";
  EXPECT_THAT(Read(Data("settings.ini")), HasSubstr("\r\n85.5\r\n"));
  machine_.files.DeleteFile(Data("log.txt"));
  EXPECT_FALSE(Exists(Data("log.txt"))) << "nothing holds the log any more";
}

TEST_F(SupervisorModesTest, TheTabOfCollectMethodsComesUpWithTheFirstMethodWhereOneWasSelected) {
  Play({"tab frmVeritane.SSTab1 2"});
  EXPECT_EQ(run_.Get("frmVeritane.lstMeths")["selected"], -1) << "none was";
  Play({"choose frmVeritane.lstMeths #1", "tab frmVeritane.SSTab1 0", "tab frmVeritane.SSTab1 2"});
  EXPECT_EQ(run_.Get("frmVeritane.lstMeths")["selected"], 0);
  EXPECT_THAT(run_.Get("frmVeritane.lstNullRegions")["items"], ElementsAre("2400 - 2300"));
}

TEST_F(SupervisorModesTest, ATemplateThatIsGoneKeepsTheSupervisorUntilThereIsAnother) {
  Write(Data("certificate.bpt"), "x");
  Play({"tab frmVeritane.SSTab1 4", "click frmVeritane.cmdSelTemplate",
        "file \"" + Data("certificate.bpt") + "\""});
  machine_.files.DeleteFile(Data("certificate.bpt"));
  const auto events = Play({"click frmVeritane.cmdMainMenu", "answer OK"});
  EXPECT_THAT(events.Messages(),
              ElementsAre("Selected print template does not exist. Please select a new print template."));
  EXPECT_EQ(events.Last("message")["title"], "Notice");
  EXPECT_TRUE(IsVisible("frmVeritane.fraSupervisorMode"));
  Play({"click frmVeritane.optDefaultPrint", "click frmVeritane.cmdMainMenu"});
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
}

class Account : public platform::UserAccount {
public:
  std::optional<std::string> LoggedOnUser() const override {
    if (fails) throw platform::RunTimeError(platform::ErrorNumber::kDeviceError);
    return user;
  }
  std::optional<std::string> ComputerName() const override { return computer; }

  std::optional<std::string> user;
  std::optional<std::string> computer;
  bool fails = false;
};

TEST(UserName, TheOperatorGoesByAccountComputerOrAsUnknown) {
  Account account;
  EXPECT_EQ(state::CurrentUserName(account), "<unknown user 1>");
  account.computer = std::string("LAB7\0rest", 9);
  EXPECT_EQ(state::CurrentUserName(account), "[LAB7]");
  account.user = "ann";
  EXPECT_EQ(state::CurrentUserName(account), "ann");
  account.user = "";
  EXPECT_EQ(state::CurrentUserName(account), "<unknown user 1>");
  account.fails = true;
  EXPECT_EQ(state::CurrentUserName(account), "<unknown user 2>");
}

}  // namespace
}  // namespace veritane::tests
