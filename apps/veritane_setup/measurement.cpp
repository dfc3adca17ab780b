// The instrument model with a method's settings.
#include "apps/veritane_setup/measurement.h"

#include "simulator/instrument_model.h"

namespace veritane::setup {

state::Ordinates MeasureSingleBeam(const std::string& sample, const simulator::CollectMethodSettings& method,
                                   std::uint64_t seed) {
  simulator::ScanSettings scan;
  scan.resolution = method.resolution;
  scan.apodization = method.apodization;
  scan.scans = method.scans;
  scan.attenuatedTotalReflection = method.accessory == simulator::kAtrAccessory;
  scan.seed = seed;
  return simulator::SingleBeam(simulator::SampleOf(sample, {}), simulator::GridOf(method), scan);
}

state::Ordinates MeasureAbsorbance(const std::string& sample, const simulator::CollectMethodSettings& method,
                                   std::uint64_t seed) {
  // The background is another measurement, with noise of its own.
  constexpr std::uint64_t kBetweenMeasurements = 100;
  return simulator::AbsorbanceAgainst(MeasureSingleBeam("empty", method, seed + kBetweenMeasurements),
                                      MeasureSingleBeam(sample, method, seed));
}

}  // namespace veritane::setup
