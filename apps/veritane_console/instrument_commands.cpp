// Setting the simulated instrument from a script.
#include "apps/veritane_console/instrument_commands.h"

#include <cmath>
#include <limits>

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/scripted/script_line.h"

namespace veritane::console {

using platform::RefusedLine;

namespace {

double Number(const std::string& text) {
  const auto number = platform::ParseNumber(text);
  if (!number) throw RefusedLine("\"" + text + "\" is not a number");
  return *number;
}

int WholeNumber(const std::string& text) {
  const double number = Number(text);
  if (number != std::floor(number) || std::abs(number) > std::numeric_limits<int>::max()) {
    throw RefusedLine("\"" + text + "\" is not a whole number");
  }
  return static_cast<int>(number);
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
  simulator::CompartmentState state = bench.SampleCompartment().Read();
  const std::string& value = words[1];
  if (name == "sample") {
    state.sample = value;
  } else if (name == "accessory") {
    state.accessory = value;
  } else if (name == "fault") {
    state.fault = WholeNumber(value);
    state.faultCount = words.size() == 3 ? WholeNumber(words[2]) : 1;
  } else if (name == "noise") {
    state.noise = Number(value);
  } else if (name == "duration") {
    state.duration = WholeNumber(value);
  } else if (name == "seed") {
    state.seed =
        value == "random" ? std::nullopt : std::optional(static_cast<std::uint32_t>(WholeNumber(value)));
  } else {
    throw RefusedLine("the instrument has no \"" + name + "\"");
  }
  try {
    bench.SampleCompartment().Write(state);
  } catch (const platform::RunTimeError& error) {
    throw RefusedLine(error.what());
  }
  return {};
}

}  // namespace veritane::console
