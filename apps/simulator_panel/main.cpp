// simulator-panel: sets what lies in the simulated instrument, beside the running program.
#include "apps/command_line.h"
#include "apps/compartment_path.h"
#include "apps/machine_options.h"
#include "apps/simulator_panel/frm_simulator.h"
#include "apps/window_paths.h"
#include "platform/system/common_controls.h"
#include "platform/system/starter_message.h"
#include "platform/system/system_machine.h"
#include "platform/wx/wx_user_interface.h"

#include <wx/timer.h>

#include <iostream>
#include <memory>

namespace {

using namespace veritane;

constexpr int kRefreshMilliseconds = 1000;

struct Panel {
  Panel(platform::SystemMachine& machine, platform::WxUserInterface& screen)
      : desktop(screen), form(desktop, machine.Facilities(), apps::CompartmentPath(machine)) {
    timer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Refresh(); });
    form.Watch([this](platform::Form::Change change) {
      if (change == platform::Form::Change::kHidden) timer.Stop();
    });
  }

  // Exceptions must not cross the toolkit's frames.
  void Refresh() {
    try {
      form.Refresh();
    } catch (const std::exception& error) {
      std::cerr << "simulator-panel: " << error.what() << '\n';
      timer.Stop();
      desktop.End(1);
    }
  }

  platform::Desktop desktop;
  simulator_panel::FrmSimulator form;
  wxTimer timer;
};

int Run(const apps::CommandLine& line, int argument_count, char** arguments) {
  platform::SystemMachine machine(apps::RootOption(line), "");
  std::unique_ptr<Panel> panel;
  const platform::PathMapping paths = apps::PathsOf(machine);
  platform::InitialiseCommonControls();
  return platform::RunInWindow(argument_count, arguments, paths, [&](platform::WxUserInterface& screen) {
    panel = std::make_unique<Panel>(machine, screen);
    panel->desktop.AttachForms();
    panel->form.Form_Load();
    panel->timer.Start(kRefreshMilliseconds);
  });
}

}  // namespace

int main(int argument_count, char** arguments) {
  return apps::RunProgram({.name = "simulator-panel",
                           .usage = "usage: simulator-panel [--root DIR]\n",
                           .options = {apps::kRootOption},
                           .alsoShow = platform::ShowToStarter},
                          argument_count, arguments, [&](const apps::CommandLine& line) {
                            return Run(line, argument_count, arguments);
                          });
}
