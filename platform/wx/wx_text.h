// Texts on their way between the program (UTF-8) and wxWidgets.
#pragma once

#include <wx/string.h>

#include <string>

namespace veritane::platform {

// Bytes that are not UTF-8 are taken as Windows-1252, so that nothing vanishes.
wxString ToWx(const std::string& text);
std::string FromWx(const wxString& text);

// The letter behind a caption's single "&", in upper case; 0 when it has none. Some captions have several.
bool HasAccessKey(const std::string& caption, wxUniChar letter);

}  // namespace veritane::platform
