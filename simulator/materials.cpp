// Look-up of materials and mixtures, and the absorbance of their bands.
#include "simulator/materials.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"
#include "simulator/materials_tables.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace veritane::simulator {

using platform::ErrorNumber;
using platform::RunTimeError;
using platform::TrimBlanks;
using platform::UpperCase;

namespace {

constexpr std::string_view kEmptyNames[] = {"", "nothing", "air"};

std::vector<Material> AllMaterials() {
  std::vector<Material> all{{"empty", kEmptyNames, 0, {}}};
  for (const auto group : {Polymers(), Pharmaceuticals(), Liquids()})
    all.insert(all.end(), group.begin(), group.end());
  return all;
}

bool IsSpectrumPath(std::string_view name) {
  if (name.find('\\') != std::string_view::npos) return true;
  const std::string upper = UpperCase(name);
  return upper.ends_with(".JDX") || upper.ends_with(".DX") || upper.ends_with(".JCM") ||
         upper.ends_with(".BSP");
}

const Material& KnownMaterial(std::string_view name) {
  if (const Material* material = FindMaterial(name)) return *material;
  throw UnknownMaterial(std::string(name));
}

// "polystyrene 0.6" is 0.6 of polystyrene; a name alone has the share 1.
SamplePart MixturePart(std::string_view text) {
  const std::string_view part = TrimBlanks(text);
  const std::size_t blank = part.rfind(' ');
  if (blank != std::string_view::npos && FindMaterial(part) == nullptr) {
    const auto share = platform::ParseNumber(part.substr(blank));
    if (share && *share >= 0) return {&KnownMaterial(TrimBlanks(part.substr(0, blank))), {}, *share};
  }
  return {&KnownMaterial(part), {}, 1};
}

SamplePart SpectrumPart(const std::string& path, const LoadSpectrum& load) {
  SamplePart part{nullptr, load(path), 1};
  const std::vector<double>& values = part.spectrum.Data.values;
  // One missing ordinate would spread over the neighbourhood when the line shape is applied.
  if (!std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); })) {
    throw RunTimeError(ErrorNumber::kTypeMismatch, path + ": an ordinate is missing or no number");
  }
  return part;
}

// Adds value(distance from the centre) at each point of the grid that lies within `reach` of the centre.
template <typename Shape>
void AddShape(const WavenumberGrid& grid, double centre, double reach, std::span<double> sum, Shape value) {
  const double first = std::ceil((centre - reach) / grid.spacing) - grid.lower;
  const double last = std::floor((centre + reach) / grid.spacing) - grid.lower;
  if (last < 0 || first > static_cast<double>(sum.size()) - 1) return;
  const auto begin = static_cast<std::size_t>(std::max(first, 0.0));
  const auto end = static_cast<std::size_t>(std::min(last, static_cast<double>(sum.size()) - 1)) + 1;
  for (std::size_t i = begin; i < end; ++i) sum[i] += value(grid.Wavenumber(i) - centre);
}

void AddLorentz(const Band& band, double height, const WavenumberGrid& grid, std::span<double> sum) {
  // Wings of condensed matter fall faster than Lorentz's; the curve is lowered so that it ends at 0, without
  // a step.
  constexpr double kReachInWidths = 20;
  constexpr double kFloor = 1 / (1 + 4 * kReachInWidths * kReachInWidths);
  const double inverse_half_width = 2 / band.width;
  const double scale = height / (1 - kFloor);
  AddShape(grid, band.wavenumber, kReachInWidths * band.width, sum, [=](double distance) {
    const double x = distance * inverse_half_width;
    return scale * (1 / (1 + x * x) - kFloor);
  });
}

void AddGauss(const Band& band, double height, const WavenumberGrid& grid, std::span<double> sum) {
  // At three widths the curve has fallen to 1e-11.
  constexpr double kReachInWidths = 3;
  const double steepness = 4 * std::numbers::ln2 / (band.width * band.width);
  AddShape(grid, band.wavenumber, kReachInWidths * band.width, sum,
           [=](double distance) { return height * std::exp(-steepness * distance * distance); });
}

}  // namespace

std::span<const Material> Materials() {
  static const std::vector<Material> all = AllMaterials();
  return all;
}

const Material* FindMaterial(std::string_view name) {
  const std::string wanted = UpperCase(TrimBlanks(name));
  for (const Material& material : Materials()) {
    if (UpperCase(material.key) == wanted) return &material;
    for (std::string_view alias : material.aliases) {
      if (UpperCase(alias) == wanted) return &material;
    }
  }
  return nullptr;
}

void AddBands(std::span<const Band> bands, double scale, const WavenumberGrid& grid,
              std::span<double> absorbance) {
  for (const Band& band : bands) {
    const double height = scale * band.height;
    AddLorentz(band, height * band.lorentz, grid, absorbance);
    AddGauss(band, height * (1 - band.lorentz), grid, absorbance);
  }
}

std::vector<SamplePart> SampleOf(const std::string& name, const LoadSpectrum& load) {
  if (IsSpectrumPath(name)) return {SpectrumPart(name, load)};
  std::vector<SamplePart> parts;
  std::string_view rest = name;
  while (true) {
    const std::size_t plus = rest.find('+');
    parts.push_back(MixturePart(rest.substr(0, plus)));
    if (plus == std::string_view::npos) return parts;
    rest.remove_prefix(plus + 1);
  }
}

std::vector<double> SampleAbsorbance(std::span<const SamplePart> sample, const WavenumberGrid& grid) {
  std::vector<double> absorbance(grid.Size(), 0.0);
  for (const SamplePart& part : sample) {
    if (part.material != nullptr) {
      AddBands(part.material->bands, part.share * part.material->absorbance, grid, absorbance);
      continue;
    }
    const std::vector<double> measured = InterpolatedOnto(grid, part.spectrum.Data, part.spectrum.Res);
    for (std::size_t i = 0; i < measured.size(); ++i) absorbance[i] += part.share * measured[i];
  }
  return absorbance;
}

}  // namespace veritane::simulator
