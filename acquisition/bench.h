// Everything that a workflow with the Spectrometer application works with.
#pragma once

#include "acquisition/frm_status.h"
#include "acquisition/spectrometer_session.h"
#include "platform/desktop.h"
#include "platform/machine.h"
#include "shell/state/program_state.h"
#include "shell/state/spectrum_panel.h"

#include <functional>

namespace veritane::acquisition {

struct Bench {
  platform::Desktop& desktop;
  platform::Machine machine;
  state::ProgramState& state;
  SpectrometerSession& session;
  FrmStatus& frmStatus;
  state::SpectrumPanel panel;
  // Runs the PLS prediction of the current document's spectrum; false when it failed, which the user has been
  // told of then.
  std::function<bool()> Predict;
  // What the algorithm of the state shows of a Standard that was just measured and drawn, while its document
  // is open.
  std::function<void()> MarkStandard;
  // Prints what was just measured, filed and named through the print template of the options.
  std::function<void()> PrintByTemplate;
};

// The Spectrometer application is the program's for as long as this lives, and the user's again however that
// ends; the mouse pointer is normal then too.
class DrivenApplication {
public:
  explicit DrivenApplication(Bench& bench) : bench_(bench) {}
  ~DrivenApplication();
  DrivenApplication(const DrivenApplication&) = delete;
  DrivenApplication& operator=(const DrivenApplication&) = delete;

private:
  Bench& bench_;
};

// Shows a text in the status window, with the hourglass pointer, for as long as it lives.
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
