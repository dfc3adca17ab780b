// The common controls of Windows.
#include "platform/system/common_controls.h"

#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

namespace veritane::platform {

void InitialiseCommonControls() {
  const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_USEREX_CLASSES};
  (void)::InitCommonControlsEx(&classes);
}

}  // namespace veritane::platform
