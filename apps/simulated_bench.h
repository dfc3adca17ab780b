// The simulated spectrometer as the programs use it: one instrument behind the automation object.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "platform/system/system_machine.h"
#include "simulator/call_log.h"
#include "simulator/compartment.h"
#include "simulator/instrument.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace veritane::apps {

class SimulatedBench {
public:
  // `wait` lets the time of a measurement pass. The machine must outlive the bench, the bench whatever Create
  // made.
  SimulatedBench(platform::SystemMachine& machine, std::function<void(std::chrono::milliseconds)> wait);

  // Creates the automation object of this name; error 429 for a name that is not the simulator's.
  std::unique_ptr<acquisition::SpectrometerApp> Create(const std::string& prog_id);

  // Receives the Windows path of each page that is printed through a template, once it is on disk.
  void OnPrint(std::function<void(const std::string& path)> printed) { printed_ = std::move(printed); }

  simulator::Compartment& SampleCompartment() { return compartment_; }
  simulator::CallLog& Calls() { return *calls_; }

private:
  platform::SystemMachine& machine_;
  simulator::Compartment compartment_;
  simulator::SimulatedInstrument instrument_;
  std::shared_ptr<simulator::CallLog> calls_;
  std::function<void(const std::string& path)> printed_;
};

}  // namespace veritane::apps
