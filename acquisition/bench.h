// Everything that a workflow with the Spectrometer application works with.
#pragma once

#include "acquisition/frm_status.h"
#include "acquisition/spectrometer_session.h"
#include "platform/desktop.h"
#include "platform/machine.h"
#include "shell/state/program_state.h"
#include "shell/state/spectrum_panel.h"

namespace veritane::acquisition {

struct Bench {
  platform::Desktop& desktop;
  platform::Machine machine;
  state::ProgramState& state;
  SpectrometerSession& session;
  FrmStatus& frmStatus;
  state::SpectrumPanel panel;
};

// Shows a text in the status window, with the hourglass pointer, for as long as it lives or until Hide.
class StatusShown {
public:
  StatusShown(Bench& bench, const std::string& text);
  ~StatusShown();
  StatusShown(const StatusShown&) = delete;
  StatusShown& operator=(const StatusShown&) = delete;

private:
  Bench& bench_;
};

}  // namespace veritane::acquisition
