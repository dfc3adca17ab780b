// How long the simulated instrument computes for one collection.
#include "simulator/instrument_model.h"

#include <benchmark/benchmark.h>

namespace veritane::simulator {
namespace {

// Sample and background of 3,601 points with noise, and their ratio: what a measured spectrum takes.
void CollectAgainstBackground(benchmark::State& run) {
  const WavenumberGrid grid = GridOver(400, 4000, 1);
  const auto sample = SampleOf("acetylsalicylic acid", {});
  const auto empty = SampleOf("empty", {});
  ScanSettings settings;
  const veritane::state::Ordinates background = SingleBeam(empty, grid, settings);
  for (auto _ : run) {
    ++settings.seed;
    benchmark::DoNotOptimize(AbsorbanceAgainst(background, SingleBeam(sample, grid, settings)));
  }
}
BENCHMARK(CollectAgainstBackground)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veritane::simulator
