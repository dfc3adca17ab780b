// Message boxes.
#include "platform/wx/message_dialog.h"

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/gdicmn.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>

#include <algorithm>
#include <cctype>

#include "platform/wx/layout_parts.h"
#include "platform/wx/wrapping_text.h"
#include "platform/wx/wx_text.h"

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

// Whether this key is the access key of a caption.
bool IsAccessKey(int key, const std::string& caption) {
  const std::size_t mark = caption.find('&');
  return mark != std::string::npos && mark + 1 < caption.size() &&
         key == std::toupper(static_cast<unsigned char>(caption[mark + 1]));
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

MessageAnswer MessageDialog::QuietAnswer(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOk:
      return MessageAnswer::kOk;
    case MessageButtons::kOkCancel:
      return MessageAnswer::kCancel;
    case MessageButtons::kYesNo:
      break;
  }
  return MessageAnswer::kNo;
}

wxSizer* MessageDialog::Buttons() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  if (buttons_ == MessageButtons::kYesNo) {
    Add(row, TextId::kYes, "Yes", MessageAnswer::kYes);
    Add(row, TextId::kNo, "No", MessageAnswer::kNo);
  } else {
    Add(row, TextId::kOk, "OK", MessageAnswer::kOk);
    if (buttons_ == MessageButtons::kOkCancel) Add(row, TextId::kCancel, "Cancel", MessageAnswer::kCancel);
  }
  return row;
}

void MessageDialog::Add(wxSizer* row, TextId caption, const wxString& name, MessageAnswer answer) {
  auto* button = new wxButton(this, wxID_ANY, ToWx(Text(caption)));
  button->SetName(name);
  button->SetMinSize({std::max(button->GetBestSize().x, FormBuilder::Columns(this, 12)), -1});
  button->Bind(wxEVT_BUTTON, [this, answer](wxCommandEvent&) { Choose(answer); });
  const bool is_first = row->GetItemCount() == 0;
  row->Add(button, wxSizerFlags().Border(wxLEFT, is_first ? 0 : Gap(this)));
  if (is_first) {
    button->SetDefault();
    button->SetFocus();
  }
}

void MessageDialog::OnKey(wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  const bool is_question = buttons_ == MessageButtons::kYesNo;
  if (key == WXK_ESCAPE) {
    Dismiss();
  } else if (is_question && IsAccessKey(key, Text(TextId::kYes))) {
    Choose(MessageAnswer::kYes);
  } else if (is_question && IsAccessKey(key, Text(TextId::kNo))) {
    Choose(MessageAnswer::kNo);
  } else {
    event.Skip();
  }
}

void MessageDialog::Choose(MessageAnswer answer) {
  answer_ = answer;
  EndModal(wxID_OK);
}

void MessageDialog::Dismiss() {
  if (buttons_ == MessageButtons::kOk) Choose(MessageAnswer::kOk);
  if (buttons_ == MessageButtons::kOkCancel) Choose(MessageAnswer::kCancel);
}

}  // namespace veritane::platform
