// The gasoline spectra of tests/data/pls with their octane numbers, and calibrations made of them.
#pragma once

#include "plslibrary/calibration_builder.h"

#include <Eigen/Core>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace veritane::plslibrary {

// The numbers of a CSV below its first line, a row a line.
inline Eigen::MatrixXd NumbersOf(const std::string& name) {
  std::ifstream file(std::string(VERITANE_TEST_DATA) + "/pls/" + name);
  std::vector<double> numbers;
  std::string line;
  std::getline(file, line);
  Eigen::Index rows = 0;
  for (; std::getline(file, line); ++rows) {
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, ',');) numbers.push_back(std::stod(cell));
  }
  using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
  return Eigen::Map<RowMajor>(numbers.data(), rows, static_cast<Eigen::Index>(numbers.size()) / rows);
}

struct Gasoline {
  Eigen::MatrixXd spectra;  // 60 × 401
  Eigen::VectorXd octane;
  Axis axis{900, 1700, 401, 3, 0};

  Gasoline() {
    const Eigen::MatrixXd table = NumbersOf("gasoline_nir.csv");
    octane = table.col(1);
    spectra = table.rightCols(401);
  }

  MeasuredSpectrum Measured(Eigen::Index row) const {
    return {900, 1700, {spectra.row(row).begin(), spectra.row(row).end()}, 3, 0};
  }

  // Of the first 50 samples.
  BuiltCalibration Calibrate(Eigen::Index factors, Eigen::Index most_factors = 10) const {
    CalibrationPlan plan{.memo = "Gasoline", .axis = axis, .mostFactors = most_factors};
    plan.constituents.push_back({"octane", octane.head(50), factors});
    return BuildCalibration(plan, spectra.topRows(50));
  }

  // Octane by 3 factors and another linear property of the spectra by 2, scaled, in two bands.
  Calibration TwoConstituents() const {
    CalibrationPlan plan{.memo = "Two constituents",
                         .axis = axis,
                         .bands = {{0, 150}, {200, 201}},
                         .scaled = true,
                         .groups = 10,
                         .mostFactors = 6};
    plan.constituents.push_back({"octane", octane.head(50), 3});
    plan.constituents.push_back(
        {"slope at 1.2 \xC2\xB5m", spectra.col(150).head(50) - spectra.col(140).head(50), 2});
    return BuildCalibration(plan, spectra.topRows(50)).calibration;
  }
};

}  // namespace veritane::plslibrary
