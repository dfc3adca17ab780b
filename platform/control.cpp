// Controls: the part they have in common.
#include "platform/control.h"

#include "platform/controls.h"
#include "platform/form.h"

#include <algorithm>

namespace veritane::platform {

namespace {

std::string WithoutAccessKey(const std::string& caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    // "&&" stands for one that is to be seen.
    if (caption[i] == '&' && ++i == caption.size()) break;
    text += caption[i];
  }
  return text;
}

}  // namespace

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

const Control* Control::NamedBy() const {
  if (!caption_.empty() || kind_ == ControlKind::kLabel) return this;
  const auto& controls = form_.Controls();
  const auto place = std::find(controls.begin(), controls.end(), this);
  if (place != controls.begin() && place != controls.end()) {
    const Control& before = **std::prev(place);
    const bool is_namer = before.kind_ == ControlKind::kLabel || before.kind_ == ControlKind::kOption;
    if (is_namer && !before.caption_.empty() && before.frame_ == frame_ && before.tabs_ == tabs_ &&
        before.page_ == page_)
      return &before;
  }
  return frame_ == nullptr ? nullptr : frame_->NamedBy();
}

std::string Control::SpokenName() const {
  if (const Control* namer = NamedBy()) return WithoutAccessKey(namer->Caption());
  return WithoutAccessKey(tabs_ == nullptr ? form_.Caption() : tabs_->PageCaption(page_));
}

void Control::Watch(std::function<void(Property)> watcher) {
  watchers_.push_back(std::move(watcher));
}

void Control::Changed(Property property) {
  for (const auto& watcher : watchers_) watcher(property);
}

}  // namespace veritane::platform
