// What "PLS" does instead of a comparison: predicted values of the product's calibration, on the chart and in
// the spectrum.
#pragma once

#include "acquisition/bench.h"

#include <string>
#include <vector>

namespace veritane::identification {

struct PredictedValue {
  // As the calibration names it, or its number. A unit stands behind the name in square brackets:
  // "Polystyrene [%]".
  std::string name;
  double value = 0;
};

// The values of the last prediction, in the calibration's order; none when it failed.
std::vector<PredictedValue> PredictedValues(const state::ProgramState& state);

// "Polystyrene = 34.21 %": two decimals, or two significant digits where those would be lost below .1.
std::string PredictionLine(const PredictedValue& predicted);

// A line a value, or one that says that there is none.
std::vector<std::string> PredictionLines(const state::ProgramState& state);

// Predicts from the current document's spectrum number `state.SpectrumIndex`. Nothing is compared: the
// state's comparison is not a number afterwards. A prediction that failed has been told of and leaves no
// values. The values become the header of the chart.
void PredictByPls(acquisition::Bench& bench);

}  // namespace veritane::identification
