// Choosing from lists.
#include "platform/wx/list_views.h"

#include "platform/wx/wx_text.h"

namespace veritane::platform {

ListBoxView::ListBoxView(ListBox& list, ViewOwner& owner, wxWindow* parent, Choose choose)
    : ControlView(list, owner),
      list_(list),
      choose_(choose),
      widget_(new wxListBox(parent, wxID_ANY, wxDefaultPosition, wxSize(100, 100), 0, nullptr,
                            wxLB_SINGLE | wxLB_HSCROLL | wxLB_NEEDED_SB)) {
  if (choose == Choose::kOnMove) {
    widget_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) {
      has_reported_ = true;
      Select(event.GetSelection());
    });
  } else {
    // GTK's list keeps Enter for itself and reports it like a double click.
    widget_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent& event) { Select(event.GetSelection()); });
  }
  widget_->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent& event) {
    has_reported_ = false;
    event.Skip();
  });
  widget_->Bind(wxEVT_LEFT_UP, &ListBoxView::OnMouseUp, this);
  widget_->Bind(wxEVT_KEY_DOWN, &ListBoxView::OnKey, this);
}

// A click on the entry that is selected already chooses it once more, which the widget does not report.
void ListBoxView::OnMouseUp(wxMouseEvent& event) {
  event.Skip();
  const int index = widget_->HitTest(event.GetPosition());
  if (index == wxNOT_FOUND || has_reported_) return;
  // The widget finishes its own work first.
  widget_->CallAfter([this, index] {
    if (index == widget_->GetSelection()) Select(index);
  });
}

void ListBoxView::OnKey(wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  const bool is_confirming = key == WXK_RETURN || key == WXK_NUMPAD_ENTER || key == WXK_SPACE;
  if (choose_ == Choose::kOnConfirm && is_confirming) {
    Select(widget_->GetSelection());
  } else {
    event.Skip();
  }
}

void ListBoxView::Select(int index) {
  if (index >= 0 && index < list_.Count()) Perform([&] { list_.Select(index); });
  ShowSelection();
}

void ListBoxView::ShowState() {
  widget_->Set(ToWx(list_.Items()));
  ShowSelection();
}

void ListBoxView::ShowSelection() {
  if (widget_->GetSelection() == list_.Selected()) return;
  widget_->SetSelection(list_.Selected());
  if (list_.Selected() >= 0) widget_->EnsureVisible(list_.Selected());
}

void ListBoxView::Follow(Property property) {
  if (property == Property::kSelected) {
    ShowSelection();
  } else {
    ControlView::Follow(property);
  }
}

ChoiceView::ChoiceView(ComboBox& combo, ViewOwner& owner, wxWindow* parent)
    : ControlView(combo, owner), combo_(combo), widget_(new wxChoice(parent, wxID_ANY)) {
  widget_->Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
    const int index = event.GetSelection();
    if (index >= 0 && index < combo_.Count()) Perform([&] { combo_.Select(index); });
    ShowSelection();
  });
  // Turning the wheel over a closed list must not choose another entry unseen.
  widget_->Bind(wxEVT_MOUSEWHEEL, [](wxMouseEvent&) {});
}

void ChoiceView::ShowState() {
  widget_->Set(ToWx(combo_.Items()));
  ShowSelection();
}

void ChoiceView::ShowSelection() {
  if (widget_->GetSelection() != combo_.Selected()) widget_->SetSelection(combo_.Selected());
}

void ChoiceView::Follow(Property property) {
  if (property == Property::kSelected || property == Property::kText) {
    ShowSelection();
  } else {
    ControlView::Follow(property);
  }
}

}  // namespace veritane::platform
