// What a screen reader finds: the toolkit's accessibility tree of every screen.
#include "tests/support/errors.h"
#include "tests/window/program_window_test.h"

#include <gmock/gmock.h>
#include <gtk/gtk.h>

namespace veritane::platform {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

class ScreenReaderTest : public ProgramWindowTest {
protected:
  ScreenReaderTest() : ProgramWindowTest(true) {}

  static std::string NameOf(GtkWidget* widget) {
    const char* name = atk_object_get_name(gtk_widget_get_accessible(widget));
    return name == nullptr ? "" : name;
  }
  std::string ContentOf(const std::string& control) {
    auto* widget = static_cast<GtkWidget*>(Widget(control)->GetHandle());
    return atk_object_get_description(gtk_widget_get_accessible(widget));
  }

  // The names of all that can have the keyboard, by walking through the toolkit's own widgets.
  static std::vector<std::string> NamesIn(const std::string& window) {
    std::vector<std::string> names;
    Collect(Widget(window)->GetHandle(), &names);
    return names;
  }

private:
  static void Collect(GtkWidget* widget, gpointer names) {
    // A group has an option that is never seen.
    if (GTK_IS_RADIO_BUTTON(widget) && !gtk_widget_get_visible(widget)) return;
    const bool is_window = GTK_IS_WINDOW(widget);
    // Panels take the keyboard only to hand it on.
    const bool is_panel = g_strcmp0(G_OBJECT_TYPE_NAME(widget), "wxPizza") == 0;
    if (gtk_widget_get_can_focus(widget) && !is_window && !is_panel) {
      static_cast<std::vector<std::string>*>(names)->push_back(NameOf(widget));
    }
    if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), Collect, names);
  }
};

TEST_F(ScreenReaderTest, EverythingThatTheKeyboardReachesHasAName) {
  for (Form* form : desktop_.Forms()) {
    // The one that predicts complains that there is no spectrum, and is on screen all the same.
    EXPECT_EQ(tests::ErrorOf([&] { form->Show(); }), form->Name() == "MainForm" ? 5 : 0);
    EXPECT_THAT(NamesIn(form->Name()), Not(Contains(""))) << form->Name();
    if (form != &main_) form->Hide();
  }
  EXPECT_THAT(NamesIn("frmSamp"), Contains("Product ID"));
  EXPECT_THAT(NamesIn("frmCollectStd"), Contains("Algorithm"));
}

TEST_F(ScreenReaderTest, TheCurrentProductAndTheVerdictAreTold) {
  main_.cmdSupervisor.Click();
  main_.SSTab1.SetTab(shell::kStandardsTab);
  main_.grid.SetRow(2);
  Settle();
  EXPECT_THAT(ContentOf("grid"), HasSubstr(main_.grid.Cell(2, 0)));
  main_.cmdMainMenu.Click();
  main_.chart.SetLabel(Chart::kVerdictLabel, "FAIL");
  main_.chart.SetHeader({"LACTOSE"});
  EXPECT_EQ(ContentOf("chart"), "LACTOSE; FAIL");
}

}  // namespace
}  // namespace veritane::platform
