// Lists to choose from: list boxes, and combo boxes that take only their entries.
#pragma once

#include "platform/controls.h"
#include "platform/wx/control_view.h"

#include <wx/choice.h>
#include <wx/listbox.h>

namespace veritane::platform {

class ListBoxView : public ControlView {
public:
  // With kOnMove each entry that the user moves to is chosen. With kOnConfirm a click or Enter chooses, so
  // that the arrow keys can walk through a list whose choice closes the dialog.
  enum class Choose { kOnMove, kOnConfirm };
  ListBoxView(ListBox& list, ViewOwner& owner, wxWindow* parent, Choose choose);

  bool KeepsEnter() const override { return choose_ == Choose::kOnConfirm; }
  wxListBox* Widget() const { return widget_; }

protected:
  void ShowState() override;
  void Follow(Property property) override;

private:
  void OnMouseUp(wxMouseEvent& event);
  void OnKey(wxKeyEvent& event);
  void Select(int index);
  void ShowSelection();

  ListBox& list_;
  const Choose choose_;
  wxListBox* widget_;
  // Whether the widget has reported a choice since the mouse button went down.
  bool has_reported_ = false;
};

class ChoiceView : public ControlView {
public:
  ChoiceView(ComboBox& combo, ViewOwner& owner, wxWindow* parent);

  wxChoice* Widget() const { return widget_; }

protected:
  void ShowState() override;
  void Follow(Property property) override;

private:
  void ShowSelection();

  ComboBox& combo_;
  wxChoice* widget_;
};

}  // namespace veritane::platform
