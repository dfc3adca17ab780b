// Collect methods: what a ".clm" file asks of the instrument.
//
// The file is text, one "Key = value" a line; a line that begins with "#" is a comment. A key that is missing
// keeps its default, a key that is not known or stands twice is refused, so that a slip of the pen never
// measures silently with other settings. Keys and the words among the values are read without regard to case.
#pragma once

#include "simulator/instrument_line_shape.h"
#include "simulator/wavenumber_grid.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace veritane::simulator {

enum class Ordinate { kAbsorbance, kTransmittance };

inline constexpr const char* kTransmissionAccessory = "Transmission";
inline constexpr const char* kAtrAccessory = "ATR";

struct CollectMethodSettings {
  double from = 400;  // cm⁻¹
  double to = 4000;
  double spacing = 1;
  double resolution = 4;
  int scans = 16;
  Apodization apodization = Apodization::kHappGenzel;
  Ordinate ordinate = Ordinate::kAbsorbance;
  std::string accessory = kTransmissionAccessory;

  bool operator==(const CollectMethodSettings&) const = default;
};

// The wavenumbers that the method measures.
WavenumberGrid GridOf(const CollectMethodSettings& settings);

// Reads a file's bytes. Error 13 for a value that does not convert, 5 for everything else that cannot be
// measured (an unknown key, a range outside the optics, …); the text begins with the line's number where
// there is one.
CollectMethodSettings ParseCollectMethod(std::string_view bytes);

// The settings as a file.
std::string CollectMethodText(const CollectMethodSettings& settings);

}  // namespace veritane::simulator
