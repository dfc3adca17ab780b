// The comparisons straight from their definitions, in long double.
#include "tests/identification/reference.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <numbers>
#include <sstream>
#include <stdexcept>

namespace veritane::identification::reference {

namespace {

using Column = std::vector<long double>;

Column ScaledToUnitRange(Column column) {
  const long double least = *std::min_element(column.begin(), column.end());
  const long double most = *std::max_element(column.begin(), column.end());
  for (long double& value : column) value = most == least ? 0 : (value - least) / (most - least);
  return column;
}

// 100 (1 - d) by way of the unit vectors: d² = 1 - r, or r - 1 where rounding takes r beyond 1.
long double Quality(const Column& standard, const Column& sample) {
  long double standard_square = 0;
  long double sample_square = 0;
  for (std::size_t i = 0; i < sample.size(); ++i) {
    standard_square += standard[i] * standard[i];
    sample_square += sample[i] * sample[i];
  }
  long double correlation = 0;
  for (std::size_t i = 0; i < sample.size(); ++i) {
    correlation += (standard[i] / std::sqrt(standard_square)) * (sample[i] / std::sqrt(sample_square));
  }
  return 100 * (1 - std::sqrt(std::fabs(1 - correlation)));
}

Column Prepared(const state::SpectrumBuffer& spectrum, const std::vector<state::NullRegion>& regions) {
  Column column =
      ScaledToUnitRange(WithoutBaseline(spectrum.Data, static_cast<std::size_t>(spectrum.NumPts)));
  for (std::size_t i = 0; i < column.size(); ++i) {
    const double wavenumber = (spectrum.Data.lower + static_cast<double>(i)) * spectrum.Res;
    for (const state::NullRegion& region : regions) {
      if (wavenumber <= region.start && wavenumber >= region.end) column[i] = 0;
    }
  }
  return column;
}

Column FourierSpan(const state::Ordinates& transform) {
  Column span{0};
  for (std::size_t i = 55; i <= 155; ++i) span.push_back(transform.values.at(i));
  return ScaledToUnitRange(span);
}

}  // namespace

std::vector<long double> WithoutBaseline(const state::Ordinates& ordinates, std::size_t count) {
  // The normal equations as they stand in textbooks, over point numbers counted from 0 on the axis.
  const auto n = static_cast<long double>(count);
  long double x = 0, y = 0, xx = 0, xy = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const long double point_number = ordinates.lower + static_cast<long double>(i);
    x += point_number;
    y += ordinates.values[i];
    xx += point_number * point_number;
    xy += point_number * ordinates.values[i];
  }
  const long double slope = (n * xy - x * y) / (n * xx - x * x);
  const long double intercept = (xx * y - x * xy) / (n * xx - x * x);
  std::vector<long double> rest;
  for (std::size_t i = 0; i < ordinates.Size(); ++i) {
    rest.push_back(ordinates.values[i] - slope * (ordinates.lower + static_cast<long double>(i)) - intercept);
  }
  return rest;
}

double EuclideanQuality(const state::SpectrumBuffer& standard, const state::SpectrumBuffer& sample,
                        const std::vector<state::NullRegion>& regions) {
  Column same_points = Prepared(standard, regions);
  same_points.erase(same_points.begin(), same_points.begin() + (sample.Data.lower - standard.Data.lower));
  return static_cast<double>(std::max(0.0L, Quality(same_points, Prepared(sample, regions))));
}

double FourierQuality(const state::Ordinates& standard, const state::Ordinates& sample) {
  return static_cast<double>(Quality(FourierSpan(standard), FourierSpan(sample)));
}

std::vector<long double> FourierTransform(const std::vector<double>& values) {
  const std::size_t size = values.size();
  // k n is reduced modulo N so that the cosine's argument stays small.
  std::vector<long double> cosine(size);
  for (std::size_t i = 0; i < size; ++i) {
    cosine[i] = std::cos(2 * std::numbers::pi_v<long double> * static_cast<long double>(i) /
                         static_cast<long double>(size));
  }
  std::vector<long double> sums(size);
  for (std::size_t k = 0; k < size; ++k) {
    for (std::size_t n = 0; n < size; ++n) sums[k] += values[n] * cosine[k * n % size];
  }
  return sums;
}

const std::vector<std::vector<std::string>>& MaterialsByFirstWavenumber() {
  static const std::vector<std::vector<std::string>> materials{
      {"polystyrene", "pet", "phenoxy-resin", "pmma", "polybutadiene", "polycarbonate"},
      {"ldpe", "polyacetal", "polyvinyl-acetate", "polyvinyl-alcohol", "tpu"},
      {"abs", "cellulose-acetate", "pa66", "pvc"}};
  return materials;
}

state::SpectrumBuffer MeasuredSpectrum(const std::string& name) {
  const std::string path = std::string(VERITANE_TEST_DATA) + "/ftir/" + name + ".jdx";
  std::ifstream file(path);
  state::SpectrumBuffer spectrum;
  double first_x = 0;
  std::string line;
  while (std::getline(file, line) && !line.starts_with("##XYDATA=")) {
    const auto number = [&] { return std::stod(line.substr(line.find('=') + 1)); };
    if (line.starts_with("##FIRSTX=")) first_x = number();
    if (line.starts_with("##DELTAX=")) spectrum.Res = number();
    if (line.starts_with("##NPOINTS=")) spectrum.NumPts = number();
  }
  while (std::getline(file, line) && !line.starts_with("##END")) {
    std::istringstream numbers(line);
    double value = 0;
    numbers >> value;  // the line's wavenumber
    while (numbers >> value) spectrum.Data.values.push_back(value);
  }
  if (!line.starts_with("##END") || static_cast<double>(spectrum.Data.Size()) != spectrum.NumPts) {
    throw std::runtime_error("unreadable test data: " + path);
  }
  spectrum.Data.lower = static_cast<std::int32_t>(first_x / spectrum.Res);
  return spectrum;
}

state::SpectrumBuffer TwoBands(std::int32_t lower, std::size_t points, double shift) {
  state::SpectrumBuffer spectrum;
  spectrum.Res = 1;
  spectrum.NumPts = static_cast<double>(points);
  spectrum.Data.lower = lower;
  for (std::size_t i = 0; i < points; ++i) {
    const double share = (static_cast<double>(i) - shift) / static_cast<double>(points);
    const double first_band = std::exp(-std::pow((share - 0.3) / 0.02, 2));
    const double second_band = 0.6 * std::exp(-std::pow((share - 0.7) / 0.05, 2));
    spectrum.Data.values.push_back(0.1 + 0.05 * share + first_band + second_band);
  }
  return spectrum;
}

}  // namespace veritane::identification::reference
