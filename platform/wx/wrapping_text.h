// A text that breaks its lines to the width it is given and asks for the height that it then needs.
#pragma once

#include <wx/stattext.h>

namespace veritane::platform {

class WrappingText : public wxStaticText {
public:
  explicit WrappingText(wxWindow* parent);

  // Shown as it is, blanks and "&" included.
  void SetText(const wxString& text);
  // The width to begin with, below which it is never squeezed.
  void SetLineWidth(int width);

private:
  void Rewrap();

  wxString text_;
  int least_width_ = 200;
  int wrapped_width_ = 0;
};

}  // namespace veritane::platform
