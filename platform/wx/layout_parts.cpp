// Patterns of the layouts.
#include "platform/wx/layout_parts.h"

#include <algorithm>

namespace veritane::platform {

namespace {

void MakeEquallyWide(std::initializer_list<wxWindow*> buttons) {
  int width = 0;
  for (const wxWindow* button : buttons) width = std::max(width, button->GetBestSize().x);
  for (wxWindow* button : buttons) {
    const int padding = FormBuilder::Line(button);
    button->SetMinSize({std::max(width + padding, FormBuilder::Columns(button, 12)), -1});
  }
}

}  // namespace

void SetLeastWidth(wxWindow* widget, int width) {
  widget->SetMinSize({width, widget->GetMinSize().y});
}

wxFlexGridSizer* FieldTable(const wxWindow* window) {
  auto* table = new wxFlexGridSizer(2, Gap(window) * 5 / 4, WideGap(window));
  table->AddGrowableCol(1);
  return table;
}

void AddField(wxFlexGridSizer* table, wxWindow* label, wxWindow* field, int least_width) {
  SetLeastWidth(field, least_width);
  table->Add(label, wxSizerFlags().CentreVertical());
  table->Add(field, wxSizerFlags(1).Expand().CentreVertical());
}

wxSizer* ButtonRow(const wxWindow* window, std::initializer_list<wxWindow*> buttons) {
  MakeEquallyWide(buttons);
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  for (wxWindow* button : buttons) {
    if (row->GetItemCount() > 0) row->AddSpacer(Gap(window));
    row->Add(button, wxSizerFlags().ReserveSpaceEvenIfHidden());
  }
  return row;
}

wxSizer* ButtonColumn(const wxWindow* window, std::initializer_list<wxWindow*> buttons) {
  MakeEquallyWide(buttons);
  auto* column = new wxBoxSizer(wxVERTICAL);
  for (wxWindow* button : buttons) {
    if (column->GetItemCount() > 0) column->AddSpacer(Gap(window));
    column->Add(button, wxSizerFlags().Expand());
  }
  return column;
}

wxSizer* Dialog(const wxWindow* window, wxSizer* content, wxSizer* buttons) {
  auto* inside = new wxBoxSizer(wxVERTICAL);
  inside->Add(content, wxSizerFlags(1).Expand());
  if (buttons != nullptr) {
    inside->AddSpacer(WideGap(window));
    inside->Add(buttons, wxSizerFlags().Right());
  }
  return Padded(inside, WideGap(window));
}

wxSizer* Padded(wxSizer* content, int gap) {
  auto* outer = new wxBoxSizer(wxVERTICAL);
  outer->Add(content, wxSizerFlags(1).Expand().Border(wxALL, gap));
  return outer;
}

}  // namespace veritane::platform
