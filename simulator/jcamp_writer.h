// Writes spectra as JCAMP-DX 5.01: one block, or a LINK block with one block a spectrum. Other programs read
// the result (AFFN ordinates, short lines); ReadJcamp gives every value, text and x back to the last bit.
#pragma once

#include "simulator/stored_spectrum.h"

#include <span>
#include <string>

namespace veritane::simulator {

// RunTimeError 5 for no spectra, a spectrum without points, and ordinates, spacings or x that are not finite
// numbers: nothing that cannot be read back is written.
std::string WriteJcamp(std::span<const StoredSpectrum* const> spectra);

}  // namespace veritane::simulator
