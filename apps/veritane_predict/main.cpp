// veritane-predict: applies a calibration to spectra.
#include "apps/command_line.h"
#include "apps/veritane_calibrate/samples.h"
#include "plslibrary/calibration_file.h"
#include "plslibrary/pls_error.h"
#include "plslibrary/prediction.h"

#include <nlohmann/json.hpp>

#include <iostream>

namespace {

using namespace veritane::calibrate;
using veritane::apps::CommandLine;
using veritane::apps::UsageError;
namespace plslibrary = veritane::plslibrary;

constexpr const char* kUsage =
    "usage: veritane-predict FILE.cal DATA.csv [OPTION...]\n"
    "       veritane-predict FILE.cal SPECTRA... [OPTION...]\n"
    "Writes a CSV: a row a sample with its name and a column a constituent.\n"
    "  DATA.csv         a row a sample; columns named by numbers are x\n"
    "  SPECTRA          documents (.bsp), JCAMP-DX (.jdx, .dx) or SPC files\n"
    "  --rows 1,4-9     the samples to predict, by row (all)\n"
    "  --calibration N  of the file, from 1 (1)\n"
    "  --report FILE    how well each spectrum fits the calibration, as JSON\n"
    "Exit status: 0 done, 1 the data are at fault, 2 the command line is.\n";

bool IsWithin(double value, const plslibrary::Limits& limits) {
  return value >= limits.low && value <= limits.high;
}

nlohmann::ordered_json FitJson(const plslibrary::Calibration& calibration, const plslibrary::FactorSet& set,
                               const plslibrary::SetPrediction& predicted) {
  return {{"name", set.constituent},
          {"predicted", predicted.concentration},
          {"withinReferenceValues", IsWithin(predicted.concentration, set.concentrationLimits)},
          {"distance", predicted.distance},
          {"largestDistance", set.distanceLimits.high},
          {"residual", predicted.residual},
          {"largestResidual", set.residualLimits.high},
          {"residualProbability", plslibrary::ResidualProbability(calibration, set, predicted.residual)}};
}

int PredictSamples(const CommandLine& line) {
  if (line.Words().size() < 2) throw UsageError("a calibration file and a file of samples are needed");
  const plslibrary::Calibration calibration = ReadCalibration(
      line.Words().front(),
      static_cast<int>(line.WholeNumber("--calibration", 1, 1, plslibrary::kMostCalibrations)));
  const std::vector<Sample> samples =
      ReadSamples({line.Words().begin() + 1, line.Words().end()}, line.Option("--rows"));
  std::string table = "sample";
  for (const plslibrary::FactorSet& set : calibration.sets) table += "," + CsvCell(set.constituent);
  table += '\n';
  nlohmann::ordered_json report = nlohmann::ordered_json::array();
  plslibrary::Prediction prediction = plslibrary::RoomForPrediction(calibration);
  for (const Sample& sample : samples) {
    if (!sample.remark.empty())
      std::cerr << "veritane-predict: " << sample.place << ": " << sample.remark << '\n';
    try {
      plslibrary::Predict(calibration, PointsOnAxis(calibration.axis, sample), prediction);
    } catch (const plslibrary::PlsError& error) {
      throw SampleError(sample.place + ": " + error.what());
    }
    table += CsvCell(sample.name);
    nlohmann::ordered_json fits = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < calibration.sets.size(); ++i) {
      table += "," + CsvNumber(prediction.sets[i].concentration);
      fits.push_back(FitJson(calibration, calibration.sets[i], prediction.sets[i]));
    }
    table += '\n';
    report.push_back({{"sample", sample.name}, {"constituents", fits}});
  }
  if (const auto file = line.Option("--report")) WriteFile(*file, report.dump(2) + "\n");
  std::cout << table << std::flush;
  if (!std::cout) throw SampleError("the table cannot be written");
  return 0;
}

}  // namespace

int main(int argument_count, char** arguments) {
  return veritane::apps::RunProgram({.name = "veritane-predict",
                                     .usage = kUsage,
                                     .options = {"--rows", "--calibration", "--report"},
                                     .mostWords = 100'000},
                                    argument_count, arguments, PredictSamples);
}
