// Labels, buttons, options, check boxes, frames and tabs.
#include "platform/wx/simple_views.h"

#include "platform/form.h"
#include "platform/wx/wx_text.h"

#include <wx/panel.h>

namespace veritane::platform {

LabelView::LabelView(Label& label, ViewOwner& owner, wxWindow* parent, Style style)
    : ControlView(label, owner), style_(style) {
  if (style == Style::kWrapped) {
    widget_ = new WrappingText(parent);
  } else {
    const long look = style == Style::kData ? wxST_ELLIPSIZE_MIDDLE | wxST_NO_AUTORESIZE : 0;
    widget_ = new wxStaticText(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, look);
  }
}

void LabelView::ShowState() {
  const wxString text = ToWx(Model().Caption());
  if (style_ == Style::kWrapped) {
    static_cast<WrappingText*>(widget_)->SetText(text);
  } else if (style_ == Style::kData) {
    // Data may hold "&"; what does not fit is readable in the tip.
    widget_->SetLabelText(text);
    widget_->SetToolTip(text);
  } else {
    widget_->SetLabel(text);
  }
  Owner().Arrange();
}

ButtonView::ButtonView(Button& button, ViewOwner& owner, wxWindow* parent)
    : ControlView(button, owner),
      button_(button),
      widget_(new wxButton(parent, wxID_ANY, ToWx(button.Caption()))) {
  widget_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Click(); });
}

void ButtonView::ShowState() {
  widget_->SetLabel(ToWx(button_.Caption()));
  Owner().Arrange();
}

void ButtonView::PressAccessKey() {
  widget_->SetFocus();
  Click();
}

void ButtonView::Click() {
  Perform([this] { button_.Click(); });
}

OptionView::OptionView(OptionButton& option, ViewOwner& owner, wxWindow* parent, wxRadioButton* none)
    : ControlView(option, owner),
      option_(option),
      widget_(new wxRadioButton(parent, wxID_ANY, ToWx(option.Caption()))),
      none_(none) {
  widget_->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { Check(); });
}

void OptionView::ShowState() {
  widget_->SetLabel(ToWx(option_.Caption()));
  if (option_.Checked()) {
    widget_->SetValue(true);
  } else if (widget_->GetValue()) {
    none_->SetValue(true);
  }
}

void OptionView::PressAccessKey() {
  widget_->SetFocus();
  Check();
}

void OptionView::Check() {
  Perform([this] { option_.Check(); });
  // The handler may have checked another one, or the action was refused.
  ShowState();
}

CheckBoxView::CheckBoxView(CheckBox& box, ViewOwner& owner, wxWindow* parent)
    : ControlView(box, owner), box_(box), widget_(new wxCheckBox(parent, wxID_ANY, ToWx(box.Caption()))) {
  widget_->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { Toggle(); });
}

void CheckBoxView::ShowState() {
  widget_->SetLabel(ToWx(box_.Caption()));
  widget_->SetValue(box_.Checked());
}

void CheckBoxView::PressAccessKey() {
  widget_->SetFocus();
  Toggle();
}

void CheckBoxView::Toggle() {
  Perform([this] { box_.SetChecked(!box_.Checked()); });
  widget_->SetValue(box_.Checked());
}

void FrameView::ShowState() {
  (heading_ != nullptr ? heading_ : Window())->SetLabel(ToWx(Model().Caption()));
  Owner().Arrange();
}

TabsView::TabsView(TabControl& tabs, ViewOwner& owner, wxWindow* parent)
    : ControlView(tabs, owner),
      tabs_(tabs),
      widget_(new wxNotebook(parent, wxID_ANY, wxDefaultPosition, wxSize(200, 100))) {
  for (int page = 0; page < tabs.PageCount(); ++page) {
    widget_->AddPage(new wxPanel(widget_), ToWx(tabs.PageCaption(page)));
  }
  widget_->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this](wxBookCtrlEvent& event) {
    event.Skip();
    // Pages of a notebook inside a page would report here too.
    if (event.GetEventObject() == widget_) Turn(event.GetSelection());
  });
}

void TabsView::ShowState() {
  for (int page = 0; page < tabs_.PageCount(); ++page) {
    const auto index = static_cast<std::size_t>(page);
    const wxString caption = ToWx(tabs_.PageCaption(page));
    if (widget_->GetPageText(index) != wxControl::RemoveMnemonics(caption))
      widget_->SetPageText(index, caption);
  }
  if (tabs_.PageCount() > 0 && widget_->GetSelection() != tabs_.Tab()) {
    widget_->ChangeSelection(static_cast<std::size_t>(tabs_.Tab()));
  }
}

void TabsView::Turn(int page) {
  if (page < 0 || page == tabs_.Tab()) return;
  Perform([this, page] { tabs_.SetTab(page); });
  // The program may have turned back, or the action was refused. The widget is still busy turning: once more
  // after it.
  ShowState();
  widget_->CallAfter([this] { ShowState(); });
}

bool TabsView::PressPageKey(wxUniChar letter) {
  for (int page = 0; page < tabs_.PageCount(); ++page) {
    if (page == tabs_.Tab() || !HasAccessKey(tabs_.PageCaption(page), letter)) continue;
    widget_->SetFocus();
    Turn(page);
    return true;
  }
  return false;
}

}  // namespace veritane::platform
