// Texts on their way between the program (UTF-8) and wxWidgets.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <string>
#include <vector>

namespace veritane::platform {

// Bytes that are not UTF-8 are taken as Windows-1252, so that nothing vanishes.
wxString ToWx(const std::string& text);
wxArrayString ToWx(const std::vector<std::string>& texts);
std::string FromWx(const wxString& text);

// Whether `letter` follows an "&" of the caption, in either case. Some captions have several; "&&" is none.
bool HasAccessKey(const std::string& caption, wxUniChar letter);

}  // namespace veritane::platform
