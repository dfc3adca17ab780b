// What lies in the sample compartment of the simulated instrument, kept in a small text file so that a panel,
// a script or an editor can change it while the program waits.
//
// The file is "Key = value" lines ("#" begins a comment): Sample, Accessory, Fault, FaultCount, Noise,
// Duration, Seed. A missing file or key or an empty value means the default; keys that are not known are
// passed over.
#pragma once

#include "platform/file_system.h"
#include "simulator/collect_method.h"
#include "simulator/key_value_lines.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veritane::simulator {

struct CompartmentState {
  std::string sample = "empty";  // as SampleOf of materials.h takes it
  std::string accessory = kTransmissionAccessory;
  std::int32_t fault = 0;             // instrument error number to report, 0 for none
  int faultCount = 0;                 // on how many of the next collections or alignments
  double noise = 1;                   // times the instrument's own noise; 0 for none
  int duration = 1500;                // of a collection, in milliseconds
  std::optional<std::uint32_t> seed;  // of the noise; nothing is "random"

  bool operator==(const CompartmentState&) const = default;
};

// Single values, from the texts that stand for them in the file. RefusedValue says why a text does not.
std::int32_t FaultFrom(const std::string& text);
int FaultCountFrom(const std::string& text);
double NoiseFrom(const std::string& text);
int DurationFrom(const std::string& text);
std::optional<std::uint32_t> SeedFrom(const std::string& text);

// Error 13 or 5 naming the line for a value that makes no sense.
CompartmentState ParseCompartment(std::string_view bytes);
// Error 5 for a sample or an accessory whose name would not fit in one line.
std::string CompartmentText(const CompartmentState& state);

// The file. Every call reads or writes it anew.
class Compartment {
public:
  // `path` is a Windows path; the file need not exist, its folder must when something is written.
  Compartment(platform::FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}

  // RunTimeError of the file system, or of ParseCompartment with the path before its text.
  CompartmentState Read() const;
  // Errors of the file system, of CompartmentText, and of ParseCompartment for values that would not be read
  // again.
  void Write(const CompartmentState& state);

  // The fault that the next collection or alignment reports, or 0. Lowers the count in the file.
  std::int32_t TakeFault();

private:
  platform::FileSystem& files_;
  std::string path_;
};

}  // namespace veritane::simulator
