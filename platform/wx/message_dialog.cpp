// Message boxes.
#include "platform/wx/message_dialog.h"

#include "platform/texts.h"
#include "platform/wx/layout_parts.h"
#include "platform/wx/wrapping_text.h"
#include "platform/wx/wx_text.h"

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/gdicmn.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>

#include <algorithm>

namespace veritane::platform {

namespace {

wxArtID ArtOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical:
      return wxART_ERROR;
    case MessageIcon::kExclamation:
      return wxART_WARNING;
    case MessageIcon::kQuestion:
      return wxART_QUESTION;
    case MessageIcon::kInformation:
    case MessageIcon::kNone:
      break;
  }
  return wxART_INFORMATION;
}

// What a button says, and the name it has among windows, whatever the language.
struct ButtonFace {
  TextId caption;
  const char* name;
};

ButtonFace FaceOf(MessageAnswer answer) {
  switch (answer) {
    case MessageAnswer::kOk:
      return {TextId::kOk, "OK"};
    case MessageAnswer::kCancel:
      return {TextId::kCancel, "Cancel"};
    case MessageAnswer::kYes:
      return {TextId::kYes, "Yes"};
    case MessageAnswer::kNo:
      break;
  }
  return {TextId::kNo, "No"};
}

}  // namespace

MessageDialog::MessageDialog(wxWindow* parent, const Message& message)
    : wxDialog(parent, wxID_ANY, ToWx(message.title), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE),
      buttons_(message.buttons),
      answer_(QuietAnswer(message.buttons)) {
  SetName("message");
  auto* content = new wxBoxSizer(wxHORIZONTAL);
  if (message.icon != MessageIcon::kNone) {
    const int side = FormBuilder::Line(this) * 5 / 2;
    const wxBitmapBundle icon =
        wxArtProvider::GetBitmapBundle(ArtOf(message.icon), wxART_MESSAGE_BOX, {side, side});
    auto* picture = new wxStaticBitmap(this, wxID_ANY, icon);
    picture->SetMinSize({side, side});
    content->Add(picture, wxSizerFlags().Top().Border(wxRIGHT, WideGap(this)));
  }
  auto* text = new WrappingText(this);
  text->SetName("text");
  // With large fonts the screen is narrower than a good line; icon and margins need their part of it.
  const int screen = wxGetClientDisplayRect().width - FormBuilder::Columns(this, 16);
  const int widest = std::min(FormBuilder::Columns(this, 72), screen);
  const int natural = GetTextExtent(ToWx(message.text)).x + FormBuilder::Columns(this, 2);
  text->SetLineWidth(std::min(widest, std::max(natural, FormBuilder::Columns(this, 28))));
  text->SetText(ToWx(message.text));
  content->Add(text, wxSizerFlags(1).CentreVertical());
  SetSizerAndFit(Dialog(this, content, Buttons()));
  CentreOnParent();
  Bind(wxEVT_CHAR_HOOK, &MessageDialog::OnKey, this);
  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
    if (event.CanVeto()) event.Veto();
    Dismiss();
  });
}

wxSizer* MessageDialog::Buttons() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  for (const MessageAnswer answer : ButtonsOf(buttons_)) Add(row, answer);
  return row;
}

void MessageDialog::Add(wxSizer* row, MessageAnswer answer) {
  const ButtonFace face = FaceOf(answer);
  auto* button = new wxButton(this, wxID_ANY, ToWx(Text(face.caption)));
  button->SetName(face.name);
  button->SetMinSize({std::max(button->GetBestSize().x, FormBuilder::Columns(this, 12)), -1});
  button->Bind(wxEVT_BUTTON, [this, answer](wxCommandEvent&) { Choose(answer); });
  const bool is_first = row->GetItemCount() == 0;
  row->Add(button, wxSizerFlags().Border(wxLEFT, is_first ? 0 : Gap(this)));
  if (is_first) {
    button->SetDefault();
    button->SetFocus();
  }
}

// An answer's letter is its key, with Alt or without.
void MessageDialog::OnKey(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_ESCAPE) return Dismiss();
  for (const MessageAnswer answer : ButtonsOf(buttons_)) {
    if (HasAccessKey(Text(FaceOf(answer).caption), event.GetUnicodeKey())) return Choose(answer);
  }
  event.Skip();
}

void MessageDialog::Choose(MessageAnswer answer) {
  answer_ = answer;
  EndModal(wxID_OK);
}

void MessageDialog::Dismiss() {
  if (buttons_ != MessageButtons::kYesNo) Choose(QuietAnswer(buttons_));
}

}  // namespace veritane::platform
