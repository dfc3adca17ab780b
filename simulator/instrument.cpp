// Collections and alignments of the simulated spectrometer.
#include "simulator/instrument.h"

#include "acquisition/spectrometer_app.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "simulator/instrument_noise.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veritane::simulator {

using platform::RunTimeError;
using platform::UpperCase;
using state::Ordinates;

namespace {

// The part of the background that lies under the method's points; empty when it does not cover them.
Ordinates BackgroundUnder(const WavenumberGrid& grid, const StoredSpectrum& background) {
  const Ordinates& all = background.ordinates;
  constexpr double kSameSpacing = 1e-9;
  if (std::abs(background.spacing - grid.spacing) > kSameSpacing * grid.spacing) return {};
  if (all.Empty() || all.lower > grid.lower || all.Upper() < grid.Upper()) return {};
  const auto begin = all.values.begin() + (grid.lower - all.lower);
  return {grid.lower, std::vector<double>(begin, begin + grid.points)};
}

// Why nothing can be measured against these energies; empty when it can.
std::string UnfitnessOf(const Ordinates& background) {
  if (background.Empty()) return "has another spacing or range than";
  const bool finite = std::all_of(background.values.begin(), background.values.end(),
                                  [](double energy) { return std::isfinite(energy); });
  if (!finite) return "holds what is no number at the points of";
  const bool has_energy = std::any_of(background.values.begin(), background.values.end(),
                                      [](double energy) { return energy > 0; });
  return has_energy ? "" : "holds no energy at the points of";
}

std::vector<NamedValue> ParametersOf(const CollectMethodSettings& method) {
  return {{"Resolution", method.resolution},
          {"Scans", static_cast<double>(method.scans)},
          {"Apodization", std::string(ApodizationName(method.apodization))},
          {"Accessory", method.accessory}};
}

}  // namespace

state::SpectrumBuffer AsAbsorbance(const StoredSpectrum& spectrum) {
  state::SpectrumBuffer buffer{spectrum.ordinates, spectrum.spacing,
                               static_cast<double>(spectrum.ordinates.Size())};
  if (UpperCase(spectrum.yUnits).find("TRANSMITTANCE") == std::string::npos) return buffer;
  std::vector<double>& values = buffer.Data.values;
  // Noise lifts a transmittance of 1 a little above it, never to 2.
  constexpr double kSurelyPercent = 2;
  const bool percent =
      std::any_of(values.begin(), values.end(), [](double value) { return value > kSurelyPercent; });
  constexpr double kOpaque = 1e-5;
  for (double& value : values) {
    // A missing ordinate stays missing; std::max would make it opaque.
    if (std::isfinite(value)) value = -std::log10(std::max(percent ? value / 100 : value, kOpaque));
  }
  return buffer;
}

SimulatedInstrument::SimulatedInstrument(Compartment compartment, InstrumentSurroundings surroundings)
    : compartment_(std::move(compartment)), surroundings_(std::move(surroundings)) {}

Measurement SimulatedInstrument::Collect(const CollectRequest& request) {
  try {
    return Measure(request);
  } catch (const Fault& fault) {
    Measurement failed;
    failed.error = Reported(fault);
    return failed;
  }
}

int SimulatedInstrument::Align(const CollectRequest& request) {
  try {
    const CompartmentState compartment = CheckedCompartment();
    CheckedMethod(request, compartment);
    PassTime(compartment);
    return acquisition::kNoInstrumentError;
  } catch (const Fault& fault) {
    return Reported(fault);
  }
}

int SimulatedInstrument::Reported(const Fault& fault) const {
  if (!fault.reason.empty() && surroundings_.report) surroundings_.report(fault.number, fault.reason);
  return fault.number;
}

Measurement SimulatedInstrument::Measure(const CollectRequest& request) {
  const CompartmentState compartment = CheckedCompartment();
  const CollectMethodSettings method = CheckedMethod(request, compartment);
  const WavenumberGrid grid = GridOf(method);
  Ordinates background;
  if (!request.backgroundName.empty()) {
    if (request.background == nullptr) throw Fault{kBackgroundMissing, request.backgroundFault};
    background = BackgroundUnder(grid, *request.background);
    const std::string unfitness = UnfitnessOf(background);
    if (!unfitness.empty()) {
      throw Fault{kBackgroundUnfit, request.backgroundName + " " + unfitness + " " + request.methodPath};
    }
  }
  const std::vector<SamplePart> sample = CheckedSample(compartment);
  PassTime(compartment);

  Measurement measurement;
  measurement.spacing = grid.spacing;
  measurement.parameters = ParametersOf(method);
  measurement.values = SingleBeam(sample, grid, ScanFor(method, compartment, request));
  if (background.Empty()) return measurement;
  if (method.ordinate == Ordinate::kAbsorbance) {
    measurement.values = AbsorbanceAgainst(background, measurement.values);
    measurement.yUnits = "ABSORBANCE";
  } else {
    measurement.values = TransmittanceAgainst(background, measurement.values);
    measurement.yUnits = "PERCENT TRANSMITTANCE";
  }
  return measurement;
}

CompartmentState SimulatedInstrument::CheckedCompartment() {
  CompartmentState compartment;
  std::int32_t fault = 0;
  try {
    fault = compartment_.TakeFault();
    compartment = compartment_.Read();
  } catch (const RunTimeError& error) {
    throw Fault{kCompartmentUnreadable, error.what()};
  }
  if (fault != 0) throw Fault{fault};
  return compartment;
}

CollectMethodSettings SimulatedInstrument::CheckedMethod(const CollectRequest& request,
                                                         const CompartmentState& compartment) const {
  CollectMethodSettings method;
  try {
    method = ParseCollectMethod(request.methodText);
  } catch (const RunTimeError& error) {
    throw Fault{kMethodUnreadable, request.methodPath + ": " + error.what()};
  }
  if (UpperCase(method.accessory) != UpperCase(compartment.accessory)) {
    throw Fault{acquisition::kWrongAccessory};
  }
  return method;
}

std::vector<SamplePart> SimulatedInstrument::CheckedSample(const CompartmentState& compartment) const {
  try {
    return SampleOf(compartment.sample, [this](const std::string& path) {
      return AsAbsorbance(surroundings_.openSpectrum(path));
    });
  } catch (const RunTimeError& error) {
    throw Fault{kSampleUnreadable, error.what()};
  }
}

void SimulatedInstrument::PassTime(const CompartmentState& compartment) const {
  if (compartment.duration > 0) surroundings_.wait(std::chrono::milliseconds(compartment.duration));
}

ScanSettings SimulatedInstrument::ScanFor(const CollectMethodSettings& method,
                                          const CompartmentState& compartment,
                                          const CollectRequest& request) {
  const std::uint64_t base = compartment.seed ? *compartment.seed : surroundings_.randomSeed();
  // Were sample and background of one seed alike in their noise, it would cancel in the ratio.
  const std::string what =
      std::to_string(++collections_) + "|" + compartment.sample + "|" + request.backgroundName;
  ScanSettings scan;
  scan.resolution = method.resolution;
  scan.apodization = method.apodization;
  scan.scans = method.scans;
  scan.attenuatedTotalReflection = UpperCase(method.accessory) == kAtrAccessory;
  scan.noise = compartment.noise;
  scan.seed = SeedFor(base, what);
  if (scan.noise > 0) {
    constexpr double kDrift = 0.03;
    NoiseGenerator weather(SeedFor(scan.seed, "atmosphere"));
    scan.atmosphere.water = std::max(0.0, 1 + kDrift * weather.Next());
    scan.atmosphere.carbonDioxide = std::max(0.0, 1 + kDrift * weather.Next());
  }
  return scan;
}

}  // namespace veritane::simulator
