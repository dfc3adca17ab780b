// What the operator sees while the program waits for a busy Spectrometer application.
#include "acquisition/automation_waiting_text.h"
#include "tests/shell/program_fixture.h"

namespace veritane::tests {
namespace {

class WaitingTextTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(true);
    Play({"start"});
  }
  platform::Form& Status() { return *program_->Screen().Find("frmStatus"); }
};

TEST_F(WaitingTextTest, TheTextStandsInTheStatusWindowWhileTheProgramWaitsAndWhatItSaidBeforeComesBack) {
  const auto show = acquisition::ShowInStatusWindow(program_->Screen());
  show("Wait until analyzer finishes process\u2026");
  EXPECT_TRUE(Status().Shown());
  EXPECT_EQ(Caption("frmStatus.lblStatus"), "Wait until analyzer finishes process\u2026");
  show("");
  EXPECT_FALSE(Status().Shown());

  dynamic_cast<platform::Label&>(*Status().Find("lblStatus")).SetCaption(" Scanning...");
  Status().Show();
  show("Wait");
  show("");
  EXPECT_TRUE(Status().Shown());
  EXPECT_EQ(Caption("frmStatus.lblStatus"), " Scanning...");
}

}  // namespace
}  // namespace veritane::tests
