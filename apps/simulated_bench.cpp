// Assembling the simulated spectrometer.
#include "apps/simulated_bench.h"

#include "apps/compartment_path.h"
#include "platform/pdf/pdf_document.h"
#include "platform/run_time_error.h"
#include "shell/state/data_folders.h"
#include "simulator/simulated_spectrometer.h"
#include "simulator/spectrum_file.h"

#include <iostream>
#include <random>

namespace veritane::apps {

SimulatedBench::SimulatedBench(platform::SystemMachine& machine,
                               std::function<void(std::chrono::milliseconds)> wait)
    : machine_(machine),
      compartment_(machine.files, CompartmentPath(machine)),
      instrument_(
          compartment_,
          {.openSpectrum =
               [&machine](const std::string& path) {
                 return simulator::ReadSpectrumFile(path, machine.files.ReadBytes(path)).spectra.front();
               },
           .wait = std::move(wait),
           .randomSeed = [] { return std::uint64_t{std::random_device{}()}; },
           .report =
               [](int error, const std::string& reason) {
                 std::cerr << "simulated spectrometer: error " << error << ": " << reason << "\n";
               }}),
      calls_(std::make_shared<simulator::CallLog>()) {}

std::unique_ptr<acquisition::SpectrometerApp> SimulatedBench::Create(const std::string& prog_id) {
  if (prog_id != acquisition::kSpectrometerProgId) {
    throw platform::RunTimeError(platform::ErrorNumber::kCannotCreateObject, prog_id);
  }
  auto app =
      std::make_unique<simulator::SimulatedSpectrometer>(machine_.files, machine_.clock, instrument_, calls_);
  const std::string data_folder = state::DataFolderBelow(machine_.folders.CommonApplicationData(false));
  app->PrintInto({.folder = state::PrintFolder(data_folder),
                  .makePdf = platform::MakePdf,
                  .printed = [this](const std::string& path) {
                    if (printed_) printed_(path);
                  }});
  return app;
}

}  // namespace veritane::apps
