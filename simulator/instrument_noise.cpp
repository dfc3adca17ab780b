// Reproducible noise.
#include "simulator/instrument_noise.h"

#include <cmath>
#include <numbers>

namespace veritane::simulator {

// From the upper 53 bits, in (0, 1]: the logarithm of it is always finite.
double NoiseGenerator::Uniform() {
  return (static_cast<double>(bits_() >> 11) + 1) * 0x1p-53;
}

double NoiseGenerator::Next() {
  if (has_spare_) {
    has_spare_ = false;
    return spare_;
  }
  const double radius = std::sqrt(-2 * std::log(Uniform()));
  const double angle = 2 * std::numbers::pi * Uniform();
  spare_ = radius * std::sin(angle);
  has_spare_ = true;
  return radius * std::cos(angle);
}

std::vector<double> CorrelatedNoise(NoiseGenerator& generator, std::span<const double> taps,
                                    std::size_t count) {
  std::vector<double> white(count + taps.size() - 1);
  for (double& value : white) value = generator.Next();
  double power = 0;
  for (double tap : taps) power += tap * tap;
  const double scale = 1 / std::sqrt(power);
  std::vector<double> noise(count, 0.0);
  for (std::size_t k = 0; k < taps.size(); ++k) {
    const double weight = scale * taps[k];
    for (std::size_t i = 0; i < count; ++i) noise[i] += weight * white[i + k];
  }
  return noise;
}

std::uint64_t SeedFor(std::uint64_t seed, std::string_view text) {
  // FNV-1a over the text, starting from the seed.
  std::uint64_t hash = 0xcbf29ce484222325U ^ (seed * 0x9e3779b97f4a7c15U);
  for (char c : text) {
    hash ^= static_cast<unsigned char>(c);
    hash *= 0x100000001b3U;
  }
  return hash;
}

}  // namespace veritane::simulator
