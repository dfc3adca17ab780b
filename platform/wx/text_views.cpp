// Typing: each key is offered to the program before it reaches the box, each change is passed on after it
// did.
#include "platform/wx/text_views.h"

#include "platform/form.h"
#include "platform/utf8.h"
#include "platform/wx/wx_text.h"

namespace veritane::platform {

namespace {

// Widgets break lines with a line feed alone.
wxString ShownText(const std::string& text) {
  wxString shown = ToWx(text);
  shown.Replace("\r\n", "\n");
  return shown;
}

long StyleOf(const TextBox& box) {
  long style = 0;
  if (box.isSecret) style |= wxTE_PASSWORD;
  if (box.isMultiLine) style |= wxTE_MULTILINE;
  if (box.isReadOnly) style |= wxTE_READONLY;
  return style;
}

// With a large font GTK asks for less than the letters need.
int EntryHeight(const wxWindow* widget) {
  return widget->GetCharHeight() * 9 / 5;
}

}  // namespace

void TypedTextView::BindTo(wxWindow* widget, wxTextEntry* entry) {
  entry_ = entry;
  widget->Bind(wxEVT_CHAR, &TypedTextView::OnChar, this);
  widget->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { OnText(); });
  const auto note_highlight = [this](auto& event) {
    event.Skip();
    BringUpToDate();
  };
  widget->Bind(wxEVT_LEFT_UP, note_highlight);
  widget->Bind(wxEVT_KEY_UP, note_highlight);
  widget->Bind(wxEVT_KILL_FOCUS, note_highlight);
}

void TypedTextView::OnChar(wxKeyEvent& event) {
  const int key = event.GetUnicodeKey();
  // Enter and Escape come by way of the form; other control characters are commands such as Paste.
  const bool is_typed = key == kBackspaceKey || key >= ' ';
  if (!is_typed || key == WXK_DELETE || !box_.OnKeyPress) {
    event.Skip();
    return;
  }
  bool is_allowed = false;
  Perform([&] { is_allowed = box_.KeyPress(key); });
  event.Skip(is_allowed);
}

void TypedTextView::OnText() {
  const wxString text = entry_->GetValue();
  if (text == ShownText(box_.Text())) return;
  Perform([&] { box_.SetText(FromWx(text)); });
  // The box may have refused the text, or dropped a part of it.
  ShowText();
}

void TypedTextView::ShowText() {
  const wxString text = ShownText(box_.Text());
  if (entry_->GetValue() == text) return;
  entry_->ChangeValue(text);
  if (!box_.isMultiLine) entry_->SetInsertionPointEnd();
}

void TypedTextView::ShowState() {
  ShowText();
  ShowHighlight();
}

void TypedTextView::ShowHighlight() {
  const long begin = PositionOf(box_.HighlightStart());
  const long end = PositionOf(box_.HighlightStart() + box_.HighlightLength());
  long shown_begin = 0;
  long shown_end = 0;
  entry_->GetSelection(&shown_begin, &shown_end);
  if (begin != shown_begin || end != shown_end) entry_->SetSelection(begin, end);
}

void TypedTextView::Follow(Property property) {
  if (property == Property::kHighlight) {
    if (!is_reporting_) ShowHighlight();
  } else if (property == Property::kText) {
    ShowText();
  } else if (property == Property::kItems || property == Property::kCaption) {
    ShowState();
  } else {
    ControlView::Follow(property);
  }
}

void TypedTextView::BringUpToDate() {
  // In the middle of a change the positions belong to a text that the box does not have yet.
  if (entry_->GetValue() != ShownText(box_.Text())) return;
  long begin = 0;
  long end = 0;
  entry_->GetSelection(&begin, &end);
  const int start = CharactersBefore(begin);
  const int length = CharactersBefore(end) - start;
  if (start == box_.HighlightStart() && length == box_.HighlightLength()) return;
  is_reporting_ = true;
  box_.Highlight(start, length);
  is_reporting_ = false;
}

void TypedTextView::TakeFocus() {
  if (Window()->HasFocus()) return;
  // Taking the focus would highlight the whole text; the program decides what is highlighted.
  long begin = 0;
  long end = 0;
  entry_->GetSelection(&begin, &end);
  Window()->SetFocus();
  entry_->SetSelection(begin, end);
}

int TypedTextView::CharactersBefore(long position) const {
  const wxString before = entry_->GetValue().Left(static_cast<std::size_t>(position));
  return static_cast<int>(CharacterCount(FromWx(before)));
}

long TypedTextView::PositionOf(int characters) const {
  return static_cast<long>(ToWx(Characters(box_.Text(), 0, static_cast<std::size_t>(characters))).length());
}

TextBoxView::TextBoxView(TextBox& box, ViewOwner& owner, wxWindow* parent)
    : TypedTextView(box, owner),
      widget_(new wxTextCtrl(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, StyleOf(box))),
      keeps_enter_(box.isMultiLine && !box.isReadOnly) {
  // Reports are tables of blanks and digits. The font comes before the text: GTK cannot change it safely
  // afterwards.
  if (box.isMultiLine && box.isReadOnly) {
    widget_->SetFont(
        wxFont(wxFontInfo(widget_->GetFont().GetFractionalPointSize()).Family(wxFONTFAMILY_TELETYPE)));
  }
  if (!box.isMultiLine) widget_->SetMinSize({-1, EntryHeight(widget_)});
  BindTo(widget_, widget_);
}

EditableComboView::EditableComboView(ComboBox& combo, ViewOwner& owner, wxWindow* parent)
    : TypedTextView(combo, owner), combo_(combo), widget_(new wxComboBox(parent, wxID_ANY)) {
  widget_->SetMinSize({-1, EntryHeight(widget_)});
  BindTo(widget_, widget_);
  widget_->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent& event) {
    const int index = event.GetSelection();
    if (index >= 0 && index < combo_.Count()) Perform([&] { combo_.Select(index); });
    ShowText();
  });
  widget_->Bind(wxEVT_COMBOBOX_DROPDOWN, [this](wxCommandEvent&) { is_open_ = true; });
  widget_->Bind(wxEVT_COMBOBOX_CLOSEUP, [this](wxCommandEvent&) { is_open_ = false; });
  // Turning the wheel over a closed list must not choose another entry unseen.
  widget_->Bind(wxEVT_MOUSEWHEEL, [](wxMouseEvent&) {});
}

void EditableComboView::ShowState() {
  widget_->Set(ToWx(combo_.Items()));
  ShowText();
}

void EditableComboView::Follow(Property property) {
  // The text follows of itself; the selection shows nothing beside it.
  if (property != Property::kSelected) TypedTextView::Follow(property);
}

}  // namespace veritane::platform
