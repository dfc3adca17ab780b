// Measuring one spectrum into the current document, with everything that can go wrong at the instrument.
#pragma once

#include <string>

#include "acquisition/bench.h"

namespace veritane::acquisition {

enum class CollectOutcome { kCollected, kCancelled, kInstrumentError };

// Loads the ".clm" file into `scan`, sets the background to measure against unless it is empty, and the
// option that instruments outside the Vantor family need.
void PrepareScan(Bench& bench, const std::string& clm_path, const std::string& background_path);

// Collects into the current document while " Scanning..." shows; in demonstration mode nothing is measured. A
// wrong accessory is asked about until it is right or the user cancels (the document is then closed without
// saving). Any other error is shown, and the application is handed back to the user.
CollectOutcome CollectIntoDocument(Bench& bench);

// The message for an error number of the instrument.
void ShowInstrumentError(platform::Desktop& desktop, int error_number);

}  // namespace veritane::acquisition
