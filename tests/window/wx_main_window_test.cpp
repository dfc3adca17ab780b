// Real keys and a real mouse on the main window's tabs, grid, panels and chart.
#include "shell/main_controls.h"
#include "tests/window/window_test.h"

#include <wx/grid.h>
#include <wx/notebook.h>

namespace veritane::platform {
namespace {

class WxMainWindowTest : public WindowTest {
protected:
  WxMainWindowTest() {
    const char* captions[] = {"Securit&y", "&Background", "Collect Meth&ods", "S&tandards", "Opt&ions",
                              "&Data",     "&Mode"};
    for (int page = 0; page < shell::kTabCount; ++page) main_.SSTab1.SetPageCaption(page, captions[page]);
    main_.cmdSample.SetCaption("&Sample");
    main_.cmdSample.OnClick = [this] { ++samples_; };
    ShowOnly(main_.fraMainMenu);
  }

  void ShowOnly(Frame& shown) {
    for (Frame* panel : {&main_.fraMainMenu, &main_.fraSupervisorMode, &main_.fraSpectrum}) {
      if (panel != &shown) panel->SetVisible(false);
    }
    shown.SetVisible(true);
    if (main_.Shown()) Settle(400);
  }

  shell::MainControls main_{desktop_};
  int samples_ = 0;
};

TEST_F(WxMainWindowTest, TheKeyboardIsOnTheFirstButtonOfThePanelInFront) {
  Open(main_);
  Press(WXK_RETURN);
  Press('S', wxMOD_ALT);
  EXPECT_EQ(samples_, 2);
  int next = 0;
  int back = 0;
  main_.cmdNextSample.OnClick = [&] { ++next; };
  main_.cmdBacktoMainMenu.OnClick = [&] { ++back; };
  ShowOnly(main_.fraSpectrum);
  Press(WXK_RETURN);
  Press(WXK_ESCAPE);
  EXPECT_EQ(next, 1);
  EXPECT_EQ(back, 1);
  EXPECT_EQ(samples_, 2);
}

TEST_F(WxMainWindowTest, ATabThatTheProgramTurnsBackIsShownAgain) {
  main_.SSTab1.OnChange = [this](int previous) {
    if (previous == shell::kOptionsTab) main_.SSTab1.SetTab(shell::kOptionsTab);
  };
  Open(main_);
  ShowOnly(main_.fraSupervisorMode);
  auto& tabs = dynamic_cast<wxNotebook&>(*Widget("SSTab1"));
  Press('T', wxMOD_ALT);
  EXPECT_EQ(main_.SSTab1.Tab(), shell::kStandardsTab);
  EXPECT_EQ(tabs.GetSelection(), shell::kStandardsTab);
  Press('I', wxMOD_ALT);
  EXPECT_EQ(main_.SSTab1.Tab(), shell::kOptionsTab);
  Press('Y', wxMOD_ALT);
  EXPECT_EQ(main_.SSTab1.Tab(), shell::kOptionsTab);
  EXPECT_EQ(tabs.GetSelection(), shell::kOptionsTab);
}

TEST_F(WxMainWindowTest, AClickInTheGridMakesItsRowTheCurrentOne) {
  std::vector<std::vector<std::string>> rows(10000, {"P", "M", "Euclidean", ""});
  main_.grid.SetFormat("<Product ID|<Collect Method|<Algorithm|<File Name");
  main_.grid.SetBody(std::move(rows));
  main_.SSTab1.SetTab(shell::kStandardsTab);
  Open(main_);
  ShowOnly(main_.fraSupervisorMode);
  auto& grid = dynamic_cast<wxGrid&>(*Widget("grid"));
  ASSERT_EQ(grid.GetNumberRows(), 10000);
  EXPECT_LT(grid.GetChildren().size(), 20U) << "the grid draws what is visible, no widget a row";
  int changes = 0;
  main_.grid.OnRowColChange = [&] { ++changes; };
  const int height = grid.GetDefaultRowSize();
  Click(grid.GetGridWindow(), wxPoint(20, height * 2 + height / 2));
  EXPECT_EQ(main_.grid.Row(), 3);
  EXPECT_TRUE(grid.IsInSelection(2, 1));
  Press(WXK_DOWN);
  EXPECT_EQ(main_.grid.Row(), 4);
  main_.grid.SetRow(9999);
  Settle();
  EXPECT_TRUE(grid.IsInSelection(9998, 0) && grid.IsVisible(9998, 0, false));
  main_.grid.RemoveRow(10000);
  Settle();
  EXPECT_EQ(grid.GetNumberRows(), 9999);
  EXPECT_GE(changes, 3);
}

TEST_F(WxMainWindowTest, DraggingARectangleZoomsAndADoubleClickShowsAllAgain) {
  main_.chart.SetX({400, 4000});
  main_.chart.SetY({0, 1});
  Open(main_);
  ShowOnly(main_.fraSpectrum);
  const PlotArea area = main_.chart.Area();
  ASSERT_GT(area.width, 200);
  const wxWindow* chart = Widget("chart");
  const auto at = [&](double across, double down) {
    return wxPoint(static_cast<int>(area.left + across * area.width),
                   static_cast<int>(area.top + down * area.height));
  };
  Point(chart, at(0.25, 0.25));
  mouse_and_keys_.MouseDown();
  Settle(60);
  Point(chart, at(0.4, 0.4));
  Point(chart, at(0.5, 0.75));
  mouse_and_keys_.MouseUp();
  Settle();
  EXPECT_NEAR(main_.chart.ViewX().maximum, 3100, 15);
  EXPECT_NEAR(main_.chart.ViewX().minimum, 2200, 15);
  EXPECT_NEAR(main_.chart.ViewY().maximum, 0.75, 0.02);
  EXPECT_NEAR(main_.chart.ViewY().minimum, 0.25, 0.02);
  mouse_and_keys_.MouseDblClick();
  Settle();
  EXPECT_FALSE(main_.chart.IsZoomed());
}

TEST_F(WxMainWindowTest, ThePointersPlaceInTheChartIsReadInPixels) {
  std::vector<double> seen;
  main_.chart.OnMouseMove = [&](double x, double) { seen.push_back(x); };
  Open(main_);
  ShowOnly(main_.fraSpectrum);
  Point(Widget("chart"), wxPoint(123, 80));
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back(), 123);
}

}  // namespace
}  // namespace veritane::platform
