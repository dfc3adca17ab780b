// Controls, forms and dialogs as JSON.
#include "platform/scripted/control_report.h"

#include "platform/chart.h"
#include "platform/controls.h"
#include "platform/grid.h"
#include "platform/utf8.h"

namespace veritane::platform {

namespace {

using nlohmann::ordered_json;

ordered_json LimitsOf(const AxisLimits& limits) {
  return ordered_json::array({limits.minimum, limits.maximum});
}

ordered_json SeriesOf(const Chart& chart, bool points) {
  ordered_json list = ordered_json::array();
  for (const ChartSeries& series : chart.Series()) {
    ordered_json entry = {{"title", series.title}, {"points", series.y.size()}};
    if (points) {
      entry["x"] = series.x;
      entry["y"] = series.y;
    }
    list.push_back(std::move(entry));
  }
  return list;
}

void DescribeChart(const Chart& chart, bool points, ordered_json& report) {
  report["titles"] = {{"x", chart.XTitle()}, {"Y", chart.YTitle()}};
  report["axes"] = {{"x", LimitsOf(chart.X())}, {"Y", LimitsOf(chart.Y())}, {"Y2", LimitsOf(chart.Y2())}};
  report["series"] = SeriesOf(chart, points);
  report["labels"] = chart.Labels();
  report["header"] = chart.Header();
  report["markers"] = ordered_json::array();
  for (const ChartMarker& marker : chart.Markers()) report["markers"].push_back(marker.x);
  report["regions"] = ordered_json::array();
  for (const ChartRegion& region : chart.Regions()) {
    report["regions"].push_back(ordered_json::array({region.low, region.high}));
  }
}

void DescribeItems(const ItemList& list, ordered_json& report) {
  report["items"] = list.Items();
  report["selected"] = list.Selected();
}

std::string TextOnScreen(const TextBox& box) {
  return box.isSecret ? std::string(CharacterCount(box.Text()), '*') : box.Text();
}

// Adds what a control of its kind has beside what all have.
void DescribeKind(const Control& control, bool points, ordered_json& report) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
    case ControlKind::kButton:
    case ControlKind::kFrame:
      report["caption"] = control.Caption();
      break;
    case ControlKind::kOption:
      report["caption"] = control.Caption();
      report["checked"] = static_cast<const OptionButton&>(control).Checked();
      break;
    case ControlKind::kCheckBox:
      report["caption"] = control.Caption();
      report["checked"] = static_cast<const CheckBox&>(control).Value();
      break;
    case ControlKind::kTextBox:
      report["text"] = TextOnScreen(static_cast<const TextBox&>(control));
      break;
    case ControlKind::kComboBox:
      report["text"] = TextOnScreen(static_cast<const TextBox&>(control));
      DescribeItems(static_cast<const ComboBox&>(control), report);
      break;
    case ControlKind::kListBox:
      DescribeItems(static_cast<const ListBox&>(control), report);
      break;
    case ControlKind::kTabs:
      report["tab"] = static_cast<const TabControl&>(control).Tab();
      break;
    case ControlKind::kGrid:
      report["rows"] = static_cast<const Grid&>(control).Rows();
      report["row"] = static_cast<const Grid&>(control).Row();
      break;
    case ControlKind::kChart:
      DescribeChart(static_cast<const Chart&>(control), points, report);
      break;
  }
}

std::string IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical:
      return "critical";
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kInformation:
      return "information";
    case MessageIcon::kQuestion:
      return "question";
    case MessageIcon::kNone:
      break;
  }
  return "none";
}

}  // namespace

std::string FullName(const Control& control) {
  return control.Owner().Name() + "." + control.Name();
}

std::string TypeName(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return "label";
    case ControlKind::kButton:
      return "button";
    case ControlKind::kOption:
      return "option";
    case ControlKind::kCheckBox:
      return "checkbox";
    case ControlKind::kTextBox:
      return "textbox";
    case ControlKind::kComboBox:
      return "combobox";
    case ControlKind::kListBox:
      return "listbox";
    case ControlKind::kFrame:
      return "frame";
    case ControlKind::kTabs:
      return "tabs";
    case ControlKind::kGrid:
      return "grid";
    case ControlKind::kChart:
      break;
  }
  return "chart";
}

ordered_json DescribeControl(const Control& control, bool points) {
  ordered_json report = {{"control", FullName(control)},
                         {"type", TypeName(control)},
                         {"visible", control.IsShown()},
                         {"enabled", control.Enabled()}};
  DescribeKind(control, points, report);
  return report;
}

ordered_json DescribeScreen(const Desktop& desktop) {
  ordered_json forms = ordered_json::array();
  for (const Form* form : desktop.Forms()) {
    if (!form->Shown()) continue;
    ordered_json controls = ordered_json::array();
    for (const Control* control : form->Controls()) {
      if (!control->IsShown()) continue;
      ordered_json entry = {
          {"name", control->Name()}, {"type", TypeName(*control)}, {"enabled", control->Enabled()}};
      if (!control->Caption().empty()) entry["caption"] = control->Caption();
      controls.push_back(std::move(entry));
    }
    forms.push_back({{"name", form->Name()},
                     {"caption", form->Caption()},
                     {"modal", form->Modal()},
                     {"controls", std::move(controls)}});
  }
  return {{"event", "list"}, {"forms", std::move(forms)}};
}

ordered_json MessageEvent(const Message& message) {
  ordered_json buttons = ordered_json::array();
  for (const MessageAnswer button : ButtonsOf(message.buttons)) buttons.push_back(ButtonText(button));
  return {{"event", "message"},
          {"title", message.title},
          {"text", message.text},
          {"icon", IconName(message.icon)},
          {"buttons", std::move(buttons)}};
}

ordered_json FileDialogEvent(const FileChoice& choice) {
  return {{"event", "file-dialog"},
          {"title", choice.title},
          {"filter", choice.filter},
          {"folder", choice.folder}};
}

ordered_json FormEvent(const Form& form) {
  return {{"event", "form"},
          {"name", form.Name()},
          {"caption", form.Caption()},
          {"shown", form.Shown()},
          {"modal", form.Modal()}};
}

std::string DialogName(const Message& message) {
  return "message box \"" + (message.title.empty() ? message.text : message.title) + "\"";
}

std::string DialogName(const FileChoice& choice) {
  return "file chooser \"" + (choice.title.empty() ? choice.filter : choice.title) + "\"";
}

std::string ButtonText(MessageAnswer button) {
  switch (button) {
    case MessageAnswer::kOk:
      return "OK";
    case MessageAnswer::kCancel:
      return "Cancel";
    case MessageAnswer::kYes:
      return "Yes";
    case MessageAnswer::kNo:
      break;
  }
  return "No";
}

}  // namespace veritane::platform
