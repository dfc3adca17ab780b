// From the text of a spectrum file to spectra on their grid.
#include "simulator/spectrum_file.h"

#include "platform/run_time_error.h"
#include "simulator/jcamp_reader.h"
#include "simulator/placed_spectrum.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace veritane::simulator {

namespace {

// Adds a line to a text parameter, so that what an earlier reading found stays.
void AddLine(StoredSpectrum& spectrum, std::string_view name, const std::string& line) {
  const auto found = std::ranges::find(spectrum.parameters, name, &NamedValue::name);
  if (found == spectrum.parameters.end()) {
    spectrum.parameters.push_back({std::string(name), line});
    return;
  }
  std::string* const text = std::get_if<std::string>(&found->value);
  if (text == nullptr) {
    found->value = line;
  } else if (("\n" + *text + "\n").find("\n" + line + "\n") == std::string::npos) {
    text->append(text->empty() ? "" : "\n").append(line);
  }
}

StoredSpectrum ToStored(JcampSpectrum&& read) {
  PlacedSpectrum placed = PlaceOnGrid({read.firstX, read.lastX, read.deltaX, std::move(read.ordinates)});
  StoredSpectrum stored;
  stored.name = std::move(read.title);
  stored.time = std::move(read.time);
  stored.dataType = std::move(read.dataType);
  stored.xUnits = std::move(read.xUnits);
  stored.yUnits = std::move(read.yUnits);
  stored.labels = std::move(read.labels);
  stored.parameters = std::move(read.parameters);
  stored.spacing = placed.spacing;
  stored.ordinates = std::move(placed.ordinates);
  if (!IsWavenumber(stored.xUnits) && NormalizedLabel(stored.dataType) != "INTERFEROGRAM") {
    read.warnings.push_back("x is given in \"" + stored.xUnits + "\", not in wavenumbers");
  }
  for (const std::string& warning : read.warnings) {
    AddLine(stored, kWarningsParameter, warning);
  }
  if (!placed.interpolated.empty()) {
    AddLine(stored, kInterpolatedParameter, placed.interpolated);
  }
  return stored;
}

}  // namespace

SpectrumFile ReadSpectrumFile(const std::string& path, std::string_view bytes) {
  try {
    JcampFile read = ReadJcamp(bytes);
    SpectrumFile file;
    file.leftOut = std::move(read.leftOut);
    for (JcampSpectrum& spectrum : read.spectra) {
      file.spectra.push_back(ToStored(std::move(spectrum)));
    }
    return file;
  } catch (const JcampFault& fault) {
    throw platform::RunTimeError(kInvalidFileFormat, "Invalid file format: " + path + ": " + fault.what());
  } catch (const std::domain_error& fault) {
    throw platform::RunTimeError(kInvalidFileFormat, "Invalid file format: " + path + ": " + fault.what());
  }
}

}  // namespace veritane::simulator
