// The `app` lines of a script: what lies in the simulated instrument, and what was asked of it.
#pragma once

#include "apps/simulated_bench.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace veritane::console {

// Carries out one line, given its words without "app", and returns the events to print. RefusedLine for words
// that say nothing. The words: sample NAME, accessory NAME, fault NUMBER [COUNT], noise FACTOR, duration
// MILLISECONDS, seed NUMBER|random, calls.
std::vector<nlohmann::ordered_json> SetInstrument(apps::SimulatedBench& bench,
                                                  const std::vector<std::string>& words);

}  // namespace veritane::console
