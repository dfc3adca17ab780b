// Line breaking for labels.
#include "platform/wx/wrapping_text.h"

#include <wx/textwrapper.h>
#include <wx/toplevel.h>

#include <algorithm>

namespace veritane::platform {

namespace {

class LineBreaker : public wxTextWrapper {
public:
  wxString Broken(wxWindow* window, const wxString& text, int width) {
    Wrap(window, text, width);
    return result_;
  }
  int LineCount() const { return lines_; }

protected:
  void OnOutputLine(const wxString& line) override { result_ += line; }
  void OnNewLine() override {
    result_ += '\n';
    ++lines_;
  }

private:
  wxString result_;
  int lines_ = 1;
};

}  // namespace

WrappingText::WrappingText(wxWindow* parent)
    : wxStaticText(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE) {
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    if (event.GetSize().x != wrapped_width_) Rewrap();
    event.Skip();
  });
}

void WrappingText::SetText(const wxString& text) {
  text_ = text;
  Rewrap();
}

void WrappingText::SetLineWidth(int width) {
  least_width_ = width;
  Rewrap();
}

void WrappingText::Rewrap() {
  wrapped_width_ = GetSize().x;
  LineBreaker breaker;
  SetLabelText(breaker.Broken(this, text_, std::max(least_width_, wrapped_width_)));
  const wxSize needed(least_width_, breaker.LineCount() * GetCharHeight());
  if (needed == GetMinSize()) return;
  SetMinSize(needed);
  // The sizers are at work now; they look again when they are done.
  CallAfter([this] {
    wxWindow* top = wxGetTopLevelParent(this);
    if (top != nullptr) top->Layout();
  });
}

}  // namespace veritane::platform
