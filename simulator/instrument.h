// The simulated spectrometer as a measuring device: it looks into the compartment, reports faults, takes its
// time and makes the spectrum that the optics of instrument_model.h would give.
#pragma once

#include "simulator/collect_method.h"
#include "simulator/compartment.h"
#include "simulator/instrument_model.h"
#include "simulator/materials.h"
#include "simulator/measuring.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace veritane::simulator {

// Error numbers that Collect and Align return besides kWrongAccessory and a fault set in the compartment.
// What is wrong in the files that they speak of, a number does not say: the reason is reported.
inline constexpr int kMethodUnreadable = 11080;   // the collect method does not say how to measure
inline constexpr int kBackgroundMissing = 11081;  // the background named is missing or cannot be read
inline constexpr int kBackgroundUnfit = 11082;    // it does not cover the method's points, or holds no energy
inline constexpr int kSampleUnreadable = 11083;   // the sample is no known material or readable spectrum
inline constexpr int kCompartmentUnreadable = 11084;  // the compartment's file cannot be read or written

// What a stored spectrum absorbs, whichever its ordinate: absorbance as it is, transmittance (0 to 1, or 0 to
// 100) converted.
state::SpectrumBuffer AsAbsorbance(const StoredSpectrum& spectrum);

// What the device needs from outside.
struct InstrumentSurroundings {
  // Opens a spectrum file that serves as a sample; RunTimeError when it is missing or damaged.
  std::function<StoredSpectrum(const std::string& path)> openSpectrum;
  // Lets time pass, keeping the screen alive.
  std::function<void(std::chrono::milliseconds)> wait;
  // A seed nobody foresees, for a compartment whose seed is "random".
  std::function<std::uint64_t()> randomSeed;
  // Is told the reason in words before one of the errors above is returned.
  std::function<void(int error, const std::string& reason)> report = {};
};

class SimulatedInstrument : public MeasuringDevice {
public:
  SimulatedInstrument(Compartment compartment, InstrumentSurroundings surroundings);

  // Without a background in the request the single beam in units of energy, else the method's ordinate
  // against it. With a fixed seed the n-th collection of a sample by a new instrument always gives the same
  // values.
  Measurement Collect(const CollectRequest& request) override;
  int Align(const CollectRequest& request) override;

private:
  struct Fault {
    int number;
    std::string reason = {};  // where the number alone does not tell enough
  };

  // The compartment and method once nothing speaks against measuring. Throws Fault.
  CompartmentState CheckedCompartment();
  CollectMethodSettings CheckedMethod(const CollectRequest& request,
                                      const CompartmentState& compartment) const;
  std::vector<SamplePart> CheckedSample(const CompartmentState& compartment) const;
  void PassTime(const CompartmentState& compartment) const;
  ScanSettings ScanFor(const CollectMethodSettings& method, const CompartmentState& compartment,
                       const CollectRequest& request);
  Measurement Measure(const CollectRequest& request);
  int Reported(const Fault& fault) const;

  Compartment compartment_;
  InstrumentSurroundings surroundings_;
  std::uint64_t collections_ = 0;
};

}  // namespace veritane::simulator
