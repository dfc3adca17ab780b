// A spectrum of an open document, with its parameters and markers, as the contract shows it.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "simulator/call_log.h"
#include "simulator/stored_spectrum.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace veritane::simulator {

// A marker as it was asked for.
struct StoredMarker {
  double x = 0;
  std::int32_t kind = 0;
  std::int32_t style = 0;
  std::int32_t definitionArgument = 0;
  std::int32_t definingMethod = 0;
  double lowerBound = 0;
};

// The defining method that puts a marker at its lower bound.
inline constexpr std::int32_t kDefinedByBound = 2;

// The wavenumber where a marker stands.
inline double PlaceOf(const StoredMarker& marker) {
  return marker.definingMethod == kDefinedByBound ? marker.lowerBound : marker.x;
}

// A spectrum with what belongs to it while it is open. Whoever holds it can read it for ever; it is written
// to only as long as it stands in an open document.
struct OpenSpectrum {
  StoredSpectrum stored;
  std::vector<StoredMarker> markers;
  bool attached = true;   // stands in an open document
  bool modified = false;  // since the document was opened or saved
};

class SimulatedSpectrum : public acquisition::Spectrum {
public:
  SimulatedSpectrum(std::shared_ptr<OpenSpectrum> spectrum, std::shared_ptr<CallLog> calls)
      : spectrum_(std::move(spectrum)), calls_(std::move(calls)) {}

  std::shared_ptr<acquisition::SpectrumData> SpectrumData() override;
  std::shared_ptr<acquisition::Parameter> GetParameter(const std::string& name) override;
  std::shared_ptr<acquisition::ParameterList> GetParameterList() override;
  std::shared_ptr<acquisition::MarkerList> GetMarkerList() override;

private:
  std::shared_ptr<OpenSpectrum> spectrum_;
  std::shared_ptr<CallLog> calls_;
};

}  // namespace veritane::simulator
