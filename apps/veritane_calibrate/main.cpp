// veritane-calibrate: builds a calibration from spectra and reference values.
#include "apps/command_line.h"
#include "apps/veritane_calibrate/calibration_report.h"
#include "apps/veritane_calibrate/calibration_request.h"
#include "plslibrary/calibration_file.h"

#include <iostream>

namespace {

using namespace veritane::calibrate;
using veritane::apps::CommandLine;
using veritane::apps::UsageError;
namespace plslibrary = veritane::plslibrary;

constexpr const char* kUsage =
    "usage: veritane-calibrate DATA.csv --constituent NAME... [OPTION...]\n"
    "       veritane-calibrate SPECTRA... --reference VALUES.csv --constituent NAME... [OPTION...]\n"
    "Builds a PLS calibration and writes a report of its cross-validation.\n"
    "  DATA.csv            a row a sample; columns named by numbers are x, the others reference values\n"
    "  SPECTRA             documents (.bsp), JCAMP-DX (.jdx, .dx) or SPC files\n"
    "  --reference FILE    reference values of SPECTRA; its column \"sample\" names the spectra\n"
    "  --constituent NAME  a column of reference values; once for each constituent\n"
    "  --rows 1,4-9        the samples to use, by row (all)\n"
    "  --factors N[,N...]  for all constituents or for each (as cross-validation suggests)\n"
    "  --max-factors N     that cross-validation goes up to (10)\n"
    "  --cv loo|K          leaves out one sample at a time, or every K-th (loo)\n"
    "  --range 900-1300,…  the ranges of x to use (all)\n"
    "  --scale yes|no      divides every point by its standard deviation (no)\n"
    "  --x-unit cm-1|nm, --y-unit absorbance|transmittance   where the files do not say\n"
    "  --memo TEXT         of the calibration (the name of the first file)\n"
    "  --out FILE.cal      the calibration file to write\n"
    "  --add-to FILE.cal   adds the calibration to a file that is there\n"
    "  --report FILE.json  the report as JSON\n"
    "Exit status: 0 done, 1 the data are at fault, 2 the command line is.\n";

void Save(const CommandLine& line, const plslibrary::Calibration& calibration) {
  std::vector<plslibrary::Calibration> calibrations;
  const std::optional<std::string> grown = line.Option("--add-to");
  if (grown) {
    calibrations = ReadCalibrations(*grown);
    if (calibrations.size() == plslibrary::kMostCalibrations)
      throw SampleError(*grown + ": the file is full");
  }
  calibrations.push_back(calibration);
  WriteFile(grown ? *grown : *line.Option("--out"), plslibrary::CalibrationFileText(calibrations));
}

int Calibrate(const CommandLine& line) {
  if (line.Option("--out") && line.Option("--add-to"))
    throw UsageError("--out and --add-to exclude each other");
  const bool saves = line.Option("--out") || line.Option("--add-to");
  if (!saves && !line.Option("--report")) throw UsageError("--out, --add-to or --report is needed");
  const CalibrationRequest request = ReadRequest(line);
  for (const Sample& sample : request.samples) {
    if (!sample.remark.empty())
      std::cerr << "veritane-calibrate: " << sample.place << ": " << sample.remark << '\n';
  }
  const plslibrary::BuiltCalibration built = plslibrary::BuildCalibration(request.plan, request.spectra);
  if (const auto report = line.Option("--report")) {
    WriteFile(*report, ReportJson(built, request.plan, request.samples));
  }
  std::cout << ReportText(built, request.samples) << std::flush;
  if (!std::cout) throw SampleError("the report cannot be written");
  // Last of all: who tries again after a failure must not find the calibration added already.
  if (saves) Save(line, built.calibration);
  return 0;
}

}  // namespace

int main(int argument_count, char** arguments) {
  return veritane::apps::RunProgram(
      {.name = "veritane-calibrate",
       .usage = kUsage,
       .options = {"--reference", "--constituent", "--rows", "--factors", "--max-factors", "--cv", "--range",
                   "--scale", "--x-unit", "--y-unit", "--memo", "--out", "--add-to", "--report"},
       .mostWords = 100'000},
      argument_count, arguments, Calibrate);
}
