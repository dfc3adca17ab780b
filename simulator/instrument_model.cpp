// The simulated spectrometer's optics.
#include "simulator/instrument_model.h"

#include "platform/run_time_error.h"
#include "simulator/instrument_noise.h"
#include "simulator/radiation_constants.h"

#include <Eigen/Core>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace veritane::simulator {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Ordinates;

namespace {

// Puts the greatest energy of the empty compartment near 100.
constexpr double kGain = 100 / 5.32e-4;

constexpr double kDarkness = 1e-6;

// The wavenumbers at which the light is computed before the line shape is applied: `perPoint` steps to one
// point of the wanted grid, and beyond its ends as many as the line shape's `taps` reach.
struct FineGrid {
  WavenumberGrid grid;
  std::int32_t perPoint;
  std::vector<double> taps;
};

FineGrid FineGridFor(const WavenumberGrid& grid, const ScanSettings& settings) {
  // A step of an eighth of the resolution resolves the line shape, 1 cm⁻¹ the bands of liquids and solids.
  const double largest_step = std::min(settings.resolution / 8, 1.0);
  const auto per_point = static_cast<std::int32_t>(std::ceil(grid.spacing / largest_step - 1e-9));
  const double step = grid.spacing / per_point;
  constexpr double kReachInResolutions = 12;
  std::vector<double> taps = LineShapeTaps(settings.apodization, settings.resolution, step,
                                           kReachInResolutions * settings.resolution);
  const auto margin = static_cast<std::int32_t>(taps.size() / 2);
  return {{.lower = grid.lower * per_point - margin,
           .points = (grid.points - 1) * per_point + 1 + 2 * margin,
           .spacing = step},
          per_point,
          std::move(taps)};
}

// The light that reaches the detector at each wavenumber, before the line shape.
std::vector<double> LightOn(const WavenumberGrid& grid, std::span<const SamplePart> sample,
                            const ScanSettings& settings) {
  std::vector<double> light = SampleAbsorbance(sample, grid);
  if (settings.attenuatedTotalReflection) {
    constexpr double kUnitDepth = 1000;
    for (std::size_t i = 0; i < light.size(); ++i) light[i] *= kUnitDepth / std::max(grid.Wavenumber(i), 1.0);
  }
  AddAtmosphere(settings.atmosphere, grid, light);
  for (std::size_t i = 0; i < light.size(); ++i) {
    const double wavenumber = grid.Wavenumber(i);
    light[i] = kGain * PlanckRadiance(wavenumber, kSourceTemperature) * OpticalResponse(wavenumber) *
               std::exp(-std::numbers::ln10 * light[i]);
  }
  return light;
}

template <typename Ratio>
Ordinates Ratioed(const Ordinates& background, const Ordinates& sample, Ratio ratio) {
  if (background.lower != sample.lower || background.Size() != sample.Size()) {
    throw RunTimeError(ErrorNumber::kSubscript, "sample and background have different bounds");
  }
  Ordinates result{sample.lower, std::vector<double>(sample.Size())};
  for (std::size_t i = 0; i < sample.Size(); ++i) {
    const double transmittance =
        std::max(sample.values[i], kDarkness) / std::max(background.values[i], kDarkness);
    result.values[i] = ratio(std::clamp(transmittance, 1e-5, 10.0));
  }
  return result;
}

ScanSettings WithoutNoise(double resolution) {
  ScanSettings settings;
  settings.resolution = resolution;
  settings.noise = 0;
  return settings;
}

}  // namespace

double PlanckRadiance(double wavenumber, double kelvin) {
  if (!(wavenumber > 0)) return 0;
  return kFirstRadiationConstant * wavenumber * wavenumber * wavenumber /
         std::expm1(kSecondRadiationConstant * wavenumber / kelvin);
}

double OpticalResponse(double wavenumber) {
  if (!(wavenumber > 0)) return 0;
  // Potassium bromide ends below 400 cm⁻¹; the beam splitter's coating fades towards the near infrared; a
  // pyroelectric detector's signal falls with the modulation frequency, which is proportional to the
  // wavenumber.
  const double windows = 1 / (1 + std::exp((360 - wavenumber) / 18));
  const double fade = wavenumber / 6500;
  const double splitter = 1 / (1 + fade * fade * fade * fade);
  const double frequency = wavenumber / 900;
  const double detector = 1 / std::sqrt(1 + frequency * frequency);
  return windows * splitter * detector;
}

double NoiseDeviation(const ScanSettings& settings) {
  return settings.noise * kNoiseOfOneScan * (4 / settings.resolution) /
         std::sqrt(static_cast<double>(settings.scans));
}

Ordinates SingleBeam(std::span<const SamplePart> sample, const WavenumberGrid& grid,
                     const ScanSettings& settings) {
  const FineGrid fine = FineGridFor(grid, settings);
  const std::vector<double> light = LightOn(fine.grid, sample, settings);
  Ordinates beam{grid.lower, std::vector<double>(grid.Size())};
  const auto tap_count = static_cast<Eigen::Index>(fine.taps.size());
  const Eigen::Map<const Eigen::VectorXd> taps(fine.taps.data(), tap_count);
  for (std::size_t i = 0; i < beam.values.size(); ++i) {
    const std::size_t first = i * static_cast<std::size_t>(fine.perPoint);
    beam.values[i] = taps.dot(Eigen::Map<const Eigen::VectorXd>(light.data() + first, tap_count));
  }
  const double deviation = NoiseDeviation(settings);
  if (deviation > 0) {
    NoiseGenerator generator(settings.seed);
    const std::vector<double> taps_of_noise =
        LineShapeTaps(settings.apodization, settings.resolution, grid.spacing, 4 * settings.resolution);
    const std::vector<double> noise = CorrelatedNoise(generator, taps_of_noise, beam.values.size());
    for (std::size_t i = 0; i < noise.size(); ++i) beam.values[i] += deviation * noise[i];
  }
  return beam;
}

Ordinates TransmittanceAgainst(const Ordinates& background, const Ordinates& sample) {
  return Ratioed(background, sample, [](double transmittance) { return 100 * transmittance; });
}

Ordinates AbsorbanceAgainst(const Ordinates& background, const Ordinates& sample) {
  return Ratioed(background, sample, [](double transmittance) { return -std::log10(transmittance); });
}

Ordinates AbsorbanceOf(const std::string& name, const WavenumberGrid& grid, double resolution) {
  const std::vector<SamplePart> sample = SampleOf(name, [](const std::string& path) -> state::SpectrumBuffer {
    throw RunTimeError(ErrorNumber::kInvalidCall, path + " is a file, not a material");
  });
  return AbsorbanceAgainst(BackgroundOf(grid, resolution),
                           SingleBeam(sample, grid, WithoutNoise(resolution)));
}

Ordinates BackgroundOf(const WavenumberGrid& grid, double resolution) {
  return SingleBeam({}, grid, WithoutNoise(resolution));
}

}  // namespace veritane::simulator
