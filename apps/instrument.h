// The Spectrometer application that a program drives: the real one by automation, or the simulated one in
// process.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "apps/command_line.h"
#include "apps/simulated_bench.h"
#include "platform/automation.h"
#include "platform/system/system_machine.h"

#include <memory>
#include <string>

namespace veritane::apps {

enum class InstrumentKind { kSimulated, kReal };

// The option of the command line, "simulated" or "real", and what it says; `usual` without it, UsageError for
// another word.
inline constexpr const char* kInstrumentOption = "--instrument";
InstrumentKind ChosenInstrument(const CommandLine& line, InstrumentKind usual);

// The real one where the system has automation.
InstrumentKind UsualInstrument();

class Instrument {
public:
  // Machine and bench outlive the instrument, the instrument whatever Create made. `show` tells the user that
  // the program waits for the real one.
  Instrument(platform::SystemMachine& machine, SimulatedBench& bench, InstrumentKind kind,
             platform::ShowWaiting show);

  // Error 429 when the application cannot be created, 13 for a damaged "automation.ini" in the data folder.
  std::unique_ptr<acquisition::SpectrometerApp> Create(const std::string& prog_id);

private:
  platform::SystemMachine& machine_;
  SimulatedBench& bench_;
  InstrumentKind kind_;
  platform::ShowWaiting show_;
  std::unique_ptr<platform::Automation> automation_;
};

}  // namespace veritane::apps
