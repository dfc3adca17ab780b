// A simulated instrument on a workbench: its compartment's file in memory, time that only gets counted, and
// collections as the program makes them.
#pragma once

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "simulator/instrument.h"

namespace veritane::simulator::instrument_tests {

// Files in memory. With `failWrites` every write meets a full disk.
class MemoryFiles : public platform::FileSystem {
public:
  std::map<std::string, std::string> contents;
  bool failWrites = false;
  bool failReads = false;

  bool FileExists(const std::string& path) const override { return contents.count(path) > 0; }
  std::string ReadBytes(const std::string& path) const override {
    if (failReads) throw platform::RunTimeError(platform::ErrorNumber::kPermissionDenied, path);
    const auto found = contents.find(path);
    if (found == contents.end()) throw platform::RunTimeError(platform::ErrorNumber::kFileNotFound, path);
    return found->second;
  }
  void WriteBytes(const std::string& path, std::string_view bytes) override {
    if (failWrites) throw platform::RunTimeError(platform::ErrorNumber::kDiskFull, path);
    contents[path] = bytes;
  }

  bool FolderExists(const std::string&) const override { return true; }
  void CreateFolder(const std::string&) override { throw std::logic_error("not used here"); }
  std::unique_ptr<platform::AppendingFile> OpenForAppending(const std::string&) override {
    throw std::logic_error("not used here");
  }
  std::unique_ptr<platform::TakenFile> TakeFile(const std::string&) override {
    return std::make_unique<platform::TakenFile>();
  }
  void DeleteFile(const std::string&) override { throw std::logic_error("not used here"); }
  void MoveFile(const std::string&, const std::string&) override { throw std::logic_error("not used here"); }
  platform::DateTime LastModified(const std::string&) const override {
    throw std::logic_error("not used here");
  }
  std::vector<std::string> ListFiles(const std::string&) const override { return {}; }
};

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

  MemoryFiles files;
  CollectMethodSettings method;
  std::chrono::milliseconds waited{0};
  std::map<std::string, StoredSpectrum> spectra;  // the files that can lie in the compartment
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
                                  .randomSeed = [this] { return ++random_; }}};

private:
  std::uint64_t random_ = 1000;
};

}  // namespace veritane::simulator::instrument_tests
