// Feeds arbitrary bytes to the reader of SPC files. What it reads must be spectra that keep the reader's
// promises and are no larger than the file can hold; what it refuses must be refused with a
// SpectrumReadError.
#include "plslibrary/spc_reader.h"
#include "tests/fuzz/require.h"

#include <cmath>

using veritane::fuzz::Require;
using veritane::plslibrary::MeasuredSpectrum;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<MeasuredSpectrum> spectra;
  try {
    spectra = veritane::plslibrary::ReadSpc(veritane::fuzz::BytesOf(data, size));
  } catch (const veritane::plslibrary::SpectrumReadError&) {
    return 0;
  }
  Require(!spectra.empty());
  std::size_t points = 0;
  for (const MeasuredSpectrum& spectrum : spectra) {
    points += spectrum.y.size();
    Require(!spectrum.y.empty());
    Require(std::isfinite(spectrum.firstX) && std::isfinite(spectrum.lastX));
    Require((spectrum.y.size() == 1) == (spectrum.firstX == spectrum.lastX));
    for (const double y : spectrum.y) {
      Require(std::isfinite(y));
    }
  }
  Require(2 * points + 32 * spectra.size() <= size);
  return 0;
}
