// Checking what was typed, with the simulator's own readers.
#include "apps/simulator_panel/panel_entries.h"

#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "simulator/compartment.h"
#include "simulator/instrument.h"
#include "simulator/materials.h"
#include "simulator/spectrum_file.h"

#include <algorithm>

namespace veritane::simulator_panel {

namespace {

// One line of text that is not empty.
std::string Name(const std::string& text, const std::string& what) {
  std::string name(platform::TrimBlanks(text));
  if (name.empty()) throw RefusedEntry("Enter " + what + ".");
  const bool is_one_line =
      std::none_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
  if (!is_one_line) throw RefusedEntry("A name is one line of text.");
  return name;
}

// Reads the entry as the compartment's file would be read.
template <typename Value>
Value Setting(Value (*from)(const std::string&), const std::string& text, const std::string& what) {
  const std::string entered = Name(text, "the " + what);
  try {
    return from(entered);
  } catch (const simulator::RefusedValue& refused) {
    throw RefusedEntry("The " + what + " " + refused.what() + ".");
  }
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
      return simulator::AsAbsorbance(file.spectra.front());
    });
  } catch (const simulator::UnknownMaterial& unknown) {
    throw RefusedEntry("No material is named \"" + unknown.Name() + "\".");
  } catch (const platform::RunTimeError& error) {
    if (error.Number() == static_cast<int>(platform::ErrorNumber::kFileNotFound) ||
        error.Number() == static_cast<int>(platform::ErrorNumber::kPathNotFound)) {
      throw RefusedEntry("There is no file " + name + ".");
    }
    throw RefusedEntry(std::string(error.what()) + ".");
  }
  return name;
}

std::string AccessoryEntry(const std::string& text) {
  return Name(text, "the accessory's name");
}

std::int32_t FaultEntry(const std::string& text) {
  const std::int32_t fault = Setting(simulator::FaultFrom, text, "error number");
  if (fault == 0) throw RefusedEntry("The error number 0 would be no fault.");
  return fault;
}

int FaultCountEntry(const std::string& text) {
  const int count = Setting(simulator::FaultCountFrom, text, "number of times");
  if (count == 0) throw RefusedEntry("The number of times is at least 1.");
  return count;
}

double NoiseEntry(const std::string& text) {
  return Setting(simulator::NoiseFrom, text, "noise");
}

int DurationEntry(const std::string& text) {
  return Setting(simulator::DurationFrom, text, "duration");
}

std::uint32_t SeedEntry(const std::string& text) {
  const auto seed = Setting(simulator::SeedFrom, text, "seed");
  if (!seed) throw RefusedEntry("The seed is a number.");
  return *seed;
}

}  // namespace veritane::simulator_panel
