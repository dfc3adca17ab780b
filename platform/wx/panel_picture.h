// A picture of a part of a window, on the clipboard.
#pragma once

class wxWindow;

namespace veritane::platform {

// As it is on screen, with everything that lies in it. Error 57 when the clipboard does not take it, or when
// the part has no size.
void CopyToClipboard(wxWindow& part);

}  // namespace veritane::platform
