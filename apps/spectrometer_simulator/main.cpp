// spectrometer-simulator: the simulated Spectrometer application as an automation server.
#include "apps/command_line.h"
#include "apps/machine_options.h"
#include "apps/simulated_bench.h"
#include "apps/spectrometer_simulator/served_spectrometer.h"
#include "platform/automation_server.h"
#include "platform/system/native_path.h"
#include "platform/system/system_machine.h"
#include "simulator/automation_server.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>

namespace {

using namespace veritane;

constexpr const char* kUsage =
    "usage: spectrometer-simulator /regserver [--root DIR]\n"
    "       spectrometer-simulator /unregserver\n"
    "       spectrometer-simulator /automation [--root DIR] [--now ISO-TIME] [--ready FILE]\n"
    "                              [--busy MILLISECONDS] [--die-in-collection NUMBER]\n"
    "  --root DIR                  the data root; drive C is its folder drive_c\n"
    "  --now TIME                  the time that the simulator sees, e.g. 2026-11-21T10:59:00\n"
    "  --ready FILE                made once programs can connect\n"
    "  --busy MILLISECONDS         refuses calls for so long, once the first document has been opened\n"
    "  --die-in-collection NUMBER  the process dies in the middle of this collection, from 1\n";

const platform::ServedClass kClass{.progId = acquisition::kSpectrometerProgId,
                                   .classId = "{15CBD401-DC7F-4B81-A5D4-F585FC25552F}",
                                   .description = "Simulated Spectrometer application"};

// As high as an option's number goes.
constexpr int kMost = 1'000'000'000;

std::string Quoted(const std::string& text) {
  return '"' + text + '"';
}

int Register(const apps::CommandLine& line) {
  const std::filesystem::path program = platform::NativeProgramFolder() / "spectrometer-simulator.exe";
  std::string command_line = Quoted(platform::Utf8Of(program)) + " /automation";
  if (const auto root = line.Option(apps::kRootOption)) command_line += " --root " + Quoted(*root);
  platform::RegisterServer(kClass, command_line);
  return 0;
}

// Lets the time of a measurement pass. In the middle of the collection that it was told, the process dies; 0
// is none.
class Passing {
public:
  explicit Passing(int fatal_collection) : left_(fatal_collection) {}

  // Looks for collections among the calls, which are kept for nothing else.
  void Watch(simulator::CallLog& calls) { calls_ = &calls; }

  void Wait(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
    const auto noted = calls_->Take();
    if (std::ranges::find(noted, "CollectInto") == noted.end()) return;
    if (left_ > 0 && --left_ == 0) std::_Exit(EXIT_FAILURE);
  }

private:
  int left_;
  simulator::CallLog* calls_ = nullptr;
};

int Serve(const apps::CommandLine& line) {
  platform::SystemMachine machine(apps::RootOption(line), "");
  apps::SetClock(line, machine);
  Passing passing(static_cast<int>(line.WholeNumber("--die-in-collection", 0, 0, kMost)));
  apps::SimulatedBench bench(machine, [&](std::chrono::milliseconds time) { passing.Wait(time); });
  passing.Watch(bench.Calls());
  const auto server = platform::SystemAutomationServer();
  auto app = std::make_shared<spectrometer_simulator::ServedSpectrometer>(
      bench.Create(kClass.progId), *server,
      std::chrono::milliseconds(line.WholeNumber("--busy", 0, 0, kMost)));
  server->Serve(kClass, simulator::ServeSpectrometerApp(std::move(app)), [&] {
    if (const auto ready = line.Option("--ready")) std::ofstream(platform::PathFromUtf8(*ready)) << "ready\n";
  });
  return 0;
}

// The system itself adds "-Embedding" to the line that starts a server.
int Run(const apps::CommandLine& line) {
  if (line.Words().empty()) throw apps::UsageError("it is told what to do, or started by the system");
  const std::string& word = line.Words().front();
  if (word == "/regserver") return Register(line);
  if (word == "/unregserver") {
    platform::UnregisterServer(kClass);
    return 0;
  }
  if (word == "/automation") return Serve(line);
  throw apps::UsageError("\"" + word + "\" is not understood");
}

}  // namespace

int main(int argument_count, char** arguments) {
  return apps::RunProgram(
      {.name = "spectrometer-simulator",
       .usage = kUsage,
       .options = {apps::kRootOption, apps::kNowOption, "--ready", "--busy", "--die-in-collection"},
       .mostWords = 2},
      argument_count, arguments, Run);
}
