// Setting the simulated instrument from a script.
#include "apps/veritane_console/instrument_commands.h"

#include "platform/run_time_error.h"
#include "platform/scripted/script_line.h"
#include "simulator/compartment.h"

namespace veritane::console {

using platform::RefusedLine;

namespace {

// What the compartment's file says. A damaged one says nothing, and the line replaces it.
simulator::CompartmentState InForce(const simulator::Compartment& compartment) {
  try {
    return compartment.Read();
  } catch (const platform::RunTimeError& error) {
    const auto number = static_cast<platform::ErrorNumber>(error.Number());
    if (number != platform::ErrorNumber::kInvalidCall && number != platform::ErrorNumber::kTypeMismatch)
      throw;
    return {};
  }
}

template <typename Value>
Value Setting(Value (*from)(const std::string&), const std::string& word, const std::string& what) {
  try {
    return from(word);
  } catch (const simulator::RefusedValue& refused) {
    throw RefusedLine("The " + what + " " + refused.what() + ".");
  }
}

void Apply(const std::vector<std::string>& words, simulator::CompartmentState& state) {
  const std::string& name = words[0];
  const std::string& value = words[1];
  if (name == "sample") {
    state.sample = value;
  } else if (name == "accessory") {
    state.accessory = value;
  } else if (name == "fault") {
    state.fault = Setting(simulator::FaultFrom, value, "error number");
    state.faultCount =
        words.size() == 3 ? Setting(simulator::FaultCountFrom, words[2], "number of times") : 1;
  } else if (name == "noise") {
    state.noise = Setting(simulator::NoiseFrom, value, "noise");
  } else if (name == "duration") {
    state.duration = Setting(simulator::DurationFrom, value, "duration");
  } else if (name == "seed") {
    state.seed = Setting(simulator::SeedFrom, value, "seed");
  } else {
    throw RefusedLine("The instrument has no \"" + name + "\".");
  }
}

}  // namespace

std::vector<nlohmann::ordered_json> SetInstrument(apps::SimulatedBench& bench,
                                                  const std::vector<std::string>& words) {
  const std::string name = words.empty() ? "" : words[0];
  if (name == "calls" && words.size() == 1) {
    return {{{"event", "calls"}, {"calls", bench.Calls().Take()}}};
  }
  if (words.size() < 2 || words.size() > (name == "fault" ? 3U : 2U)) {
    throw RefusedLine("app takes: sample, accessory, fault, noise, duration, seed with a value; or calls");
  }
  try {
    simulator::CompartmentState state = InForce(bench.SampleCompartment());
    Apply(words, state);
    bench.SampleCompartment().Write(state);
  } catch (const platform::RunTimeError& error) {
    throw RefusedLine(error.what());
  }
  return {};
}

}  // namespace veritane::console
