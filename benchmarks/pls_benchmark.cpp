// What PLS costs: one concentration, a prediction with every item through the library's interface, and a
// cross-validation.
#include "pls/pls_library.h"
#include "plslibrary/calibration_builder.h"
#include "plslibrary/calibration_file.h"
#include "plslibrary/prediction.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace veritane::benchmarks {
namespace {

constexpr Eigen::Index kFactors = 10;

// The spectra of pls_comparison.py: bands whose heights, places and widths vary from sample to sample.
Eigen::MatrixXd MadeUpSpectra(Eigen::Index samples, Eigen::Index points) {
  return Eigen::MatrixXd::NullaryExpr(samples, points, [points](Eigen::Index sample, Eigen::Index point) {
    const auto i = static_cast<double>(sample);
    const double x = static_cast<double>(point) / static_cast<double>(points);
    double y = 0;
    for (int band = 1; band <= 12; ++band) {
      const double height = 1 + 0.5 * std::sin(i * band);
      const double centre = band / 13.0 + 0.002 * std::sin(0.7 * i * band);
      y += height * std::exp(-std::pow((x - centre) / 0.02, 2));
    }
    return y;
  });
}

Eigen::VectorXd MadeUpReference(Eigen::Index samples) {
  return Eigen::VectorXd::NullaryExpr(samples, [](Eigen::Index sample) {
    const auto i = static_cast<double>(sample);
    return 50 + 10 * std::sin(3 * i) + 5 * std::sin(7 * i) + std::sin(31 * i);
  });
}

// 60 samples of 3,601 points, 10 factors.
plslibrary::Calibration MadeUpCalibration() {
  plslibrary::CalibrationPlan plan{
      .memo = "Made up", .axis = {400, 4000, 3601, 1, 2}, .mostFactors = kFactors};
  plan.constituents.push_back({"constituent", MadeUpReference(60), kFactors});
  return plslibrary::BuildCalibration(plan, MadeUpSpectra(60, 3601)).calibration;
}

void PlsConcentration(benchmark::State& state) {
  const plslibrary::Calibration calibration = MadeUpCalibration();
  const Eigen::VectorXd source = MadeUpSpectra(5, 3601).row(4);
  Eigen::VectorXd processed(calibration.UsedPoints());
  double concentration = 0;
  for (auto _ : state) {
    plslibrary::PrepareSpectrum(calibration, source, processed);
    concentration = plslibrary::Concentration(calibration.sets[0], processed);
    benchmark::DoNotOptimize(concentration);
  }
  state.counters["concentration"] = concentration;
}
BENCHMARK(PlsConcentration);

// The library's own calls, as a program makes them for each item.
void PlsPredictionWithAllItems(benchmark::State& state) {
  constexpr std::array kItems{"residual",       "concentration", "scores",        "distance",
                              "resid_spectrum", "source",        "memo",          "constituent_names",
                              "fsets",          "ffp",           "flp",           "npts",
                              "xtype",          "ytype",         "conc_limits",   "score_limits",
                              "resid_limits",   "dist_limits",   "fratio",        "calfac",
                              "ncomp",          "bands",         "proc_spectrum", "flags",
                              "prep",           "bsln",          "thick"};
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "veritane_pls_benchmark";
  std::filesystem::create_directories(folder);
  const std::vector<plslibrary::Calibration> calibrations{MadeUpCalibration()};
  std::ofstream(folder / "made_up.cal") << plslibrary::CalibrationFileText(calibrations);
  const Eigen::VectorXd source = MadeUpSpectra(5, 3601).row(4);
  const std::vector<float> floats(source.begin(), source.end());
  std::ofstream(folder / "sample.dat", std::ios::binary)
      .write(reinterpret_cast<const char*>(floats.data()), static_cast<std::streamsize>(floats.size() * 4));
  const std::int32_t handle = LoadCalFile((folder / "made_up.cal").c_str());
  if (LoadMemDouble(handle, (folder / "sample.dat").c_str()) != 0)
    state.SkipWithError("the spectrum is not loaded");
  std::vector<double> values(5000);
  for (auto _ : state) {
    if (PlsIqPredic(handle, 1) != 0) state.SkipWithError("no prediction");
    for (const char* item : kItems) {
      if (GetItemSize(handle, item) == 0) state.SkipWithError("an item is missing");
      benchmark::DoNotOptimize(
          CopyItem(handle, values.data(), item, static_cast<std::int32_t>(values.size())));
    }
  }
  UnLoadCalFile(handle);
  std::filesystem::remove_all(folder);
}
BENCHMARK(PlsPredictionWithAllItems);

void PlsLeaveOneOut(benchmark::State& state) {
  const Eigen::MatrixXd spectra = MadeUpSpectra(60, 401);
  const Eigen::VectorXd reference = MadeUpReference(60);
  double press = 0;
  for (auto _ : state) {
    press = plslibrary::CrossValidate(spectra, reference, kFactors, 60, false).press(kFactors - 1);
    benchmark::DoNotOptimize(press);
  }
  state.counters["press"] = press;
}
BENCHMARK(PlsLeaveOneOut);

}  // namespace
}  // namespace veritane::benchmarks
