// What all drawn controls share.
#include "platform/wx/control_view.h"

#include "platform/wx/spoken_name.h"
#include "platform/wx/wx_text.h"

namespace veritane::platform {

void ControlView::Connect(const std::shared_ptr<ControlView>& view, wxWindow* window) {
  view->window_ = window;
  const Control& control = view->control_;
  window->SetName(ToWx(control.Name()));
  if (!control.ToolTip().empty()) window->SetToolTip(ToWx(control.ToolTip()));
  view->ShowState();
  window->Enable(control.Enabled());
  window->Show(control.Visible());
  // The control may outlive its view.
  view->control_.Watch([weak = std::weak_ptr(view)](Property property) {
    const auto alive = weak.lock();
    if (!alive) return;
    alive->Follow(property);
    const bool is_content =
        property == Property::kCells || property == Property::kRow || property == Property::kChart;
    if (is_content) alive->Announce();
  });
}

void ControlView::Announce() {
  const std::string name = control_.SpokenName();
  const std::string content = control_.SpokenContent();
  if (name == told_name_ && content == told_content_) return;
  told_name_ = name;
  told_content_ = content;
  TellScreenReaders(*window_, ToWx(name), ToWx(content));
}

void ControlView::Follow(Property property) {
  switch (property) {
    case Property::kEnabled:
      window_->Enable(control_.Enabled());
      break;
    case Property::kVisible:
      window_->Show(control_.Visible());
      // What appears gets its place at once; the toolkit complains about windows without a size.
      window_->GetParent()->Layout();
      owner_.Arrange();
      break;
    case Property::kFocus:
      TakeFocus();
      break;
    default:
      ShowState();
      break;
  }
}

void ControlView::PressAccessKey() {
  TakeFocus();
}

void ControlView::TakeFocus() {
  window_->SetFocus();
}

}  // namespace veritane::platform
