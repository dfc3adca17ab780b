// What a run makes of a spectrum, Standard or sample, before it compares the two.
#pragma once

#include "acquisition/bench.h"
#include "acquisition/opened_documents.h"

#include <string>

namespace veritane::identification {

// Prepares the spectrum of the current document, the last one of `opened`, which `spectrum` was read from,
// for the state's algorithm: `chart` becomes its trace on a scale from 0 to 1, `transform` its transform for
// "Fourier"; for "Euclidean" the spectrum itself loses its baseline, is normalised and goes through the null
// regions of the state's collect method. The document is then closed without saving, but for the algorithms
// of LeavesDocumentOpen.
void PrepareSpectrum(acquisition::Bench& bench, acquisition::OpenedDocuments& opened,
                     state::SpectrumBuffer& spectrum, state::Ordinates& chart, state::Ordinates& transform);

// "PLS" and "Mark Peaks" do not read the spectrum's points: their documents stay open until the run is over.
bool LeavesDocumentOpen(const std::string& algorithm);

// Plots both traces of the state and sets the limits of the axes.
void PlotTraces(state::ProgramState& state, platform::Chart& chart);

// The limits of the axes as the displayed spectra ask for them, with a margin of a tenth of the largest
// ordinate.
void ResetChartLimits(state::ProgramState& state, platform::Chart& chart);

}  // namespace veritane::identification
