// Text boxes and the combo boxes that can be typed into.
#pragma once

#include "platform/controls.h"
#include "platform/wx/control_view.h"

#include <wx/combobox.h>
#include <wx/textctrl.h>

namespace veritane::platform {

// What a text box and an editable combo box have in common: typed keys, text, highlighted part.
class TypedTextView : public ControlView {
public:
  TypedTextView(TextBox& box, ViewOwner& owner) : ControlView(box, owner), box_(box) {}

  void TakeFocus() override;
  void BringUpToDate() override;

protected:
  // `entry` is the text side of `widget`.
  void BindTo(wxWindow* widget, wxTextEntry* entry);
  void ShowState() override;
  void Follow(Property property) override;
  void ShowText();
  void ShowHighlight();

private:
  void OnChar(wxKeyEvent& event);
  void OnText();
  // Text positions count UTF-16 units on some systems, the program counts characters.
  int CharactersBefore(long position) const;
  long PositionOf(int characters) const;

  TextBox& box_;
  wxTextEntry* entry_ = nullptr;
  // The highlighted part is on its way from the widget to the box.
  bool is_reporting_ = false;
};

class TextBoxView : public TypedTextView {
public:
  TextBoxView(TextBox& box, ViewOwner& owner, wxWindow* parent);

  bool KeepsEnter() const override { return keeps_enter_; }
  wxTextCtrl* Widget() const { return widget_; }

private:
  wxTextCtrl* widget_;
  bool keeps_enter_;
};

class EditableComboView : public TypedTextView {
public:
  EditableComboView(ComboBox& combo, ViewOwner& owner, wxWindow* parent);

  bool KeepsEnter() const override { return is_open_; }
  wxComboBox* Widget() const { return widget_; }

protected:
  void ShowState() override;
  void Follow(Property property) override;

private:
  ComboBox& combo_;
  wxComboBox* widget_;
  bool is_open_ = false;
};

}  // namespace veritane::platform
