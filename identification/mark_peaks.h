// "Mark Peaks": shows where a product's peaks are expected. Nothing is compared.
#pragma once

#include "acquisition/bench.h"

#include <string>
#include <string_view>
#include <vector>

namespace veritane::identification {

// The numbers of a peak file (cm⁻¹, decimal point), in their order, with blanks, tabs, commas, semicolons and
// line ends between them. `bytes` as they come from the file; `path` is for the text of errors.
//
// Error 13 for anything that is no number, with its line; 62 for a file without any.
std::vector<double> ReadPeakFile(std::string_view bytes, const std::string& path);

// The peaks of the product's file. Errors as ReadPeakFile's and the file system's; 53 where the product names
// no file.
std::vector<double> PeaksOfProduct(const acquisition::Bench& bench);

// Marks the peaks of the product's file on the chart and keeps them on the state. `comparison` becomes "not a
// number", so that nothing judges by it. Errors as PeaksOfProduct's; the state then has no peaks.
void MarkPeaks(acquisition::Bench& bench);

}  // namespace veritane::identification
