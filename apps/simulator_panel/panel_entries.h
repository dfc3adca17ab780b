// What people type into the simulator panel, checked. Every function gives the value, or says in a
// RefusedEntry why there is none. The bounds are those of the compartment's file.
#pragma once

#include "platform/file_system.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace veritane::simulator_panel {

// The text is a whole sentence for the user.
struct RefusedEntry : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// A material, a mixture, or the whole Windows path of a spectrum file that can be read.
std::string SampleEntry(const std::string& text, const platform::FileSystem& files);
std::string AccessoryEntry(const std::string& text);
// Any number but 0, which would be no fault.
std::int32_t FaultEntry(const std::string& text);
// At least 1.
int FaultCountEntry(const std::string& text);
double NoiseEntry(const std::string& text);
int DurationEntry(const std::string& text);
std::uint32_t SeedEntry(const std::string& text);

}  // namespace veritane::simulator_panel
