// A form as a window: the main form a frame, the others dialogs. Holds the views of its controls and gives
// the keyboard its meaning: Enter, Escape and access keys.
#pragma once

#include "platform/form.h"
#include "platform/wx/action_gate.h"
#include "platform/wx/control_view.h"

#include <wx/toplevel.h>

#include <memory>
#include <vector>

class wxGauge;

namespace veritane::platform {

class FormWindow : private ViewOwner {
public:
  // `main_window` is the window that dialogs lie over; nullptr for the main window itself.
  FormWindow(Form& form, ActionGate& gate, wxWindow* main_window);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  const Form& Model() const { return form_; }
  wxTopLevelWindow* Window() const { return window_; }

  // Returns when the form has been hidden.
  void RunModal();
  void EndModal();
  // Shows that the program is alive.
  void Pulse();

private:
  bool Perform(const std::function<void()>& action) override;
  void Arrange() override;

  void BuildControls();
  void AppendRemaining(class FormBuilder& builder, wxSizer* sizer);
  void FollowPanels();
  void FollowNames();
  void Announce();
  void FitToContent();
  wxSize LargestSize() const;
  void Follow(Form::Change change);
  void Appear();
  void PlaceBeside(const wxRect& main_window);
  void FocusFirst(const Control* panel);

  void OnClose(wxCloseEvent& event);
  void OnChildFocus(wxChildFocusEvent& event);
  void OnCharHook(wxKeyEvent& event);
  bool OnEnter();
  bool OnEscape();
  bool OnAccessKey(wxUniChar letter);
  bool PressAccessKey(ControlView& view, wxUniChar letter);

  ControlView* ViewOf(const Control* control) const;
  ControlView* FocusedView() const;

  Form& form_;
  ActionGate& gate_;
  const bool is_main_;
  const bool is_status_;
  wxTopLevelWindow* window_;
  wxWindow* root_;
  wxGauge* gauge_ = nullptr;
  std::vector<std::shared_ptr<ControlView>> views_;
  bool is_built_ = false;
  bool is_arranging_ = false;
  // The form and its controls may outlive this window; their watchers ask this whether it is still there.
  std::shared_ptr<FormWindow*> alive_;
};

}  // namespace veritane::platform
