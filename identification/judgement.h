// What follows a prepared Standard and sample: the comparison by the algorithm of the product, and its
// verdict on the screen. The sample run and reprocessing end alike.
#pragma once

#include "acquisition/bench.h"

#include <string>

namespace veritane::identification {

// Takes the result of an earlier run off the screen: traces, bands, markers, header and labels of the chart,
// the line under it and the report; the spectrum panel and the results window are hidden. The comparison
// becomes "not a number", so that no value of an earlier run can judge this one.
void ClearResult(acquisition::Bench& bench);

// Whether Judge knows the algorithm, so that nothing needs to be measured for one that it does not.
bool CanJudge(const std::string& algorithm);

// Compares the prepared Standard and sample of the state by its algorithm, and sets the state's comparison.
// What an algorithm shows beyond the two traces goes onto the chart and into the report here. Errors as the
// algorithms'; 5 for an algorithm that it does not know.
void Judge(acquisition::Bench& bench);

// Writes the verdict into the chart's fourth label, in its colour. The label is empty for an algorithm that
// does not end in a match quality that is shown, and while the option "addPassFail" is off.
void ShowVerdict(const state::ProgramState& state, platform::Chart& chart);

}  // namespace veritane::identification
