// What one sample costs in arithmetic: its preparation and comparison at 3,601 points.
#include "benchmarks/made_up_spectrum.h"
#include "identification/correlation.h"
#include "identification/lumivar.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace veritane::benchmarks {
namespace {

// Room for the ordinates of `source`, about half a memory page away from them. Some processors copy many
// times slower between addresses that differ by little more than whole pages, and where an allocator puts
// buffers is chance: without this the copy, not the comparison, would decide the figure.
std::vector<double> RoomAwayFrom(const std::vector<double>& source) {
  constexpr std::uintptr_t kPage = 4096;
  for (std::size_t extra = 0;; extra += 64) {
    std::vector<double> room;
    room.reserve(source.size() + extra);
    const auto distance =
        (reinterpret_cast<std::uintptr_t>(room.data()) - reinterpret_cast<std::uintptr_t>(source.data())) %
        kPage;
    if (distance >= kPage / 4 && distance <= 3 * kPage / 4) return room;
    // Kept for the program's life, so that the next attempt lands elsewhere.
    static std::vector<std::vector<double>> rejected;
    rejected.push_back(std::move(room));
  }
}

void EuclideanComparisonWithPreparation(benchmark::State& state) {
  const std::vector<state::NullRegion> regions{{2400, 2300}, {1900, 1800}};
  state::SpectrumBuffer standard = MadeUpSpectrum(0);
  identification::PrepareForEuclidean(standard, regions);
  const state::SpectrumBuffer measured = MadeUpSpectrum(3);
  state::SpectrumBuffer sample;
  sample.Data.values = RoomAwayFrom(measured.Data.values);
  double quality = 0;
  for (auto _ : state) {
    sample = measured;
    identification::PrepareForEuclidean(sample, regions);
    quality = identification::EuclideanComparison(standard.Data, sample.Data);
    benchmark::DoNotOptimize(quality);
  }
  state.counters["quality"] = quality;
}
BENCHMARK(EuclideanComparisonWithPreparation);

// The transforms come from the Spectrometer application; their spans are cut out and normalised here.
void FourierComparisonWithPreparation(benchmark::State& state) {
  const state::Ordinates standard_transform = MadeUpSpectrum(0).Data;
  const state::Ordinates sample_transform = MadeUpSpectrum(3).Data;
  state::Ordinates standard;
  state::Ordinates sample;
  standard.values = RoomAwayFrom(standard_transform.values);
  sample.values = RoomAwayFrom(sample_transform.values);
  for (auto _ : state) {
    standard = standard_transform;
    sample = sample_transform;
    benchmark::DoNotOptimize(identification::FourierComparison(standard, sample));
  }
}
BENCHMARK(FourierComparisonWithPreparation);

// Lumivar reads the spectra as they were measured: there is no preparation.
void LumivarComparison(benchmark::State& state) {
  const state::SpectrumBuffer standard = MadeUpSpectrum(0);
  const state::SpectrumBuffer sample = MadeUpSpectrum(3);
  for (auto _ : state) {
    benchmark::DoNotOptimize(identification::CompareByLumivar(standard.Data, sample.Data, standard.Res));
  }
}
BENCHMARK(LumivarComparison);

}  // namespace
}  // namespace veritane::benchmarks
