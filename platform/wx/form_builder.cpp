// From controls to widgets.
#include "platform/wx/form_builder.h"

#include "platform/wx/chart_panel.h"
#include "platform/wx/grid_view.h"
#include "platform/wx/text_views.h"
#include "platform/wx/wx_text.h"

#include <stdexcept>

namespace veritane::platform {

namespace {

// A view together with its widget, which views of different kinds keep under different types.
template <typename View, typename... Arguments>
std::shared_ptr<ControlView> Make(wxWindow*& widget, Arguments&&... arguments) {
  auto view = std::make_shared<View>(std::forward<Arguments>(arguments)...);
  widget = view->Widget();
  return view;
}

}  // namespace

Control& FormBuilder::Find(const std::string& name) const {
  Control* control = form_.Find(name);
  if (control == nullptr) throw std::logic_error(form_.Name() + " has no control " + name);
  if (views_.contains(control)) throw std::logic_error(form_.Name() + "." + name + " was laid out twice");
  return *control;
}

wxWindow* FormBuilder::Keep(std::shared_ptr<ControlView> view, wxWindow* widget) {
  ControlView::Connect(view, widget);
  views_.emplace(&view->Model(), std::move(view));
  return widget;
}

wxRadioButton* FormBuilder::NoneOf(wxWindow* parent) {
  wxRadioButton*& none = none_options_[parent];
  if (none == nullptr) {
    // It is never seen, so it need not be measured.
    none = new wxRadioButton(parent, wxID_ANY, "", wxDefaultPosition, wxSize(1, 1), wxRB_GROUP);
    none->Hide();
    none->SetValue(true);
  }
  return none;
}

std::shared_ptr<ControlView> FormBuilder::MakeView(Control& control, wxWindow* parent, wxWindow*& widget) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return Make<LabelView>(widget, static_cast<Label&>(control), owner_, parent, LabelView::Style::kPlain);
    case ControlKind::kButton:
      return Make<ButtonView>(widget, static_cast<Button&>(control), owner_, parent);
    case ControlKind::kOption:
      // The hidden option begins the group, so it is made first.
      return Make<OptionView>(widget, static_cast<OptionButton&>(control), owner_, parent, NoneOf(parent));
    case ControlKind::kCheckBox:
      return Make<CheckBoxView>(widget, static_cast<CheckBox&>(control), owner_, parent);
    case ControlKind::kTextBox:
      return Make<TextBoxView>(widget, static_cast<TextBox&>(control), owner_, parent);
    case ControlKind::kComboBox: {
      auto& combo = static_cast<ComboBox&>(control);
      if (combo.isEditable) return Make<EditableComboView>(widget, combo, owner_, parent);
      return Make<ChoiceView>(widget, combo, owner_, parent);
    }
    case ControlKind::kListBox:
      return Make<ListBoxView>(widget, static_cast<ListBox&>(control), owner_, parent,
                               ListBoxView::Choose::kOnMove);
    case ControlKind::kGrid:
      return Make<GridView>(widget, static_cast<Grid&>(control), owner_, parent);
    case ControlKind::kChart:
      return Make<ChartView>(widget, static_cast<Chart&>(control), owner_, parent);
    case ControlKind::kFrame:
    case ControlKind::kTabs:
      break;
  }
  throw std::logic_error(control.Name() + " is a container and has a call of its own");
}

wxWindow* FormBuilder::Add(const std::string& name, wxWindow* parent) {
  wxWindow* widget = nullptr;
  auto view = MakeView(Find(name), parent, widget);
  return Keep(std::move(view), widget);
}

wxWindow* FormBuilder::AddData(const std::string& name, wxWindow* parent) {
  wxWindow* widget = nullptr;
  auto view =
      Make<LabelView>(widget, dynamic_cast<Label&>(Find(name)), owner_, parent, LabelView::Style::kData);
  return Keep(std::move(view), widget);
}

wxWindow* FormBuilder::AddProse(const std::string& name, wxWindow* parent, int width) {
  wxWindow* widget = nullptr;
  auto view =
      Make<LabelView>(widget, dynamic_cast<Label&>(Find(name)), owner_, parent, LabelView::Style::kWrapped);
  static_cast<WrappingText*>(widget)->SetLineWidth(width);
  return Keep(std::move(view), widget);
}

wxWindow* FormBuilder::AddConfirmedList(const std::string& name, wxWindow* parent) {
  wxWindow* widget = nullptr;
  auto view = Make<ListBoxView>(widget, dynamic_cast<ListBox&>(Find(name)), owner_, parent,
                                ListBoxView::Choose::kOnConfirm);
  return Keep(std::move(view), widget);
}

wxStaticBoxSizer* FormBuilder::AddGroup(const std::string& name, wxWindow* parent) {
  auto& frame = dynamic_cast<Frame&>(Find(name));
  auto* sizer = new wxStaticBoxSizer(wxVERTICAL, parent, "");
  Keep(std::make_shared<FrameView>(frame, owner_, nullptr), sizer->GetStaticBox());
  return sizer;
}

FormBuilder::Panel FormBuilder::AddPanel(const std::string& name, wxWindow* parent) {
  auto& frame = dynamic_cast<Frame&>(Find(name));
  auto* panel = new wxPanel(parent);
  auto* heading = new wxStaticText(panel, wxID_ANY, "");
  heading->SetFont(heading->GetFont().Bold().Scaled(1.3F));
  Keep(std::make_shared<FrameView>(frame, owner_, heading), panel);
  return {panel, heading};
}

wxNotebook* FormBuilder::AddTabs(const std::string& name, wxWindow* parent) {
  auto& tabs = dynamic_cast<TabControl&>(Find(name));
  wxWindow* widget = nullptr;
  auto view = Make<TabsView>(widget, tabs, owner_, parent);
  return static_cast<wxNotebook*>(Keep(std::move(view), widget));
}

wxGauge* FormBuilder::AddGauge(wxWindow* parent) {
  gauge_ = new wxGauge(parent, wxID_ANY, 100);
  return gauge_;
}

std::vector<Control*> FormBuilder::Remaining() const {
  std::vector<Control*> remaining;
  for (Control* control : form_.Controls()) {
    if (!views_.contains(control)) remaining.push_back(control);
  }
  return remaining;
}

std::vector<std::shared_ptr<ControlView>> FormBuilder::TakeViews() {
  std::vector<std::shared_ptr<ControlView>> views;
  for (const Control* control : form_.Controls()) {
    const auto found = views_.find(control);
    if (found != views_.end()) views.push_back(found->second);
  }
  views_.clear();
  return views;
}

}  // namespace veritane::platform
