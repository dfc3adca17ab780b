// One calibration as a JSON object.
#include "plslibrary/calibration_file.h"
#include "plslibrary/pls_error.h"

#include <nlohmann/json.hpp>

namespace veritane::plslibrary {

namespace {

using nlohmann::json;

json ToJson(const Eigen::VectorXd& values) {
  return std::vector<double>(values.begin(), values.end());
}

// One array a column.
json ToJson(const Eigen::MatrixXd& matrix) {
  json columns = json::array();
  for (Eigen::Index column = 0; column < matrix.cols(); ++column) {
    columns.push_back(ToJson(Eigen::VectorXd(matrix.col(column))));
  }
  return columns;
}

json ToJson(const Limits& limits) {
  return {{"high", limits.high}, {"low", limits.low}};
}

json ToJson(const Axis& axis) {
  return {{"firstX", axis.firstX},
          {"lastX", axis.lastX},
          {"points", axis.points},
          {"xType", axis.xType},
          {"yType", axis.yType}};
}

json ToJson(const FactorSet& set) {
  json score_limits = json::array();
  for (const Limits& limits : set.scoreLimits) score_limits.push_back(ToJson(limits));
  return {{"name", set.constituent},
          {"meanReference", set.meanReference},
          {"coefficients", ToJson(set.coefficients)},
          {"rotations", ToJson(set.rotations)},
          {"loadings", ToJson(set.loadings)},
          {"scoreVariances", ToJson(set.scoreVariances)},
          {"residualSum", set.residualSum},
          {"concentrationLimits", ToJson(set.concentrationLimits)},
          {"scoreLimits", score_limits},
          {"residualLimits", ToJson(set.residualLimits)},
          {"distanceLimits", ToJson(set.distanceLimits)},
          {"rmsecv", set.rmsecv}};
}

[[noreturn]] void RaiseWrong(const std::string& what) {
  throw PlsError(PlsCode::kCalibrationRead, what);
}

const json& Member(const json& object, const char* name) {
  if (!object.is_object()) RaiseWrong(std::string("no object around \"") + name + "\"");
  const auto found = object.find(name);
  if (found == object.end()) {
    throw PlsError(PlsCode::kNotEnoughInformation, std::string("\"") + name + "\" is missing");
  }
  return *found;
}

double Number(const json& value) {
  if (!value.is_number()) RaiseWrong("something else where a number belongs");
  return value.get<double>();
}

// Counts and point numbers; nothing sensible is larger than the limit.
Eigen::Index Count(const json& value) {
  constexpr double kMost = 1e9;
  if (!value.is_number_integer() || value.get<double>() < 0 || value.get<double>() > kMost) {
    RaiseWrong("something else where a count belongs");
  }
  return value.get<Eigen::Index>();
}

std::string Text(const json& value) {
  if (!value.is_string()) RaiseWrong("something else where a text belongs");
  return value.get<std::string>();
}

bool YesOrNo(const json& value) {
  if (!value.is_boolean()) RaiseWrong("something else where true or false belongs");
  return value.get<bool>();
}

const json& List(const json& value) {
  if (!value.is_array()) RaiseWrong("something else where a list belongs");
  return value;
}

Eigen::VectorXd Vector(const json& value) {
  const json& list = List(value);
  Eigen::VectorXd numbers(static_cast<Eigen::Index>(list.size()));
  Eigen::Index next = 0;
  for (const json& number : list) numbers(next++) = Number(number);
  return numbers;
}

Eigen::MatrixXd Matrix(const json& value, Eigen::Index rows) {
  const json& list = List(value);
  // Judged before there is room for them, so that a hostile file cannot ask for more than it fills.
  if (list.size() > static_cast<std::size_t>(kMostFactors)) RaiseWrong("too many factors");
  Eigen::MatrixXd columns(rows, static_cast<Eigen::Index>(list.size()));
  Eigen::Index next = 0;
  for (const json& column : list) {
    const Eigen::VectorXd numbers = Vector(column);
    if (numbers.size() != rows) RaiseWrong("factors of different length");
    columns.col(next++) = numbers;
  }
  return columns;
}

Limits LimitsFrom(const json& value) {
  return {Number(Member(value, "high")), Number(Member(value, "low"))};
}

Axis AxisFrom(const json& value) {
  return {Number(Member(value, "firstX")), Number(Member(value, "lastX")), Count(Member(value, "points")),
          static_cast<int>(Count(Member(value, "xType"))), static_cast<int>(Count(Member(value, "yType")))};
}

FactorSet FactorSetFrom(const json& value) {
  FactorSet set;
  set.constituent = Text(Member(value, "name"));
  set.meanReference = Number(Member(value, "meanReference"));
  set.coefficients = Vector(Member(value, "coefficients"));
  set.rotations = Matrix(Member(value, "rotations"), set.coefficients.size());
  set.loadings = Matrix(Member(value, "loadings"), set.coefficients.size());
  set.scoreVariances = Vector(Member(value, "scoreVariances"));
  set.residualSum = Number(Member(value, "residualSum"));
  set.concentrationLimits = LimitsFrom(Member(value, "concentrationLimits"));
  for (const json& limits : List(Member(value, "scoreLimits"))) set.scoreLimits.push_back(LimitsFrom(limits));
  set.residualLimits = LimitsFrom(Member(value, "residualLimits"));
  set.distanceLimits = LimitsFrom(Member(value, "distanceLimits"));
  set.rmsecv = Number(Member(value, "rmsecv"));
  return set;
}

Calibration CalibrationFrom(const json& value) {
  Calibration calibration;
  calibration.memo = Text(Member(value, "memo"));
  calibration.axis = AxisFrom(Member(value, "axis"));
  for (const json& band : List(Member(value, "bands"))) {
    calibration.bands.push_back({Count(Member(band, "firstPoint")), Count(Member(band, "points"))});
  }
  calibration.scaled = YesOrNo(Member(value, "scaled"));
  calibration.preprocessing = {Vector(Member(value, "mean")), Vector(Member(value, "factor"))};
  calibration.samples = Count(Member(value, "samples"));
  calibration.groups = Count(Member(value, "groups"));
  for (const json& set : List(Member(value, "constituents"))) calibration.sets.push_back(FactorSetFrom(set));
  return calibration;
}

}  // namespace

Calibration ParseCalibration(std::string_view json_text) {
  // Parsing and dropping go on without recursion, so depth cannot exhaust the stack.
  const json value = json::parse(json_text, nullptr, false);
  if (value.is_discarded()) RaiseWrong("no JSON object");
  Calibration calibration = CalibrationFrom(value);
  RequireSound(calibration);
  return calibration;
}

std::string CalibrationJson(const Calibration& calibration) {
  RequireSound(calibration);
  json bands = json::array();
  for (const Band& band : calibration.bands) {
    bands.push_back({{"firstPoint", band.first}, {"points", band.points}});
  }
  json sets = json::array();
  for (const FactorSet& set : calibration.sets) sets.push_back(ToJson(set));
  const json value = {{"memo", calibration.memo},
                      {"axis", ToJson(calibration.axis)},
                      {"bands", bands},
                      {"scaled", calibration.scaled},
                      {"mean", ToJson(calibration.preprocessing.mean)},
                      {"factor", ToJson(calibration.preprocessing.factor)},
                      {"samples", calibration.samples},
                      {"groups", calibration.groups},
                      {"constituents", sets}};
  return value.dump();
}

}  // namespace veritane::plslibrary
