// Random numbers that are the same for the same seed on every system.
#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string_view>
#include <vector>

namespace veritane::simulator {

// Normally distributed numbers of mean 0 and standard deviation 1. The standard library's own distribution
// may differ from one compiler to the next; this one is G. E. P. Box and M. E. Muller, Ann. Math. Stat. 29
// (1958) 610.
class NoiseGenerator {
public:
  explicit NoiseGenerator(std::uint64_t seed) : bits_(seed) {}
  double Next();

private:
  double Uniform();

  std::mt19937_64 bits_;
  double spare_ = 0;
  bool has_spare_ = false;
};

// `count` values of standard deviation 1 whose neighbours hang together as `taps` prescribe: detector noise
// is white along the interferogram, hence correlated over a line shape's width in the spectrum.
std::vector<double> CorrelatedNoise(NoiseGenerator& generator, std::span<const double> taps,
                                    std::size_t count);

// A seed made of another seed and a text, so that two measurements of one seed have different noise.
std::uint64_t SeedFor(std::uint64_t seed, std::string_view text);

}  // namespace veritane::simulator
