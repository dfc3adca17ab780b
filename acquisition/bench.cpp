// The status window while a workflow blocks.
#include "acquisition/bench.h"

namespace veritane::acquisition {

StatusShown::StatusShown(Bench& bench, const std::string& text) : bench_(bench) {
  bench_.frmStatus.lblStatus.SetCaption(text);
  bench_.frmStatus.Show();
  bench_.desktop.SetMousePointer(platform::Pointer::kHourglass);
  bench_.desktop.ProcessPendingEvents();
}

StatusShown::~StatusShown() {
  bench_.frmStatus.Hide();
  bench_.desktop.SetMousePointer(platform::Pointer::kDefault);
}

}  // namespace veritane::acquisition
