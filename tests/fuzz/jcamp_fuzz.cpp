// Feeds arbitrary bytes to the reader of spectrum files. What it opens must be whole and must survive saving
// and reading again to the last bit; what it refuses must be refused with a RunTimeError.
#include "platform/run_time_error.h"
#include "simulator/jcamp_writer.h"
#include "simulator/spectrum_file.h"
#include "tests/fuzz/require.h"

#include <vector>

namespace {

using veritane::fuzz::Require;
using veritane::simulator::ReadSpectrumFile;
using veritane::simulator::SpectrumFile;
using veritane::simulator::StoredSpectrum;

void RequireSameSpectrum(const StoredSpectrum& saved, const StoredSpectrum& read) {
  Require(saved.name == read.name);
  Require(saved.time == read.time);
  Require(saved.spacing == read.spacing);
  Require(saved.ordinates.lower == read.ordinates.lower);
  Require(saved.ordinates.values == read.ordinates.values);
}

void RequireRoundTrip(const SpectrumFile& file) {
  std::vector<const StoredSpectrum*> spectra;
  for (const StoredSpectrum& spectrum : file.spectra) {
    spectra.push_back(&spectrum);
  }
  const std::string written = veritane::simulator::WriteJcamp(spectra);
  const SpectrumFile again = ReadSpectrumFile("again", written);
  Require(again.spectra.size() == file.spectra.size() && again.leftOut.empty());
  for (std::size_t i = 0; i < spectra.size(); ++i) {
    RequireSameSpectrum(*spectra[i], again.spectra[i]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  SpectrumFile file;
  try {
    file = ReadSpectrumFile("fuzzed", veritane::fuzz::BytesOf(data, size));
  } catch (const veritane::platform::RunTimeError&) {
    return 0;
  }
  std::size_t points = 0;
  for (const StoredSpectrum& spectrum : file.spectra) {
    points += spectrum.ordinates.Size();
  }
  // Repetitions unfold a few bytes to millions of points; writing those again and again finds nothing more.
  if (points < 100'000) RequireRoundTrip(file);
  return 0;
}
