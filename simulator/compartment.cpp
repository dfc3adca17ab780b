// The compartment's file.
#include "simulator/compartment.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"

#include <algorithm>
#include <limits>

namespace veritane::simulator {

using platform::RunTimeError;

namespace {

constexpr int kMostFaults = 32767;
constexpr int kLongestDuration = 3600000;
constexpr double kLoudestNoise = 1000;

std::string OneLine(const std::string& name) {
  if (std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; })) {
    throw RunTimeError(platform::ErrorNumber::kInvalidCall,
                       "a name in the sample compartment is one line of text");
  }
  return name;
}

void Apply(const KeyValueLine& line, CompartmentState& state) {
  if (line.key == "SAMPLE") {
    state.sample = line.value;
  } else if (line.key == "ACCESSORY") {
    state.accessory = line.value;
  } else if (line.key == "FAULT") {
    state.fault = FaultFrom(line.value);
  } else if (line.key == "FAULTCOUNT") {
    state.faultCount = FaultCountFrom(line.value);
  } else if (line.key == "NOISE") {
    state.noise = NoiseFrom(line.value);
  } else if (line.key == "DURATION") {
    state.duration = DurationFrom(line.value);
  } else if (line.key == "SEED") {
    state.seed = SeedFrom(line.value);
  }
}

}  // namespace

std::int32_t FaultFrom(const std::string& text) {
  return static_cast<std::int32_t>(WholeNumberFrom(text, std::numeric_limits<std::int32_t>::min(),
                                                   std::numeric_limits<std::int32_t>::max()));
}

int FaultCountFrom(const std::string& text) {
  return static_cast<int>(WholeNumberFrom(text, 0, kMostFaults));
}

double NoiseFrom(const std::string& text) {
  return NumberFrom(text, 0, kLoudestNoise);
}

int DurationFrom(const std::string& text) {
  return static_cast<int>(WholeNumberFrom(text, 0, kLongestDuration));
}

std::optional<std::uint32_t> SeedFrom(const std::string& text) {
  if (platform::UpperCase(text) == "RANDOM") return std::nullopt;
  return static_cast<std::uint32_t>(WholeNumberFrom(text, 0, std::numeric_limits<std::uint32_t>::max()));
}

CompartmentState ParseCompartment(std::string_view bytes) {
  CompartmentState state;
  for (const KeyValueLine& line : ReadKeyValueLines(bytes)) {
    if (line.value.empty()) continue;
    try {
      Apply(line, state);
    } catch (const RefusedValue& refused) {
      RefuseLine(line, refused);
    }
  }
  return state;
}

std::string CompartmentText(const CompartmentState& state) {
  std::string text;
  const auto add = [&text](std::string_view line) { text.append(line).append(platform::kLineEnd); };
  add("# What lies in the sample compartment of the simulated instrument.");
  add("Sample = " + OneLine(state.sample));
  add("Accessory = " + OneLine(state.accessory));
  add("Fault = " + std::to_string(state.fault));
  add("FaultCount = " + std::to_string(state.faultCount));
  add("Noise = " + platform::PlainNumberText(state.noise));
  add("Duration = " + std::to_string(state.duration));
  add("Seed = " + (state.seed ? std::to_string(*state.seed) : "random"));
  return text;
}

CompartmentState Compartment::Read() const {
  if (!files_.FileExists(path_)) return {};
  const std::string bytes = files_.ReadBytes(path_);
  try {
    return ParseCompartment(bytes);
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.Number(), path_ + ": " + error.what());
  }
}

void Compartment::Write(const CompartmentState& state) {
  const std::string text = CompartmentText(state);
  // A file that could not be read would refuse every later change too.
  ParseCompartment(text);
  files_.WriteBytes(path_, text);
}

std::int32_t Compartment::TakeFault() {
  CompartmentState state = Read();
  if (state.fault == 0 || state.faultCount == 0) return 0;
  const std::int32_t fault = state.fault;
  state.faultCount -= 1;
  if (state.faultCount == 0) state.fault = 0;
  Write(state);
  return fault;
}

}  // namespace veritane::simulator
