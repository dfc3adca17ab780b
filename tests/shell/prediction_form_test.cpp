// The prediction form as a form of the program.
#include "tests/shell/program_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(ProgramTest, APredictionWithoutASpectrumIsAnErrorAndItsFormGoesAgain) {
  WriteSettings(true);
  const auto show = [this] { run_.Screen().Perform([this] { run_.Screen().Find("MainForm")->Show(); }); };
  const platform::Events events = Play({"start", show, "answer OK"});
  EXPECT_THAT(events.Refusals(), IsEmpty());
  EXPECT_THAT(events.Messages(), ElementsAre(HasSubstr("there is no spectrum to predict")));
  EXPECT_FALSE(run_.Screen().Find("MainForm")->Shown());
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
}

}  // namespace
}  // namespace veritane::tests
