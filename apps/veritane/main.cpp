// veritane: the program in its window.
#include "acquisition/automation_waiting_text.h"
#include "apps/command_line.h"
#include "apps/instrument.h"
#include "apps/simulated_bench.h"
#include "apps/window_paths.h"
#include "platform/pdf/system_printer.h"
#include "platform/run_time_error.h"
#include "platform/system/common_controls.h"
#include "platform/system/starter_message.h"
#include "platform/texts.h"
#include "platform/wx/wx_user_interface.h"
#include "shell/frm_veritane.h"

#include <memory>
#include <thread>

namespace {

using namespace veritane;

// What exists while the window does.
struct Program {
  Program(platform::SystemMachine& machine, platform::WxUserInterface& screen, apps::InstrumentKind kind)
      : desktop(screen),
        bench(machine, [this](std::chrono::milliseconds time) { WaitAlive(time); }),
        instrument(machine, bench, kind, acquisition::ShowInStatusWindow(desktop)),
        main(desktop, machine.Facilities(),
             [this](const std::string& prog_id) { return instrument.Create(prog_id); }),
        printer(
            platform::SystemPrinter(machine.files, machine.clock, [this] { return main.PrintFolder(); })) {
    desktop.UsePrinter(*printer);
    bench.OnPrint(
        [&screen](const std::string& file) { screen.NotePrint(platform::PrintKind::kTemplate, file); });
  }

  // A measurement takes its time, but the windows go on being drawn.
  void WaitAlive(std::chrono::milliseconds time) {
    constexpr std::chrono::milliseconds kStep{20};
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) {
      desktop.ProcessPendingEvents();
      std::this_thread::sleep_for(kStep);
    }
  }

  platform::Desktop desktop;
  apps::SimulatedBench bench;
  apps::Instrument instrument;
  shell::FrmVeritane main;
  std::unique_ptr<platform::Printer> printer;
};

int Run(const apps::CommandLine& line, int argument_count, char** arguments) {
  platform::SystemMachine machine(platform::DefaultRoot(), "");
  const apps::InstrumentKind kind = apps::ChosenInstrument(line, apps::UsualInstrument());
  std::unique_ptr<Program> program;
  const platform::PathMapping paths = apps::PathsOf(machine);
  platform::InitialiseCommonControls();
  return platform::RunInWindow(argument_count, arguments, paths, [&](platform::WxUserInterface& screen) {
    program = std::make_unique<Program>(machine, screen, kind);
    try {
      program->main.Form_Load();
    } catch (const platform::RunTimeError& error) {
      screen.NoteError(error);
      screen.ShowMessage({.text = platform::Text(platform::TextId::kCannotStart, {error.what()}),
                          .title = platform::Text(platform::TextId::kProgramName),
                          .icon = platform::MessageIcon::kCritical});
      program->desktop.End(1);
    }
  });
}

}  // namespace

int main(int argument_count, char** arguments) {
  return apps::RunProgram({.name = "veritane",
                           .usage = "usage: veritane [--instrument simulated|real]\n",
                           .options = {apps::kInstrumentOption},
                           .alsoShow = platform::ShowToStarter},
                          argument_count, arguments, [&](const apps::CommandLine& line) {
                            return Run(line, argument_count, arguments);
                          });
}
