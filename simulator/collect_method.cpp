// Reading and writing collect methods.
#include "simulator/collect_method.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"
#include "simulator/instrument_model.h"
#include "simulator/key_value_lines.h"

#include <functional>
#include <map>
#include <set>

namespace veritane::simulator {

using platform::ErrorNumber;
using platform::RunTimeError;

namespace {

constexpr double kFinestResolution = 0.5;
constexpr double kCoarsestResolution = 32;
constexpr double kFinestSpacing = 0.05;
constexpr int kMostScans = 10000;
constexpr std::int32_t kMostPoints = 100000;

double WavenumberFrom(const KeyValueLine& line, double least, double most) {
  return NumberBetween(line, least, most, "cm-1");
}

Apodization ApodizationFrom(const KeyValueLine& line) {
  if (const auto apodization = ApodizationNamed(line.value)) return *apodization;
  RefuseLine(line, "Apodization is Boxcar, Triangular, Happ-Genzel or Norton-Beer");
}

Ordinate OrdinateFrom(const KeyValueLine& line) {
  const std::string word = platform::UpperCase(line.value);
  if (word == "ABSORBANCE") return Ordinate::kAbsorbance;
  if (word == "TRANSMITTANCE") return Ordinate::kTransmittance;
  RefuseLine(line, "Ordinate is Absorbance or Transmittance");
}

std::string AccessoryFrom(const KeyValueLine& line) {
  if (line.value.empty()) RefuseLine(line, "the accessory is missing");
  return line.value;
}

using Setter = std::function<void(CollectMethodSettings&, const KeyValueLine&)>;

const std::map<std::string, Setter, std::less<>>& Setters() {
  static const std::map<std::string, Setter, std::less<>> setters{
      {"FROM",
       [](auto& s, const auto& line) {
         s.from = WavenumberFrom(line, kLowestWavenumber, kHighestWavenumber);
       }},
      {"TO",
       [](auto& s, const auto& line) { s.to = WavenumberFrom(line, kLowestWavenumber, kHighestWavenumber); }},
      {"SPACING",
       [](auto& s, const auto& line) {
         s.spacing = WavenumberFrom(line, kFinestSpacing, kCoarsestResolution);
       }},
      {"RESOLUTION",
       [](auto& s, const auto& line) {
         s.resolution = WavenumberFrom(line, kFinestResolution, kCoarsestResolution);
       }},
      {"SCANS",
       [](auto& s, const auto& line) {
         s.scans = static_cast<int>(WholeNumberBetween(line, 1, kMostScans));
       }},
      {"APODIZATION", [](auto& s, const auto& line) { s.apodization = ApodizationFrom(line); }},
      {"ORDINATE", [](auto& s, const auto& line) { s.ordinate = OrdinateFrom(line); }},
      {"ACCESSORY", [](auto& s, const auto& line) { s.accessory = AccessoryFrom(line); }},
  };
  return setters;
}

void CheckRange(const CollectMethodSettings& settings) {
  if (!(settings.from < settings.to)) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "From lies below To");
  }
  const WavenumberGrid grid = GridOf(settings);
  if (grid.points < 2 || grid.points > kMostPoints) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "the range holds " + std::to_string(grid.points) +
                                                      " points; 2 to " + std::to_string(kMostPoints) +
                                                      " can be measured");
  }
}

}  // namespace

WavenumberGrid GridOf(const CollectMethodSettings& settings) {
  return GridOver(settings.from, settings.to, settings.spacing);
}

CollectMethodSettings ParseCollectMethod(std::string_view bytes) {
  CollectMethodSettings settings;
  std::set<std::string> seen;
  for (const KeyValueLine& line : ReadKeyValueLines(bytes)) {
    const auto setter = Setters().find(line.key);
    if (setter == Setters().end()) RefuseLine(line, "a collect method has no key \"" + line.key + "\"");
    if (!seen.insert(line.key).second) RefuseLine(line, line.key + " stands there twice");
    setter->second(settings, line);
  }
  CheckRange(settings);
  return settings;
}

std::string CollectMethodText(const CollectMethodSettings& settings) {
  const auto number = [](double value) { return platform::PlainNumberText(value); };
  std::string text;
  const auto add = [&text](std::string_view line) { text.append(line).append(platform::kLineEnd); };
  add("# Collect method. Wavenumbers in cm-1.");
  add("From = " + number(settings.from));
  add("To = " + number(settings.to));
  add("Spacing = " + number(settings.spacing));
  add("Resolution = " + number(settings.resolution));
  add("Scans = " + std::to_string(settings.scans));
  add("Apodization = " + std::string(ApodizationName(settings.apodization)));
  add(settings.ordinate == Ordinate::kAbsorbance ? "Ordinate = Absorbance" : "Ordinate = Transmittance");
  add("Accessory = " + settings.accessory);
  return text;
}

}  // namespace veritane::simulator
