// Checking what was typed, with the simulator's own readers.
#include "apps/simulator_panel/panel_entries.h"

#include <algorithm>
#include <string_view>

#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "simulator/compartment.h"
#include "simulator/instrument.h"
#include "simulator/materials.h"
#include "simulator/spectrum_file.h"

namespace veritane::simulator_panel {

namespace {

using simulator::CompartmentState;

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// One line of text that is not empty.
std::string Name(const std::string& text, const std::string& what) {
  std::string name = Trimmed(text);
  if (name.empty()) throw RefusedEntry("Enter " + what + ".");
  const bool is_one_line =
      std::none_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
  if (!is_one_line) throw RefusedEntry("A name is one line of text.");
  return name;
}

// Reads the entry as the compartment's file would be read. The reader's complaint begins with the line and
// the key, which a user of the panel does not see; `what` stands in their place.
CompartmentState AsLine(const std::string& key, const std::string& text, const std::string& what) {
  const std::string value = Name(text, what);
  try {
    return simulator::ParseCompartment(key + " = " + value);
  } catch (const platform::RunTimeError& error) {
    std::string_view reason = error.what();
    const std::size_t named = reason.find(platform::UpperCase(key));
    if (named != std::string_view::npos) reason.remove_prefix(named + key.size());
    throw RefusedEntry("T" + what.substr(1) + std::string(reason) + ".");
  }
}

// What the error says of this case, without the text that all errors of its number begin with.
std::string WithoutNumberText(const platform::RunTimeError& error) {
  std::string text = error.what();
  const std::string common = platform::ErrorText(platform::ErrorNumber::kInvalidCall) + ": ";
  if (text.starts_with(common)) text.erase(0, common.size());
  if (text.starts_with("no ")) text.front() = 'N';
  return text;
}

bool IsWholePath(const std::string& name) {
  return name.size() > 2 && name[1] == ':' && name[2] == '\\';
}

}  // namespace

std::string SampleEntry(const std::string& text, const platform::FileSystem& files) {
  std::string name = Name(text, "a material or the path of a spectrum file");
  try {
    simulator::SampleOf(name, [&files](const std::string& path) {
      // The instrument may run in another folder than the panel.
      if (!IsWholePath(path))
        throw RefusedEntry("A path begins with its drive, as in C:\\Spectra\\film.jdx.");
      const simulator::SpectrumFile file = simulator::ReadSpectrumFile(path, files.ReadBytes(path));
      if (file.spectra.empty()) throw RefusedEntry(path + " holds no spectrum.");
      return simulator::AsAbsorbance(file.spectra.front());
    });
  } catch (const platform::RunTimeError& error) {
    if (error.Number() == static_cast<int>(platform::ErrorNumber::kFileNotFound) ||
        error.Number() == static_cast<int>(platform::ErrorNumber::kPathNotFound)) {
      throw RefusedEntry("There is no file " + name + ".");
    }
    throw RefusedEntry(WithoutNumberText(error) + ".");
  }
  return name;
}

std::string AccessoryEntry(const std::string& text) {
  return Name(text, "the accessory's name");
}

std::int32_t FaultEntry(const std::string& text) {
  const std::int32_t fault = AsLine("Fault", text, "the error number").fault;
  if (fault == 0) throw RefusedEntry("The error number 0 would be no fault.");
  return fault;
}

int FaultCountEntry(const std::string& text) {
  const int count = AsLine("FaultCount", text, "the number of times").faultCount;
  if (count == 0) throw RefusedEntry("The number of times is at least 1.");
  return count;
}

double NoiseEntry(const std::string& text) {
  return AsLine("Noise", text, "the noise").noise;
}

int DurationEntry(const std::string& text) {
  return AsLine("Duration", text, "the duration").duration;
}

std::uint32_t SeedEntry(const std::string& text) {
  const auto seed = AsLine("Seed", text, "the seed").seed;
  if (!seed) throw RefusedEntry("The seed is a number.");
  return *seed;
}

}  // namespace veritane::simulator_panel
