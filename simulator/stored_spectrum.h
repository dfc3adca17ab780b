// A spectrum as the simulator keeps it: its points on whole multiples of their spacing, its name and time,
// and everything else that its file says about it.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "shell/state/spectrum_buffer.h"

#include <string>
#include <vector>

namespace veritane::simulator {

// A parameter of a spectrum besides its name and time; kept in files as a private label.
struct NamedValue {
  std::string name;
  acquisition::ParameterValue value;

  bool operator==(const NamedValue&) const = default;
};

// A public label of a file ("OWNER", "RESOLUTION") with its text, kept so that saving loses nothing.
struct FileLabel {
  std::string name;
  std::string text;

  bool operator==(const FileLabel&) const = default;
};

struct StoredSpectrum {
  std::string name;  // parameter "SpectName"
  std::string time;  // parameter "Time", "2026/11/21 10:59:00" where the program wrote it
  std::string dataType = "INFRARED SPECTRUM";
  std::string xUnits = "1/CM";
  std::string yUnits = "ARBITRARY UNITS";
  std::vector<FileLabel> labels;
  std::vector<NamedValue> parameters;
  double spacing = 0;  // distance of the points, positive
  state::Ordinates ordinates;
};

}  // namespace veritane::simulator
