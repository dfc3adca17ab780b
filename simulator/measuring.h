// What stands behind a collection: the device that measures. The documents know nothing of how a spectrum
// comes about, a device knows nothing of documents.
#pragma once

#include "shell/state/spectrum_buffer.h"
#include "simulator/stored_spectrum.h"

#include <memory>
#include <string>
#include <vector>

namespace veritane::simulator {

// One collection or alignment as it is asked for.
struct CollectRequest {
  std::string methodPath;
  std::string methodText;      // the collect method file's bytes
  std::string backgroundName;  // as the program named it, e.g. "C:\…\backabc.bsp(1)"; "" for none
  // The spectrum behind backgroundName. Empty when none was named or when it cannot be read; then
  // backgroundFault says why.
  std::shared_ptr<const StoredSpectrum> background;
  std::string backgroundFault;
};

// What came of it. With `error` 0 the values are one spectrum whose element i lies at i × spacing.
struct Measurement {
  int error = 0;
  double spacing = 0;
  state::Ordinates values;
  std::string name;  // becomes "SpectName"; "" lets the document choose
  std::string xUnits = "1/CM";
  std::string yUnits = "ARBITRARY UNITS";
  std::vector<NamedValue> parameters;
};

class MeasuringDevice {
public:
  virtual ~MeasuringDevice() = default;
  virtual Measurement Collect(const CollectRequest& request) = 0;
  // 0 or the instrument's error number.
  virtual int Align(const CollectRequest& request) = 0;
};

}  // namespace veritane::simulator
