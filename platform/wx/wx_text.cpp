// Texts between UTF-8 and wxString.
#include "platform/wx/wx_text.h"

#include "platform/utf8.h"

#include <wx/strconv.h>
#include <wx/wxcrt.h>

namespace veritane::platform {

wxString ToWx(const std::string& text) {
  if (IsUtf8(text)) return wxString::FromUTF8(text);
  return {text.c_str(), wxCSConv(wxFONTENCODING_CP1252), text.size()};
}

wxArrayString ToWx(const std::vector<std::string>& texts) {
  wxArrayString all;
  all.reserve(texts.size());
  for (const std::string& text : texts) all.push_back(ToWx(text));
  return all;
}

std::string FromWx(const wxString& text) {
  return text.utf8_string();
}

bool HasAccessKey(const std::string& caption, wxUniChar letter) {
  const std::u32string characters = DecodeUtf8(caption);
  for (std::size_t i = 0; i + 1 < characters.size(); ++i) {
    if (characters[i] != U'&') continue;
    const char32_t next = characters[++i];
    if (next != U'&' &&
        wxToupper(static_cast<wxChar>(next)) == wxToupper(static_cast<wxChar>(letter.GetValue()))) {
      return true;
    }
  }
  return false;
}

}  // namespace veritane::platform
