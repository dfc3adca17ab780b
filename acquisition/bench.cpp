// Driving the Spectrometer application, and the status window while a workflow blocks.
#include "acquisition/bench.h"

#include "platform/run_time_error.h"

namespace veritane::acquisition {

DrivenApplication::~DrivenApplication() {
  bench_.desktop.SetMousePointer(platform::Pointer::kDefault);
  try {
    bench_.session.SpectrometerApp->Interactive(true);
  } catch (const platform::RunTimeError&) {
    // The workflow's own outcome is what the user has to hear of, not that the window could not be shown as
    // well.
  }
}

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
