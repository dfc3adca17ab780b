// The materials that can lie in the simulated sample compartment, as tables of their infrared bands.
//
// A band's shape is a sum of a Lorentz and a Gauss curve of the same centre, height and full width at half
// maximum. Positions, relative heights and widths follow the published spectra named in docs/simulator.md.
#pragma once

#include "platform/run_time_error.h"
#include "shell/state/spectrum_buffer.h"
#include "simulator/wavenumber_grid.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace veritane::simulator {

struct Band {
  double wavenumber;     // centre, cm⁻¹
  double height;         // relative to the material's strongest band
  double width;          // full width at half maximum, cm⁻¹
  double lorentz = 0.7;  // share of the Lorentz curve, 0 to 1; the rest is Gauss
};

struct Material {
  std::string_view key;  // the name in scripts and on the panel, in lower case
  std::span<const std::string_view> aliases;
  double absorbance;  // of a band of height 1, as the sample is usually prepared
  std::span<const Band> bands;
};

// All materials; "empty" is the first.
std::span<const Material> Materials();

// The material of this key or alias without regard to case and to blanks around it, or nullptr.
const Material* FindMaterial(std::string_view name);

// Adds `scale` times the bands' absorbance at the grid's wavenumbers to `absorbance`, one value a point of
// the grid.
void AddBands(std::span<const Band> bands, double scale, const WavenumberGrid& grid,
              std::span<double> absorbance);

// Opens a spectrum file as absorbance; RunTimeError when it is missing or damaged.
using LoadSpectrum = std::function<state::SpectrumBuffer(const std::string& path)>;

// One component of a sample: a material of the table or a spectrum, and its share.
struct SamplePart {
  const Material* material = nullptr;  // nullptr for a spectrum of a file
  state::SpectrumBuffer spectrum;      // absorbance, used without a material
  double share = 1;
};

// Error 5 for a name that is no material's.
class UnknownMaterial : public platform::RunTimeError {
public:
  explicit UnknownMaterial(std::string name)
      : RunTimeError(platform::ErrorNumber::kInvalidCall, "no material is named \"" + name + "\""),
        name_(std::move(name)) {}

  const std::string& Name() const { return name_; }

private:
  std::string name_;
};

// What lies in the compartment, from its name: a material ("aspirin"), the Windows path of a spectrum file (a
// name with "\" or ending .jdx, .dx, .jcm or .bsp), or a mixture of materials with their shares: "polystyrene
// 0.6 + PMMA 0.4". UnknownMaterial; errors of `load` pass through.
std::vector<SamplePart> SampleOf(const std::string& name, const LoadSpectrum& load);

// The sample's absorbance as an instrument of unlimited resolution would see it: by Beer's law the sum over
// its parts.
std::vector<double> SampleAbsorbance(std::span<const SamplePart> sample, const WavenumberGrid& grid);

}  // namespace veritane::simulator
