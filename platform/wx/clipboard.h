// The system's clipboard: a picture of a part of a window goes there, text comes from there.
#pragma once

#include <optional>
#include <string>

class wxWindow;

namespace veritane::platform {

// As it is on screen, with everything that lies in it. Error 57 when the clipboard does not take it, or when
// the part has no size.
void CopyToClipboard(wxWindow& part);

// The text on the clipboard, nothing when it holds none.
std::optional<std::string> TextOnClipboard();

}  // namespace veritane::platform
