// Collect methods and their backgrounds.
#include "simulator/simulated_collect_method.h"

#include "platform/run_time_error.h"
#include "simulator/spectrum_file.h"

#include <charconv>
#include <utility>

namespace veritane::simulator {

namespace {

// "C:\…\backabc.bsp(1)" as path and number; without a number the first spectrum is meant.
struct BackgroundPlace {
  std::string path;
  std::size_t number = 1;
};

BackgroundPlace ToPlace(const std::string& name) {
  const std::size_t bracket = name.rfind('(');
  if (bracket == name.npos || !name.ends_with(')')) return {name};
  BackgroundPlace place{name.substr(0, bracket)};
  const char* const end = name.data() + name.size() - 1;
  const auto [stop, error] = std::from_chars(name.data() + bracket + 1, end, place.number);
  return error == std::errc() && stop == end ? place : BackgroundPlace{name};
}

}  // namespace

SimulatedCollectMethod::SimulatedCollectMethod(std::string path, std::string text,
                                               std::shared_ptr<CallLog> calls)
    : calls_(std::move(calls)) {
  request_.methodPath = std::move(path);
  request_.methodText = std::move(text);
}

void SimulatedCollectMethod::SetCollectOption(const std::string& option) {
  calls_->Note("SetCollectOption", option);
}

void SimulatedCollectMethod::SetBackgroundFile(const std::string& spectrum) {
  calls_->Note("SetBackgroundFile", spectrum);
  request_.backgroundName = spectrum;
}

void SimulatedCollectMethod::SetScanParameter(double value) {
  calls_->Note("SetScanParameter", value);
}

void SimulatedCollectMethod::SetSubParameter(double value) {
  calls_->Note("SetSubParameter", value);
}

CollectRequest SimulatedCollectMethod::ToRequest(const platform::FileSystem& files) const {
  CollectRequest request = request_;
  if (request.backgroundName.empty()) return request;
  const BackgroundPlace place = ToPlace(request.backgroundName);
  // The instrument reports a background that cannot be used by a number of its own; it needs the reason.
  try {
    SpectrumFile file = ReadSpectrumFile(place.path, files.ReadBytes(place.path));
    if (place.number < 1 || place.number > file.spectra.size()) {
      request.backgroundFault = request.backgroundName + ": there is no such spectrum in the file";
    } else {
      request.background = std::make_shared<StoredSpectrum>(std::move(file.spectra[place.number - 1]));
    }
  } catch (const platform::RunTimeError& error) {
    request.backgroundFault = error.what();
  }
  return request;
}

}  // namespace veritane::simulator
