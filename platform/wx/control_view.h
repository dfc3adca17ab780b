// A control as it is drawn: follows what the program changes and passes on what the user does.
#pragma once

#include "platform/control.h"

#include <wx/window.h>

#include <functional>
#include <memory>
#include <string>

namespace veritane::platform {

// What a view needs of the window that it lies on.
class ViewOwner {
public:
  virtual ~ViewOwner() = default;
  // Runs something the user did; false when it was refused.
  virtual bool Perform(const std::function<void()>& action) = 0;
  // Something needs more or less room now.
  virtual void Arrange() = 0;
};

class ControlView {
public:
  ControlView(Control& control, ViewOwner& owner) : control_(control), owner_(owner) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  // Makes the view of `window` follow its control for as long as `view` lives.
  static void Connect(const std::shared_ptr<ControlView>& view, wxWindow* window);

  Control& Model() const { return control_; }
  wxWindow* Window() const { return window_; }

  // The user pressed the control's access key.
  virtual void PressAccessKey();
  // Where the keyboard goes when the control takes it.
  virtual void TakeFocus();
  virtual bool CanTakeFocus() const { return true; }
  // Tells the control what is known only when it is asked for, such as the highlighted part of a text.
  virtual void BringUpToDate() {}
  // Tells screen readers name and content as they are now.
  void Announce();
  // Whether Enter belongs to the widget itself, such as in a text of several lines or an open list.
  virtual bool KeepsEnter() const { return false; }

protected:
  // Shows the control's present state, all of it or what belongs to one property.
  virtual void ShowState() = 0;
  virtual void Follow(Property property);

  bool Perform(const std::function<void()>& action) { return owner_.Perform(action); }
  ViewOwner& Owner() const { return owner_; }

private:
  Control& control_;
  ViewOwner& owner_;
  wxWindow* window_ = nullptr;
  std::string told_name_;
  std::string told_content_;
};

}  // namespace veritane::platform
