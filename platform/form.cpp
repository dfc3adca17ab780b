// Forms: showing, hiding, finding controls.
#include "platform/form.h"

#include "platform/control.h"
#include "platform/desktop.h"
#include "platform/windows_path.h"

namespace veritane::platform {

Form::Form(Desktop& desktop, std::string name) : desktop_(desktop), name_(std::move(name)) {
  desktop_.forms_.push_back(this);
}

Form::~Form() {
  std::erase(desktop_.forms_, this);
}

void Form::SetCaption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Notify(Change::kCaption);
}

void Form::BecomeVisible(bool modal) {
  if (shown_) return;
  shown_ = true;
  modal_ = modal;
  Notify(Change::kShown);
}

void Form::Show() {
  if (shown_) return;
  BecomeVisible(false);
  Form_Activate();
}

void Form::ShowModal() {
  if (desktop_.Ended()) return;
  desktop_.modal_forms_.push_back(this);
  try {
    BecomeVisible(true);
    Form_Activate();
    if (shown_) desktop_.user_interface_.RunModal(*this);
  } catch (...) {
    std::erase(desktop_.modal_forms_, this);
    Hide();
    throw;
  }
  std::erase(desktop_.modal_forms_, this);
  Hide();
}

void Form::Hide() {
  if (!shown_) return;
  shown_ = false;
  Notify(Change::kHidden);
}

Control* Form::Find(const std::string& control_name) const {
  const std::string wanted = UpperCase(control_name);
  for (Control* control : controls_) {
    if (UpperCase(control->Name()) == wanted) return control;
  }
  return nullptr;
}

void Form::Watch(std::function<void(Change)> watcher) {
  watchers_.push_back(std::move(watcher));
}

void Form::Notify(Change change) {
  const std::size_t count = watchers_.size();
  for (std::size_t number = 0; number < count; ++number) watchers_[number](change);
}

}  // namespace veritane::platform
