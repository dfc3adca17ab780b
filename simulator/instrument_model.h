// How the simulated spectrometer makes a spectrum: source, optics, detector, atmosphere, sample, line shape,
// noise.
//
//   S(ν) = g · { B(ν, T) · D(ν) · 10^-(a(ν) + A(ν)) } ⊗ line shape  +  noise
//
// with Planck's radiance B, the response D of beam splitter, windows and detector, the absorbance a of the
// atmosphere and A of the sample, and a gain g that puts the greatest energy near 100. Pure functions.
#pragma once

#include "shell/state/spectrum_buffer.h"
#include "simulator/instrument_atmosphere.h"
#include "simulator/instrument_line_shape.h"
#include "simulator/materials.h"
#include "simulator/wavenumber_grid.h"

#include <cstdint>
#include <span>
#include <vector>

namespace veritane::simulator {

// Range of the optics (potassium bromide beam splitter and windows), cm⁻¹.
inline constexpr double kLowestWavenumber = 350;
inline constexpr double kHighestWavenumber = 7800;
inline constexpr double kSourceTemperature = 1350;  // K

// Spectral radiance of a black body per wavenumber in W/(cm² sr cm⁻¹); 0 at and below 0 cm⁻¹.
double PlanckRadiance(double wavenumber, double kelvin);

// What beam splitter, windows and a pyroelectric detector make of the radiance; a factor from 0 to 1.
double OpticalResponse(double wavenumber);

// How a spectrum is taken.
struct ScanSettings {
  double resolution = 4;  // cm⁻¹
  Apodization apodization = Apodization::kHappGenzel;
  int scans = 16;
  bool attenuatedTotalReflection = false;
  Atmosphere atmosphere;
  double noise = 1;  // 1 is the instrument as delivered, 0 none
  std::uint64_t seed = 1;
};

// Standard deviation of one scan's noise at 4 cm⁻¹, in units of energy.
inline constexpr double kNoiseOfOneScan = 0.04;
// The standard deviation with these settings: it grows with finer resolution, because less light falls into
// each element, and falls with the square root of the number of scans.
double NoiseDeviation(const ScanSettings& settings);

// The single beam at the grid's wavenumbers in units of energy (the empty compartment's maximum is about
// 100). With attenuated total reflection the sample's absorbance is multiplied by the relative penetration
// depth, which is proportional to the wavelength and 1 at 1000 cm⁻¹ (N. J. Harrick, "Internal Reflection
// Spectroscopy", 1967).
state::Ordinates SingleBeam(std::span<const SamplePart> sample, const WavenumberGrid& grid,
                            const ScanSettings& settings);

// sample/background in per cent, and its negative decimal logarithm. Both have the same bounds; energies too
// small to be told from darkness count as the darkness, so every result is finite (absorbance from -1 to 5).
state::Ordinates TransmittanceAgainst(const state::Ordinates& background, const state::Ordinates& sample);
state::Ordinates AbsorbanceAgainst(const state::Ordinates& background, const state::Ordinates& sample);

// The absorbance that the instrument shows without noise, for demonstration spectra. `name` as SampleOf takes
// it (no spectrum files); error 5 for an unknown material.
state::Ordinates AbsorbanceOf(const std::string& name, const WavenumberGrid& grid, double resolution = 4);
// The empty compartment's single beam without noise.
state::Ordinates BackgroundOf(const WavenumberGrid& grid, double resolution = 4);

}  // namespace veritane::simulator
