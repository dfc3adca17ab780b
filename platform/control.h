// What every control of a form has in common. A control is a value with events; it knows nothing of a
// toolkit.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace veritane::platform {

class Form;
class Frame;
class TabControl;

enum class ControlKind {
  kLabel,
  kButton,
  kOption,
  kCheckBox,
  kTextBox,
  kComboBox,
  kListBox,
  kFrame,
  kTabs,
  kGrid,
  kChart
};

// What changed on a control; the drawn view and the console watch for it.
enum class Property {
  kCaption,
  kText,
  kEnabled,
  kVisible,
  kChecked,
  kItems,      // entries of a list or combo box
  kSelected,   // selected entry of a list or combo box
  kHighlight,  // selected part of a text
  kTab,
  kCells,  // content or size of a grid
  kRow,
  kFocus,
  kChart,
};

// Setting a property in code raises the same event as the user's hand does. The setters here change nothing
// and raise nothing when the value is already there.
class Control {
public:
  // Registers the control with its form under `name`.
  Control(Form& form, std::string name, ControlKind kind);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& Owner() const { return form_; }
  const std::string& Name() const { return name_; }
  ControlKind Kind() const { return kind_; }

  // Labels, buttons, options, check boxes and frames have one; "&" marks the access key.
  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);

  // Puts the control into a frame, or onto one page of a tab control. A control in neither lies on the form
  // itself.
  void PlaceIn(Frame& frame);
  void PlaceIn(TabControl& tabs, int page);
  const Frame* EnclosingFrame() const { return frame_; }

  // Whether the user could see it: visible, as is everything around it, on the tab in front, on a form that
  // shows.
  bool IsShown() const;
  // Whether the user could use it: shown, and enabled as is everything around it.
  bool IsUsable() const;

  void SetFocus();
  bool HasFocus() const;

  // The text that appears when the pointer rests on the control.
  const std::string& ToolTip() const { return tool_tip_; }
  void SetToolTip(const std::string& text) { tool_tip_ = text; }

  // What a screen reader calls the control: its caption without the access key's mark. A control without a
  // caption goes by that of the label or option just before it in the same place, which is how fields are
  // named on screen, or else by what it lies in.
  std::string SpokenName() const;
  // The control that the name comes from, which may be this one; nullptr for a page's or the form's caption.
  const Control* NamedBy() const;
  // What a screen reader says beyond that of a control whose content is drawn; "" for all others.
  virtual std::string SpokenContent() const { return {}; }

  // Calls `watcher` after each change from now on, before the control's own event. Watchers stay for good.
  void Watch(std::function<void(Property)> watcher);

protected:
  void Changed(Property property);

private:
  Form& form_;
  const std::string name_;
  const ControlKind kind_;
  std::string caption_;
  std::string tool_tip_;
  bool enabled_ = true;
  bool visible_ = true;
  const Frame* frame_ = nullptr;
  const TabControl* tabs_ = nullptr;
  int page_ = 0;
  std::vector<std::function<void(Property)>> watchers_;
};

}  // namespace veritane::platform
