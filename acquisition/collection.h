// Measuring one spectrum into the current document, with everything that can go wrong at the instrument.
#pragma once

#include "acquisition/bench.h"

#include <string>

namespace veritane::acquisition {

enum class CollectOutcome { kCollected, kCancelled, kInstrumentError };

// Loads the ".clm" file into `scan`, sets the background to measure against unless it is empty, and the
// option that instruments outside the Vantor family need.
void PrepareScan(Bench& bench, const std::string& clm_path, const std::string& background_path);

// The same before a measurement against a background, except that a demonstration, which measures nothing, is
// not stopped by a method that is not there.
void PrepareMeasurement(Bench& bench, const std::string& clm_path, const std::string& background_path);

// The stored spectrum of the Standards folder that stands for a measured one in demonstration mode.
std::string DemonstrationFile(const std::string& algorithm);

// Asks for the sample, with the method's prompt.
void AnnounceSample(platform::Desktop& desktop, const std::string& prompt);

// Collects into the current document while " Scanning..." shows; in demonstration mode nothing is measured. A
// wrong accessory is asked about until it is right or the user cancels (the document is then closed without
// saving). Any other error is shown, and the application is handed back to the user. Where a background is
// measured against, `background_path` names its file, which is named, too, when it cannot be read.
CollectOutcome CollectIntoDocument(Bench& bench, const std::string& background_path);

// The message for an error number of the instrument.
void ShowInstrumentError(platform::Desktop& desktop, int error_number);

}  // namespace veritane::acquisition
