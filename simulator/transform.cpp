// The discrete Fourier transform for any number of points, by Bluestein's way: the transform is a convolution
// with a chirp (Bluestein, IEEE Trans. Audio Electroacoust. 18 (1970) 451), done at a power of two.
#include "simulator/transform.h"

#include <complex>
#include <numbers>
#include <unsupported/Eigen/FFT>

namespace veritane::simulator {

namespace {

// Up to this prime factor the library's own mixed radices are the quicker way.
constexpr std::size_t kLargestDirectFactor = 5;

std::size_t LargestPrimeFactor(std::size_t number) {
  std::size_t largest = 1;
  for (std::size_t factor = 2; factor * factor <= number; ++factor) {
    while (number % factor == 0) {
      largest = factor;
      number /= factor;
    }
  }
  return number > 1 ? number : largest;
}

// exp(−iπ n² / N) with the angle reduced first, since n² grows beyond what a double's sine knows exactly.
std::complex<double> Chirp(std::uint64_t n, std::uint64_t size) {
  const auto reduced = static_cast<double>(n * n % (2 * size));
  return std::polar(1.0, -std::numbers::pi * reduced / static_cast<double>(size));
}

std::vector<double> ChirpTransform(const std::vector<double>& ordinates) {
  const std::size_t size = ordinates.size();
  std::size_t length = 1;
  while (length < 2 * size - 1) length *= 2;
  std::vector<std::complex<double>> signal(length);
  std::vector<std::complex<double>> chirp(length);
  for (std::size_t n = 0; n < size; ++n) {
    const auto turn = Chirp(n, size);
    signal[n] = ordinates[n] * turn;
    chirp[n] = std::conj(turn);
    if (n > 0) chirp[length - n] = std::conj(turn);
  }
  Eigen::FFT<double> transform;
  std::vector<std::complex<double>> signal_spectrum;
  std::vector<std::complex<double>> chirp_spectrum;
  transform.fwd(signal_spectrum, signal);
  transform.fwd(chirp_spectrum, chirp);
  for (std::size_t i = 0; i < length; ++i) {
    signal_spectrum[i] *= chirp_spectrum[i];
  }
  transform.inv(signal, signal_spectrum);
  std::vector<double> real(size);
  for (std::size_t k = 0; k < size; ++k) {
    real[k] = (signal[k] * Chirp(k, size)).real();
  }
  return real;
}

}  // namespace

std::vector<double> RealFourierTransform(const std::vector<double>& ordinates) {
  if (ordinates.size() < 2) return ordinates;
  if (LargestPrimeFactor(ordinates.size()) > kLargestDirectFactor) {
    return ChirpTransform(ordinates);
  }
  const std::vector<std::complex<double>> signal(ordinates.begin(), ordinates.end());
  std::vector<std::complex<double>> spectrum;
  Eigen::FFT<double>().fwd(spectrum, signal);
  std::vector<double> real(ordinates.size());
  for (std::size_t k = 0; k < real.size(); ++k) {
    real[k] = spectrum[k].real();
  }
  return real;
}

StoredSpectrum Transformed(const StoredSpectrum& spectrum) {
  StoredSpectrum transformed = spectrum;
  transformed.ordinates = {0, RealFourierTransform(spectrum.ordinates.values)};
  transformed.spacing = 1 / (static_cast<double>(spectrum.ordinates.Size()) * spectrum.spacing);
  transformed.dataType = "INTERFEROGRAM";
  transformed.xUnits = "CM";
  transformed.yUnits = "ARBITRARY UNITS";
  return transformed;
}

}  // namespace veritane::simulator
