// A simulated instrument on a workbench: its compartment's file in memory, time that only gets counted, and
// collections as the program makes them.
#pragma once

#include "platform/run_time_error.h"
#include "simulator/instrument.h"
#include "tests/identification/reference.h"
#include "tests/support/memory_file_system.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace veritane::simulator::instrument_tests {

class InstrumentRig {
public:
  static constexpr const char* kPath = "C:\\Veritane\\compartment.txt";

  explicit InstrumentRig(CompartmentState state = Seeded(7)) { Put(state); }

  static CompartmentState Seeded(std::uint32_t seed) {
    CompartmentState state;
    state.duration = 0;
    state.seed = seed;
    return state;
  }

  // Without noise.
  static CompartmentState Quiet() {
    CompartmentState state = Seeded(1);
    state.noise = 0;
    return state;
  }

  void Put(const CompartmentState& state) { Compartment(files, kPath).Write(state); }
  void PutSample(const std::string& sample) {
    CompartmentState state = Compartment(files, kPath).Read();
    state.sample = sample;
    Put(state);
  }

  CollectRequest Request() const {
    CollectRequest request;
    request.methodPath = "C:\\Methods\\Initial.clm";
    request.methodText = CollectMethodText(method);
    return request;
  }
  CollectRequest RequestAgainst(const Measurement& background) const {
    auto stored = std::make_shared<StoredSpectrum>();
    stored->spacing = background.spacing;
    stored->ordinates = background.values;
    CollectRequest request = Request();
    request.backgroundName = "C:\\Standards\\backInitial.bsp(1)";
    request.background = std::move(stored);
    return request;
  }

  // The absorbance of a sample against a background collected just before.
  std::vector<double> Absorbance(const std::string& sample) {
    PutSample("empty");
    const Measurement background = instrument.Collect(Request());
    PutSample(sample);
    return instrument.Collect(RequestAgainst(background)).values.values;
  }

  tests::MemoryFileSystem files;
  CollectMethodSettings method;
  std::chrono::milliseconds waited{0};
  std::map<std::string, StoredSpectrum> spectra;  // the files that can lie in the compartment
  std::string reason;                             // of the last error that the instrument reported
  SimulatedInstrument instrument{Compartment(files, kPath),
                                 {.openSpectrum =
                                      [this](const std::string& path) {
                                        const auto found = spectra.find(path);
                                        if (found == spectra.end())
                                          throw platform::RunTimeError(platform::ErrorNumber::kFileNotFound,
                                                                       path);
                                        return found->second;
                                      },
                                  .wait = [this](std::chrono::milliseconds time) { waited += time; },
                                  .randomSeed = [this] { return ++random_; },
                                  .report = [this](int, const std::string& why) { reason = why; }}};

private:
  std::uint64_t random_ = 1000;
};

// What the program's correlation comparison makes of two absorbances of one measurement, computed from its
// definition, so that the instrument is not judged by the code that it feeds.
inline double MatchQuality(const std::vector<double>& standard, const std::vector<double>& sample) {
  const auto buffer = [](const std::vector<double>& values) {
    return state::SpectrumBuffer{
        .Data = {.lower = 0, .values = values}, .Res = 1, .NumPts = static_cast<double>(values.size())};
  };
  return identification::reference::EuclideanQuality(buffer(standard), buffer(sample), {});
}

}  // namespace veritane::simulator::instrument_tests
