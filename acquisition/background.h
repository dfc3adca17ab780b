// Backgrounds: where they are kept, when a new one is due, and how one is collected.
#pragma once

#include "acquisition/bench.h"
#include "acquisition/collection.h"

#include <optional>
#include <string>

namespace veritane::acquisition {

// The background file of a collect method's short name.
std::string BackgroundPath(const state::DataFolders& folders, const std::string& short_name);

// What the schedule looks at.
struct BackgroundSchedule {
  bool beforeEverySample = false;
  bool byInterval = false;
  // The number in the hours box.
  double intervalHours = 0;
};

// Whether a sample needs a new background first. `last_background` is the time of the method's background
// file, nothing when there is none. Hours are counted as hour boundaries on the wall clock, and must exceed
// the interval.
bool IsBackgroundDue(const BackgroundSchedule& schedule,
                     const std::optional<platform::DateTime>& last_background, const platform::DateTime& now);

// Tells the operator that a background is needed, with the method's prompt.
void AnnounceBackground(platform::Desktop& desktop, const std::string& prompt);

// Collects `state.BackGroundName` with `state.clmFile`, draws and files it. In demonstration mode the stored
// "back.bsp" is shown instead.
CollectOutcome CollectBackground(Bench& bench);

}  // namespace veritane::acquisition
