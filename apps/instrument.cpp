// Choosing the Spectrometer application.
#include "apps/instrument.h"

#include "acquisition/automation_client.h"
#include "shell/state/data_folders.h"

#include <utility>

namespace veritane::apps {

InstrumentKind ChosenInstrument(const CommandLine& line, InstrumentKind usual) {
  const auto word = line.Option(kInstrumentOption);
  if (!word) return usual;
  if (*word == "simulated") return InstrumentKind::kSimulated;
  if (*word == "real") return InstrumentKind::kReal;
  throw UsageError("the instrument is simulated or real, not \"" + *word + "\"");
}

InstrumentKind UsualInstrument() {
  return platform::SystemHasAutomation() ? InstrumentKind::kReal : InstrumentKind::kSimulated;
}

Instrument::Instrument(platform::SystemMachine& machine, SimulatedBench& bench, InstrumentKind kind,
                       platform::ShowWaiting show)
    : machine_(machine), bench_(bench), kind_(kind), show_(std::move(show)) {}

std::unique_ptr<acquisition::SpectrometerApp> Instrument::Create(const std::string& prog_id) {
  if (kind_ == InstrumentKind::kSimulated) return bench_.Create(prog_id);
  const std::string data_folder = state::DataFolderBelow(machine_.folders.CommonApplicationData(false));
  const auto members =
      acquisition::ReadAutomationMembers(machine_.files, data_folder + acquisition::kAutomationMembersFile);
  if (automation_ == nullptr) automation_ = platform::SystemAutomation(show_);
  return acquisition::ConnectSpectrometerApp(*automation_, prog_id, members);
}

}  // namespace veritane::apps
