// What `get` and `list` tell of each kind of control.
#include "tests/scripted/sample_forms.h"

#include <gmock/gmock.h>

#include <limits>

namespace veritane::platform {
namespace {

using nlohmann::ordered_json;

TEST(Get, TellsThePropertiesOfEachKind) {
  SampleRun sample;
  SampleMain& form = sample.frmMain;
  form.cmdGo.SetCaption("E&xit");
  form.optTwo.Check();
  form.chkPrint.SetEnabled(false);
  form.lstMethods.Select(1);
  form.cmbProduct.SetText("P9");
  form.txtPassword.SetText("geheim");
  form.grid.SetCell(1, 0, "P1");
  const std::pair<const char*, const char*> expected[] = {
      {"frmMain.cmdGo", R"("type":"button","visible":true,"enabled":true,"caption":"E&xit")"},
      {"frmMain.lblResult", R"("type":"label","visible":false,"enabled":true,"caption":"")"},
      {"frmMain.fraStart", R"("type":"frame","visible":true,"enabled":true,"caption":"")"},
      {"frmMain.optTwo", R"("type":"option","visible":true,"enabled":true,"caption":"","checked":true)"},
      {"frmMain.chkPrint", R"("type":"checkbox","visible":true,"enabled":false,"caption":"","checked":0)"},
      {"frmMain.txtNumber", R"("type":"textbox","visible":true,"enabled":true,"text":"")"},
      {"frmMain.txtPassword", R"("type":"textbox","visible":true,"enabled":true,"text":"******")"},
      {"frmMain.lstMethods",
       R"("type":"listbox","visible":true,"enabled":true,"items":["Tablet A","Tablet B","#1"],"selected":1)"},
      {"frmMain.cmbProduct",
       R"("type":"combobox","visible":true,"enabled":true,"text":"P9","items":["P1","P2"],"selected":-1)"},
      {"frmMain.tabs", R"("type":"tabs","visible":true,"enabled":true,"tab":0)"},
      {"frmMain.chkOnSecondTab",
       R"("type":"checkbox","visible":false,"enabled":true,"caption":"","checked":0)"},
      {"frmMain.grid",
       R"("type":"grid","visible":true,"enabled":true,"rows":[["ID","Method"],["P1",""],["",""]],"row":1)"},
  };
  for (const auto& [control, properties] : expected) {
    EXPECT_EQ(sample.run.Get(control).dump(),
              std::string("{\"control\":\"") + control + "\"," + properties + "}");
  }
}

TEST(Get, TellsWhatTheChartShows) {
  SampleRun sample;
  Chart& chart = sample.frmMain.chart;
  chart.SetX({.minimum = 400, .maximum = 4000.1});
  chart.SetTitles("Wavenumber", "Absorbance");
  chart.SetSeries(0, {.title = "Standard", .x = {400, 400.25}, .y = {0.1, 1.0 / 3}});
  chart.SetLabel(Chart::kVerdictLabel, "PASS");
  chart.SetHeader({"Lot 7"});
  chart.SetMarkers({{.x = 1601.5, .text = "1601.5"}});
  chart.SetRegions({{.low = 2300, .high = 2400, .text = ""}});
  EXPECT_EQ(sample.run.Get("frmMain.chart").dump(),
            R"({"control":"frmMain.chart","type":"chart","visible":true,"enabled":true,)"
            R"("titles":{"x":"Wavenumber","Y":"Absorbance"},)"
            R"("axes":{"x":[400.0,4000.1],"Y":[0.0,1.0],"Y2":[0.0,1.0]},)"
            R"("series":[{"title":"Standard","points":2}],"labels":["","","","PASS"],"header":["Lot 7"],)"
            R"("markers":[1601.5],"regions":[[2300.0,2400.0]]})");
}

TEST(Get, GivesPointsAtFullPrecisionAndNullForWhatIsNoNumber) {
  SampleRun sample;
  const double third = 1.0 / 3;
  sample.frmMain.chart.SetSeries(
      0, {.title = "",
          .x = {400, 401, 402},
          .y = {third, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}});
  const ordered_json answer = ordered_json::parse(sample.run.Get("frmMain.chart points").dump());
  EXPECT_EQ(answer["series"][0]["points"], 3);
  EXPECT_EQ(answer["series"][0]["x"], ordered_json({400.0, 401.0, 402.0}));
  EXPECT_EQ(answer["series"][0]["y"][0].get<double>(), third);
  EXPECT_TRUE(answer["series"][0]["y"][1].is_null());
  EXPECT_TRUE(answer["series"][0]["y"][2].is_null());
  EXPECT_THROW(sample.run.Get("frmMain.grid points"), std::logic_error);
  EXPECT_THROW(sample.run.Get("frmMain.chart colours"), std::logic_error);
}

TEST(List, ShowsTheVisibleFormsAndTheirVisibleControls) {
  SampleRun sample;
  sample.frmMain.cmdGo.SetCaption("&Go");
  const ordered_json list = sample.Lines({"list"}).Last("list");
  ASSERT_EQ(list["forms"].size(), 1U);
  EXPECT_EQ(list["forms"][0]["name"], "frmMain");
  std::vector<std::string> names;
  for (const ordered_json& control : list["forms"][0]["controls"]) names.push_back(control["name"]);
  EXPECT_THAT(names, ::testing::ElementsAre("fraStart", "cmdGo", "txtNumber", "txtNotes", "txtReport",
                                            "txtPassword", "optOne", "optTwo", "chkPrint", "lstMethods",
                                            "cmbAlgorithm", "cmbProduct", "tabs", "grid", "chart"));
  EXPECT_EQ(list["forms"][0]["controls"][1].dump(),
            R"({"name":"cmdGo","type":"button","enabled":true,"caption":"&Go"})");
}

}  // namespace
}  // namespace veritane::platform
