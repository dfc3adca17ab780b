// Controls: the part they have in common.
#include "platform/control.h"

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::platform {

Control::Control(Form& form, std::string name, ControlKind kind)
    : form_(form), name_(std::move(name)), kind_(kind) {
  form_.controls_.push_back(this);
}

void Control::SetCaption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Changed(Property::kCaption);
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Changed(Property::kEnabled);
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Changed(Property::kVisible);
}

void Control::PlaceIn(Frame& frame) {
  frame_ = &frame;
  tabs_ = nullptr;
}

void Control::PlaceIn(TabControl& tabs, int page) {
  frame_ = nullptr;
  tabs_ = &tabs;
  page_ = page;
}

bool Control::IsShown() const {
  if (!visible_ || !form_.Shown()) return false;
  if (frame_ != nullptr) return frame_->IsShown();
  if (tabs_ != nullptr) return tabs_->Tab() == page_ && tabs_->IsShown();
  return true;
}

bool Control::IsUsable() const {
  if (!enabled_ || !IsShown()) return false;
  if (frame_ != nullptr) return frame_->IsUsable();
  if (tabs_ != nullptr) return tabs_->IsUsable();
  return true;
}

void Control::SetFocus() {
  form_.NoteFocus(this);
  Changed(Property::kFocus);
}

bool Control::HasFocus() const {
  return form_.Focused() == this;
}

void Control::Watch(std::function<void(Property)> watcher) {
  watchers_.push_back(std::move(watcher));
}

void Control::Changed(Property property) {
  for (const auto& watcher : watchers_) watcher(property);
}

}  // namespace veritane::platform
