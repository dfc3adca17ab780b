// Spectrum files as bytes: what the documents of the simulator open and save.
#pragma once

#include "simulator/invalid_file_format.h"
#include "simulator/stored_spectrum.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::simulator {

// Parameters that reading adds to a spectrum where there is something to say, both texts.
inline constexpr std::string_view kInterpolatedParameter = "Interpolated";
inline constexpr std::string_view kWarningsParameter = "Warnings";

struct SpectrumFile {
  std::vector<StoredSpectrum> spectra;
  std::vector<std::string> leftOut;  // what the file holds besides; saving over it would lose that
};

// Reads a JCAMP-DX file of any maker and puts its spectra on whole multiples of their spacing: at least one
// spectrum, none without points. RunTimeError kInvalidFileFormat with `path` and the offending line in its
// text.
SpectrumFile ReadSpectrumFile(const std::string& path, std::string_view bytes);

}  // namespace veritane::simulator
