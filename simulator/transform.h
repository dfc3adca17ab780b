// The unary operation of the Spectrometer application that the Fourier comparison uses.
#pragma once

#include "simulator/stored_spectrum.h"

namespace veritane::simulator {

// X[k] = Σ x[n] cos(2π k n / N), k = 0 … N − 1, n and k counted from the first ordinate: the real part of the
// discrete Fourier transform. Any N, also a large prime one, takes time in proportion to N log N.
std::vector<double> RealFourierTransform(const std::vector<double>& ordinates);

// The spectrum with its ordinates transformed, lower bound 0, spacing 1 / (N × spacing); the rest as it was.
StoredSpectrum Transformed(const StoredSpectrum& spectrum);

}  // namespace veritane::simulator
