// A message box: the text as it is, an icon, and buttons that answer it.
#pragma once

#include "platform/desktop.h"

#include <wx/dialog.h>

namespace veritane::platform {

class MessageDialog : public wxDialog {
public:
  MessageDialog(wxWindow* parent, const Message& message);

  MessageAnswer Answer() const { return answer_; }

private:
  wxSizer* Buttons();
  void Add(wxSizer* row, MessageAnswer answer);
  void OnKey(wxKeyEvent& event);
  void Choose(MessageAnswer answer);
  // Closing the box, or Escape: OK where there is nothing else, Cancel where it exists, else nothing.
  void Dismiss();

  const MessageButtons buttons_;
  MessageAnswer answer_;
};

}  // namespace veritane::platform
