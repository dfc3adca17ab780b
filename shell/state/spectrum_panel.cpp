// Changing the panel in front.
#include "shell/state/spectrum_panel.h"

namespace veritane::state {

void ShowPanel(const SpectrumPanel& panel, const platform::Frame& front) {
  for (platform::Frame* frame : {&panel.fraMainMenu, &panel.fraSupervisorMode, &panel.fraSpectrum}) {
    if (frame != &front) frame->SetVisible(false);
  }
  for (platform::Frame* frame : {&panel.fraMainMenu, &panel.fraSupervisorMode, &panel.fraSpectrum}) {
    if (frame == &front) frame->SetVisible(true);
  }
}

}  // namespace veritane::state
