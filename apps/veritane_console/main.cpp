// veritane-console: the whole program without a window, driven by lines of text.
#include "acquisition/automation_waiting_text.h"
#include "apps/command_line.h"
#include "apps/instrument.h"
#include "apps/machine_options.h"
#include "apps/simulated_bench.h"
#include "apps/veritane_console/instrument_commands.h"
#include "platform/pdf/pdf_printer.h"
#include "platform/run_time_error.h"
#include "platform/scripted/scripted_interface.h"
#include "shell/frm_veritane.h"

#include <fstream>
#include <iostream>
#include <memory>
#include <thread>

namespace {

using namespace veritane;

constexpr const char* kUsage =
    "usage: veritane-console [--root DIR] [--now ISO-TIME] [--locale NAME] [--instrument KIND] [SCRIPT]\n"
    "  --root DIR      the data root; drive C is its folder drive_c\n"
    "  --now TIME      the time that the program sees, e.g. 2026-11-21T10:59:00\n"
    "  --locale NAME   how dates and times are written, e.g. de_DE.UTF-8\n"
    "  --instrument    simulated (the default), or real: the Spectrometer application of this system\n"
    "  SCRIPT          a file of lines; without it they come from standard input\n";

int Play(const apps::CommandLine& line, std::istream& script) {
  platform::SystemMachine machine(apps::RootOption(line), line.Option("--locale").value_or(""));
  apps::SetClock(line, machine);
  apps::SimulatedBench bench(machine,
                             [](std::chrono::milliseconds time) { std::this_thread::sleep_for(time); });
  platform::ScriptedInterface screen(platform::LinesOf(script), platform::JsonLines(std::cout));
  platform::Desktop desktop(screen);
  apps::Instrument instrument(machine, bench, apps::ChosenInstrument(line, apps::InstrumentKind::kSimulated),
                              acquisition::ShowInStatusWindow(desktop));
  std::unique_ptr<shell::FrmVeritane> program;
  platform::PdfPrinter printer(machine.files, machine.clock, [&] { return program->PrintFolder(); });
  desktop.UsePrinter(printer);
  bench.OnPrint([&](const std::string& file) { screen.NotePrint(platform::PrintKind::kTemplate, file); });
  const int exit_status = screen.Run(
      desktop,
      {.start =
           [&] {
             program = std::make_unique<shell::FrmVeritane>(
                 desktop, machine.Facilities(),
                 [&](const std::string& prog_id) { return instrument.Create(prog_id); });
             program->Form_Load();
           },
       .setInstrument =
           [&](const std::vector<std::string>& words) { return console::SetInstrument(bench, words); },
       .setClock = [&](const platform::DateTime& now) { machine.clock.Set(now); }});
  std::cout.flush();
  if (!std::cout) throw std::runtime_error("the events could not be written");
  return exit_status;
}

int Run(const apps::CommandLine& line) {
  if (line.Words().empty()) return Play(line, std::cin);
  std::ifstream script(line.Words()[0], std::ios::binary);
  if (!script) throw apps::UsageError("the script " + line.Words()[0] + " cannot be opened");
  return Play(line, script);
}

}  // namespace

int main(int argument_count, char** arguments) {
  return apps::RunProgram(
      {.name = "veritane-console",
       .usage = kUsage,
       .options = {apps::kRootOption, apps::kNowOption, "--locale", apps::kInstrumentOption},
       .mostWords = 1},
      argument_count, arguments, Run);
}
