// What a screen reader is told about a window; each system has its own way.
#pragma once

#include <wx/window.h>

namespace veritane::platform {

// `name` says what the window is, `content` what is drawn in it, "" for windows whose content the toolkit
// tells by itself.
void TellScreenReaders(wxWindow& window, const wxString& name, const wxString& content);

}  // namespace veritane::platform
