// From options and files to the plan of a calibration.
#include "apps/veritane_calibrate/calibration_request.h"

#include "platform/number_text.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>
#include <utility>

namespace veritane::calibrate {

namespace {

using apps::CommandLine;
using apps::UsageError;
using plslibrary::Axis;
using plslibrary::Band;

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::size_t begin = 0;
  for (std::size_t end = 0; end != std::string::npos; begin = end + 1) {
    end = text.find(separator, begin);
    parts.push_back(text.substr(begin, end == std::string::npos ? end : end - begin));
  }
  return parts;
}

int UnitCode(const CommandLine& line, const std::string& option,
             const std::vector<std::pair<std::string, int>>& codes) {
  const std::optional<std::string> name = line.Option(option);
  if (!name) return 0;
  const auto found = std::ranges::find(codes, *name, &std::pair<std::string, int>::first);
  if (found != codes.end()) return found->second;
  throw UsageError(option + " \"" + *name + "\": " + codes[0].first + " or " + codes[1].first + " is needed");
}

Axis AxisOf(const CommandLine& line, const plslibrary::MeasuredSpectrum& spectrum) {
  Axis axis{std::min(spectrum.firstX, spectrum.lastX), std::max(spectrum.firstX, spectrum.lastX),
            static_cast<Eigen::Index>(spectrum.y.size()), spectrum.xType, spectrum.yType};
  if (const int type = UnitCode(line, "--x-unit", {{"cm-1", 1}, {"nm", 3}}); type != 0) axis.xType = type;
  if (const int type = UnitCode(line, "--y-unit", {{"absorbance", 2}, {"transmittance", 128}}); type != 0) {
    axis.yType = type;
  }
  return axis;
}

// "900-1300,1400-1700" as the points of the axis within.
std::vector<Band> BandsOf(const std::string& text, const Axis& axis) {
  std::vector<Band> bands;
  const double step = (axis.lastX - axis.firstX) / static_cast<double>(axis.points - 1);
  for (const std::string& part : Split(text, ',')) {
    const std::vector<std::string> ends = Split(part, '-');
    const auto low = platform::ParseNumber(ends.front());
    const auto high = platform::ParseNumber(ends.back());
    if (ends.size() != 2 || !low || !high || *high < *low) {
      throw UsageError("--range \"" + text + "\": ranges such as 900-1300,1400-1700 are needed");
    }
    // A bound that means a point must not miss it by rounding.
    const double first = std::max(std::ceil((*low - axis.firstX) / step - 1e-6), 0.0);
    const double last =
        std::min(std::floor((*high - axis.firstX) / step + 1e-6), static_cast<double>(axis.points - 1));
    if (last < first) throw UsageError("--range \"" + part + "\": the spectra have no points there");
    bands.push_back({static_cast<Eigen::Index>(first), static_cast<Eigen::Index>(last - first) + 1});
  }
  std::ranges::sort(bands, {}, &Band::first);
  for (std::size_t i = 1; i < bands.size(); ++i) {
    if (bands[i].first < bands[i - 1].first + bands[i - 1].points) {
      throw UsageError("--range \"" + text + "\": ranges overlap");
    }
  }
  return bands;
}

void ReadPlan(const CommandLine& line, CalibrationRequest& request) {
  plslibrary::CalibrationPlan& plan = request.plan;
  plan.axis = AxisOf(line, request.samples.front().spectrum);
  if (plan.axis.points < 2)
    throw SampleError(request.samples.front().place + ": a spectrum of a single point");
  if (const auto range = line.Option("--range")) plan.bands = BandsOf(*range, plan.axis);
  const std::string scale = line.Option("--scale").value_or("no");
  if (scale != "no" && scale != "yes") throw UsageError("--scale \"" + scale + "\": yes or no is needed");
  plan.scaled = scale == "yes";
  const auto samples = static_cast<Eigen::Index>(request.samples.size());
  if (const std::string groups = line.Option("--cv").value_or("loo"); groups != "loo") {
    plan.groups = static_cast<Eigen::Index>(apps::WholeNumberOf("--cv", groups, 2, samples));
  }
  plan.mostFactors =
      static_cast<Eigen::Index>(line.WholeNumber("--max-factors", 10, 1, plslibrary::kMostFactors));
  plan.memo = line.Option("--memo").value_or(std::filesystem::path(line.Words().front()).stem().string());
  if (!plslibrary::SingleByteText(plan.memo)) {
    throw UsageError("--memo: characters up to U+00FF, and no control characters, can be kept");
  }
}

void PlanConstituents(const CommandLine& line, const CsvTable& references,
                      const std::vector<std::size_t>& rows, plslibrary::CalibrationPlan& plan) {
  const std::vector<std::string> names = line.Values("--constituent");
  if (names.empty()) throw UsageError("--constituent is needed: the name of a column of reference values");
  const std::vector<std::string> factors = Split(line.Option("--factors").value_or("0"), ',');
  if (factors.size() != 1 && factors.size() != names.size()) {
    throw UsageError("--factors: one number for all constituents or one for each is needed");
  }
  for (std::size_t i = 0; i < names.size(); ++i) {
    const auto codes = plslibrary::SingleByteText(names[i]);
    if (!codes || codes->empty() || codes->size() > plslibrary::kLongestName) {
      throw UsageError("--constituent \"" + names[i] + "\": up to 32 characters up to U+00FF can be kept");
    }
    if (std::ranges::count(names, names[i]) > 1)
      throw UsageError("--constituent \"" + names[i] + "\": given twice");
    const std::string& number = factors[factors.size() == 1 ? 0 : i];
    const Eigen::Index least = line.Option("--factors") ? 1 : 0;
    plan.constituents.push_back({names[i], references.Reference(names[i], rows),
                                 static_cast<Eigen::Index>(apps::WholeNumberOf("--factors", number, least,
                                                                               plslibrary::kMostFactors))});
  }
}

// The samples of spectrum files in the order of the table of reference values, found by name.
std::vector<Sample> SamplesOfTable(const CsvTable& references, const std::vector<std::size_t>& rows,
                                   const std::vector<std::string>& paths) {
  const std::vector<Sample> all = ReadSamples(paths, std::nullopt);
  std::vector<Sample> samples;
  std::set<std::string> seen;
  for (const std::size_t row : rows) {
    const std::string name = references.SampleName(row);
    const auto count = std::ranges::count(all, name, &Sample::name);
    if (count != 1) {
      throw SampleError(references.Place(row) + ": " +
                        (count == 0 ? "no spectrum is" : "several spectra are") + " named \"" + name + "\"");
    }
    if (!seen.insert(name).second)
      throw SampleError(references.Place(row) + ": \"" + name + "\" stands there twice");
    samples.push_back(*std::ranges::find(all, name, &Sample::name));
  }
  return samples;
}

}  // namespace

CalibrationRequest ReadRequest(const CommandLine& line) {
  if (line.Words().empty()) throw UsageError("no file of samples is given");
  const bool matrix = std::ranges::any_of(line.Words(), IsCsv);
  const std::optional<std::string> reference_file = line.Option("--reference");
  if (matrix && (line.Words().size() > 1 || reference_file)) {
    throw UsageError("a CSV matrix has to be the only file, and holds its reference values itself");
  }
  if (!matrix && !reference_file)
    throw UsageError("spectrum files need --reference, a CSV of reference values");

  const std::string& path = matrix ? line.Words().front() : *reference_file;
  const CsvTable table(path, FileBytes(path));
  const std::vector<std::size_t> rows = ParseRows(line.Option("--rows"), table.RowCount());
  CalibrationRequest request;
  request.samples = matrix ? MatrixSamples(table, rows) : SamplesOfTable(table, rows, line.Words());
  ReadPlan(line, request);
  PlanConstituents(line, table, rows, request.plan);
  request.spectra.resize(static_cast<Eigen::Index>(request.samples.size()), request.plan.axis.points);
  for (std::size_t i = 0; i < request.samples.size(); ++i) {
    request.spectra.row(static_cast<Eigen::Index>(i)) = PointsOnAxis(request.plan.axis, request.samples[i]);
  }
  return request;
}

}  // namespace veritane::calibrate
