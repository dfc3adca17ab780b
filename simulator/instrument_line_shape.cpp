// Apodization functions and their Fourier transforms.
#include "simulator/instrument_line_shape.h"

#include "platform/windows_path.h"

#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace veritane::simulator {

namespace {

constexpr double kPi = std::numbers::pi;

constexpr std::array<std::pair<Apodization, std::string_view>, 4> kNames{{
    {Apodization::kBoxcar, "Boxcar"},
    {Apodization::kTriangular, "Triangular"},
    {Apodization::kHappGenzel, "Happ-Genzel"},
    {Apodization::kNortonBeer, "Norton-Beer"},
}};

// Coefficients of (1 - u²)^n for n = 0, 1, 2.
constexpr std::array<double, 3> kNortonBeerMedium{0.152442, -0.136176, 0.983734};

double Sinc(double a) {
  return std::abs(a) < 1e-8 ? 1 : std::sin(a) / a;
}

// The spherical Bessel functions j1(a)/a and j2(a)/a²; by their series where the closed forms cancel.
double BesselRatio1(double a) {
  const double a2 = a * a;
  if (std::abs(a) < 0.5) return (1 - a2 / 10 * (1 - a2 / 28 * (1 - a2 / 54 * (1 - a2 / 88)))) / 3;
  return (Sinc(a) - std::cos(a)) / a2;
}

double BesselRatio2(double a) {
  const double a2 = a * a;
  if (std::abs(a) < 0.5) return (1 - a2 / 14 * (1 - a2 / 36 * (1 - a2 / 66 * (1 - a2 / 104)))) / 15;
  return ((3 / a2 - 1) * Sinc(a) - 3 * std::cos(a) / a2) / a2;
}

// Half the Fourier transform of A over -1 to 1: the integral of A(u) cos(a u) from 0 to 1.
double CosineTransform(Apodization apodization, double a) {
  switch (apodization) {
    case Apodization::kBoxcar:
      return Sinc(a);
    case Apodization::kTriangular: {
      const double half = Sinc(a / 2);
      return half * half / 2;
    }
    case Apodization::kHappGenzel:
      return 0.54 * Sinc(a) + 0.23 * (Sinc(a - kPi) + Sinc(a + kPi));
    case Apodization::kNortonBeer:
      return kNortonBeerMedium[0] * Sinc(a) + kNortonBeerMedium[1] * 2 * BesselRatio1(a) +
             kNortonBeerMedium[2] * 8 * BesselRatio2(a);
  }
  return 0;
}

}  // namespace

std::string_view ApodizationName(Apodization apodization) {
  for (const auto& [value, name] : kNames) {
    if (value == apodization) return name;
  }
  return {};
}

std::optional<Apodization> ApodizationNamed(std::string_view name) {
  const std::string wanted = platform::UpperCase(name);
  for (const auto& [value, known] : kNames) {
    if (platform::UpperCase(known) == wanted) return value;
  }
  return std::nullopt;
}

double LineShape(Apodization apodization, double resolution, double distance) {
  // With L = 1/R: 2 times the integral of A(d/L) cos(2π distance d) over d from 0 to L.
  return 2 / resolution * CosineTransform(apodization, 2 * kPi * distance / resolution);
}

std::vector<double> LineShapeTaps(Apodization apodization, double resolution, double step, double reach) {
  const auto half = static_cast<std::size_t>(reach / step);
  std::vector<double> taps(2 * half + 1);
  double sum = 0;
  for (std::size_t i = 0; i <= half; ++i) {
    const double value = LineShape(apodization, resolution, static_cast<double>(i) * step);
    taps[half + i] = taps[half - i] = value;
    sum += i == 0 ? value : 2 * value;
  }
  for (double& tap : taps) tap /= sum;
  return taps;
}

}  // namespace veritane::simulator
