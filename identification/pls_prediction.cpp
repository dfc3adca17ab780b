// Running the prediction and wording its values.
#include "identification/pls_prediction.h"

#include "shell/state/string_table.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace veritane::identification {

namespace {

std::string ValueText(double value) {
  constexpr double kLeastWithTwoDecimals = 0.1;
  constexpr int kDigits = 2;
  std::array<char, 400> text{};
  const bool is_small = value != 0 && std::abs(value) < kLeastWithTwoDecimals;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 is_small ? std::chars_format::general : std::chars_format::fixed, kDigits);
  return {text.data(), end.ptr};
}

}  // namespace

std::vector<PredictedValue> PredictedValues(const state::ProgramState& state) {
  std::vector<PredictedValue> values;
  if (!state.predictionSucceeded) return values;
  // Element 0 of both arrays is not used.
  for (std::size_t k = 1; k < state.PLSConcentrations.size(); ++k) {
    const bool has_name = k < state.PLSConstituentNames.size() && !state.PLSConstituentNames[k].empty();
    values.push_back({.name = has_name ? state.PLSConstituentNames[k] : std::to_string(k),
                      .value = state.PLSConcentrations[k]});
  }
  return values;
}

std::string PredictionLine(const PredictedValue& predicted) {
  const std::string& name = predicted.name;
  const std::size_t bracket = name.rfind(" [");
  if (bracket == std::string::npos || name.back() != ']') return name + " = " + ValueText(predicted.value);
  const std::size_t unit = bracket + 2;
  return name.substr(0, bracket) + " = " + ValueText(predicted.value) + " " +
         name.substr(unit, name.size() - unit - 1);
}

std::vector<std::string> PredictionLines(const state::ProgramState& state) {
  if (!state.predictionSucceeded) return {state::Text(state::TextId::kPredictionFailed)};
  std::vector<std::string> lines;
  for (const PredictedValue& predicted : PredictedValues(state)) lines.push_back(PredictionLine(predicted));
  return lines;
}

void PredictByPls(acquisition::Bench& bench) {
  bench.state.comparison = std::numeric_limits<double>::quiet_NaN();
  bench.state.predictionSucceeded = false;
  bench.state.predictionSucceeded = bench.Predict();
  bench.panel.chart.SetHeader(PredictionLines(bench.state));
}

}  // namespace veritane::identification
