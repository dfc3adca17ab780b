// Writes a spectrum as an SPC file for other programs: new form, little-endian, evenly spaced points, 32-bit
// IEEE ordinates.
#pragma once

#include "simulator/stored_spectrum.h"

#include <string>
#include <string_view>

namespace veritane::simulator {

// The first and last x stand there as doubles, the spectrum's name as memo, its time as date, as far as they
// fit. RunTimeError 5 for a spectrum without points and for a spacing or points that are not finite numbers,
// 6 for a point beyond the range of 32-bit numbers.
std::string WriteSpc(const StoredSpectrum& spectrum);

// The codes of SPC files for units as JCAMP-DX names them, in any spelling; 0 (arbitrary) for unknown ones.
int SpcXType(std::string_view x_units);
int SpcYType(std::string_view y_units);

}  // namespace veritane::simulator
