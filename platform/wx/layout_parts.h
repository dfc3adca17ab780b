// The few patterns that the layouts are made of.
#pragma once

#include "platform/wx/form_builder.h"

#include <wx/sizer.h>

#include <initializer_list>

namespace veritane::platform {

// The space between unrelated things, and between things that belong together.
inline int WideGap(const wxWindow* window) {
  return FormBuilder::Line(window);
}
inline int Gap(const wxWindow* window) {
  return FormBuilder::Line(window) / 2;
}

// Makes the widget at least this wide, and a drop-down list high enough for its text.
void SetLeastWidth(wxWindow* widget, int width);
// Two columns: labels, and fields that take the width that is left.
wxFlexGridSizer* FieldTable(const wxWindow* window);
void AddField(wxFlexGridSizer* table, wxWindow* label, wxWindow* field, int least_width);
// Buttons of one width in a row.
wxSizer* ButtonRow(const wxWindow* window, std::initializer_list<wxWindow*> buttons);
// Buttons in a row that goes on in a second one where the window is too narrow, as it is with large fonts.
wxSizer* WrappingButtons(const wxWindow* window, std::initializer_list<wxWindow*> buttons);
// The buttons below one another.
wxSizer* ButtonColumn(const wxWindow* window, std::initializer_list<wxWindow*> buttons);
// The content with the room around it that a dialog has, and its buttons below on the right.
wxSizer* Dialog(const wxWindow* window, wxSizer* content, wxSizer* buttons);
// The content of a group with its caption's box around it.
void Fill(wxStaticBoxSizer* group, wxSizer* content);
// The content with room around it.
wxSizer* Padded(wxSizer* content, int gap);

}  // namespace veritane::platform
