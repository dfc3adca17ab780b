// Patterns of the layouts.
#include "platform/wx/layout_parts.h"

#include <wx/choice.h>
#include <wx/wrapsizer.h>

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
  int height = widget->GetMinSize().y;
  // A drop-down list knows its height only once it has been on screen, which is too late for a large font.
  if (dynamic_cast<wxChoice*>(widget) != nullptr) {
    height = std::max(widget->GetBestSize().y, FormBuilder::Line(widget) * 3 / 2);
  }
  widget->SetMinSize({width, height});
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

wxSizer* WrappingButtons(const wxWindow* window, std::initializer_list<wxWindow*> buttons) {
  auto* rows = new wxWrapSizer(wxHORIZONTAL, wxREMOVE_LEADING_SPACES);
  for (wxWindow* button : buttons) {
    rows->Add(button, wxSizerFlags().Border(wxRIGHT | wxBOTTOM, Gap(window)));
  }
  return rows;
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

void Fill(wxStaticBoxSizer* group, wxSizer* content) {
  group->Add(content, wxSizerFlags(1).Expand().Border(wxALL, Gap(group->GetStaticBox())));
}

wxSizer* Padded(wxSizer* content, int gap) {
  auto* outer = new wxBoxSizer(wxVERTICAL);
  outer->Add(content, wxSizerFlags(1).Expand().Border(wxALL, gap));
  return outer;
}

}  // namespace veritane::platform
