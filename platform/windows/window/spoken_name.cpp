// Names as the system's accessibility interface asks for them.
#include "platform/wx/spoken_name.h"

#include <wx/access.h>

#include <utility>

namespace veritane::platform {

namespace {

class SpokenWindow : public wxAccessible {
public:
  using wxAccessible::wxAccessible;

  void Tell(const wxString& name, const wxString& content) {
    name_ = name;
    content_ = content;
    NotifyEvent(wxACC_EVENT_OBJECT_NAMECHANGE, GetWindow(), wxOBJID_CLIENT, wxACC_SELF);
  }

  wxAccStatus GetName(int child, wxString* name) override { return Answer(child, name_, name); }
  wxAccStatus GetDescription(int child, wxString* content) override {
    return Answer(child, content_, content);
  }

private:
  // What is left unanswered the system finds out by itself.
  static wxAccStatus Answer(int child, const wxString& text, wxString* answer) {
    if (child != wxACC_SELF || text.empty()) return wxACC_NOT_IMPLEMENTED;
    *answer = text;
    return wxACC_OK;
  }

  wxString name_;
  wxString content_;
};

}  // namespace

void TellScreenReaders(wxWindow& window, const wxString& name, const wxString& content) {
  auto* spoken = dynamic_cast<SpokenWindow*>(window.GetAccessible());
  if (spoken == nullptr) {
    spoken = new SpokenWindow(&window);
    window.SetAccessible(spoken);
  }
  spoken->Tell(name, content);
}

}  // namespace veritane::platform
