// The status window while the program waits.
#include "acquisition/automation_waiting_text.h"

#include "acquisition/frm_status.h"
#include "platform/desktop.h"

#include <memory>
#include <string>

namespace veritane::acquisition {

namespace {

// What the status window showed before.
struct Former {
  std::string caption;
  bool shown = false;
};

}  // namespace

platform::ShowWaiting ShowInStatusWindow(platform::Desktop& desktop) {
  return [&desktop, former = std::make_shared<Former>()](const std::string& text) {
    auto* const status = dynamic_cast<FrmStatus*>(desktop.Find(std::string(platform::kStatusForm)));
    // During start-up the forms may not be there yet.
    if (status == nullptr) return;
    if (!text.empty()) {
      *former = {status->lblStatus.Caption(), status->Shown()};
      status->lblStatus.SetCaption(text);
      if (!former->shown) status->Show();
    } else {
      status->lblStatus.SetCaption(former->caption);
      if (!former->shown) status->Hide();
    }
  };
}

}  // namespace veritane::acquisition
