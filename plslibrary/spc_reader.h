// Reads spectra from SPC files, the binary format in which programs for spectroscopy exchange them.
//
// Read are the new form (512-byte header, either byte order) and the old one (256-byte header), ordinates as
// scaled 16-bit or 32-bit integers or 32-bit IEEE numbers, one or several spectra in a file. Points are
// evenly spaced between a first and a last x; x stored point by point are accepted where they turn out evenly
// spaced.
#pragma once

#include "plslibrary/measured_spectrum.h"

#include <string_view>
#include <vector>

namespace veritane::plslibrary {

// The spectra in the file's order, at least one, ordinates finite; x ascending or descending as in the file.
// SpectrumReadError for anything else: other forms, points that are not evenly spaced, and files whose
// numbers contradict each other or their size. Memory and time stay in proportion to the size of `bytes`.
std::vector<MeasuredSpectrum> ReadSpc(std::string_view bytes);

}  // namespace veritane::plslibrary
