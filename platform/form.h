// A screen: its controls by name, shown or hidden, modal or not.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::platform {

class Control;
class Desktop;

// The form that tells what the program is doing: it comes and goes with the work.
inline constexpr std::string_view kStatusForm = "frmStatus";

class Form {
public:
  // Makes the form known to the desktop, hidden.
  Form(Desktop& desktop, std::string name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Desktop& Screen() const { return desktop_; }
  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  bool Shown() const { return shown_; }
  bool Modal() const { return modal_; }
  // Shows the form beside what is on screen. Showing raises Activate.
  void Show();
  // Shows the form over everything else and returns when it has been hidden.
  void ShowModal();
  void Hide();
  // The system menu's "close" or Alt+F4.
  void Close() { Form_QueryUnload(); }

  // In the order of their creation, which is the tab order.
  const std::vector<Control*>& Controls() const { return controls_; }
  // Names are compared without regard to case; nullptr when there is none of this name.
  Control* Find(const std::string& control_name) const;

  Control* Focused() const { return focused_; }
  // Called by the drawn view when the user moves the focus.
  void NoteFocus(Control* control) { focused_ = control; }

  // Called after the form was shown, hidden or given another caption.
  enum class Change { kShown, kHidden, kCaption };
  void Watch(std::function<void(Change)> watcher);

protected:
  // Runs each time the form is shown, after it became visible.
  virtual void Form_Activate() {}
  // Runs when the user closes the form by its system menu. A dialog hides unless it says otherwise.
  virtual void Form_QueryUnload() { Hide(); }

private:
  friend class Control;
  void BecomeVisible(bool modal);
  void Notify(Change change);

  Desktop& desktop_;
  const std::string name_;
  std::string caption_;
  bool shown_ = false;
  bool modal_ = false;
  std::vector<Control*> controls_;
  Control* focused_ = nullptr;
  // One may add another while it is called; that one is not called for the same change.
  std::deque<std::function<void(Change)>> watchers_;
};

}  // namespace veritane::platform
