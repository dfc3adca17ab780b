// veritane: the program in its window.
#include <iostream>
#include <memory>
#include <thread>

#include "apps/command_line.h"
#include "apps/simulated_bench.h"
#include "platform/pdf/pdf_printer.h"
#include "platform/posix/command_print_queue.h"
#include "platform/run_time_error.h"
#include "platform/wx/wx_user_interface.h"
#include "shell/frm_veritane.h"

namespace {

using namespace veritane;

// What exists while the window does.
struct Program {
  Program(platform::PosixMachine& machine, platform::WxUserInterface& screen)
      : desktop(screen),
        bench(machine, [this](std::chrono::milliseconds time) { WaitAlive(time); }),
        main(desktop, machine.Facilities(),
             [this](const std::string& prog_id) { return bench.Create(prog_id); }),
        printer(
            machine.files, machine.clock, [this] { return main.PrintFolder(); }, &print_queue) {
    desktop.UsePrinter(printer);
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
  shell::FrmVeritane main;
  platform::CommandPrintQueue print_queue;
  platform::PdfPrinter printer;
};

int Run(int argument_count, char** arguments) {
  platform::PosixMachine machine(platform::DefaultRoot(), "");
  std::unique_ptr<Program> program;
  const platform::PathMapping paths{
      .toNative = [&](const std::string& path) { return machine.paths.ToNative(path).string(); },
      .toWindows = [&](const std::string& path) { return machine.paths.ToWindows(path); }};
  return platform::RunInWindow(argument_count, arguments, paths, [&](platform::WxUserInterface& screen) {
    program = std::make_unique<Program>(machine, screen);
    try {
      program->main.Form_Load();
    } catch (const platform::RunTimeError& error) {
      screen.NoteError(error);
      screen.ShowMessage({.text = "Veritane cannot start. " + std::string(error.what()),
                          .title = "Veritane",
                          .icon = platform::MessageIcon::kCritical});
      program->desktop.End(1);
    }
  });
}

}  // namespace

int main(int argument_count, char** arguments) {
  return apps::RunProgram({.name = "veritane", .usage = "usage: veritane\n"}, argument_count, arguments,
                          [&](const apps::CommandLine&) { return Run(argument_count, arguments); });
}
