// Labels, buttons, options, check boxes, frames and tabs as they are drawn.
#pragma once

#include "platform/controls.h"
#include "platform/wx/control_view.h"
#include "platform/wx/wrapping_text.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>

namespace veritane::platform {

class LabelView : public ControlView {
public:
  // kPlain for captions; kData for names and paths, cut in the middle when they are too long; kWrapped for
  // prose.
  enum class Style { kPlain, kData, kWrapped };
  LabelView(Label& label, ViewOwner& owner, wxWindow* parent, Style style);

  bool CanTakeFocus() const override { return false; }
  wxStaticText* Widget() const { return widget_; }

protected:
  void ShowState() override;

private:
  Style style_;
  wxStaticText* widget_;
};

class ButtonView : public ControlView {
public:
  ButtonView(Button& button, ViewOwner& owner, wxWindow* parent);

  void PressAccessKey() override;
  wxButton* Widget() const { return widget_; }

protected:
  void ShowState() override;

private:
  void Click();

  Button& button_;
  wxButton* widget_;
};

class OptionView : public ControlView {
public:
  // `none` is the hidden widget of the group that is on while no option is checked.
  OptionView(OptionButton& option, ViewOwner& owner, wxWindow* parent, wxRadioButton* none);

  void PressAccessKey() override;
  wxRadioButton* Widget() const { return widget_; }

protected:
  void ShowState() override;

private:
  void Check();

  OptionButton& option_;
  wxRadioButton* widget_;
  wxRadioButton* none_;
};

class CheckBoxView : public ControlView {
public:
  CheckBoxView(CheckBox& box, ViewOwner& owner, wxWindow* parent);

  void PressAccessKey() override;
  wxCheckBox* Widget() const { return widget_; }

protected:
  void ShowState() override;

private:
  void Toggle();

  CheckBox& box_;
  wxCheckBox* widget_;
};

// A frame: a box with its caption on the border, or a whole panel with the caption as its heading.
class FrameView : public ControlView {
public:
  // `heading` shows the caption; without one the window itself does.
  FrameView(Frame& frame, ViewOwner& owner, wxStaticText* heading)
      : ControlView(frame, owner), heading_(heading) {}

  bool CanTakeFocus() const override { return false; }

protected:
  void ShowState() override;

private:
  wxStaticText* heading_;
};

class TabsView : public ControlView {
public:
  TabsView(TabControl& tabs, ViewOwner& owner, wxWindow* parent);

  // Brings the page with this access key to the front; false when no page behind has it.
  bool PressPageKey(wxUniChar letter);
  wxNotebook* Widget() const { return widget_; }

protected:
  void ShowState() override;

private:
  void Turn(int page);

  TabControl& tabs_;
  wxNotebook* widget_;
};

}  // namespace veritane::platform
