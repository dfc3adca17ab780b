// What files cost: a full sample document of 50 spectra, and a product table of 10,000 rows. In memory, so
// that the figures are the program's and not the disk's.
#include "acquisition/product_table.h"
#include "benchmarks/made_up_spectrum.h"
#include "simulator/jcamp_writer.h"
#include "simulator/spectrum_file.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace veritane::benchmarks {
namespace {

std::vector<simulator::StoredSpectrum> FiftySpectra() {
  std::vector<simulator::StoredSpectrum> spectra;
  for (int k = 0; k < 50; ++k) {
    simulator::StoredSpectrum spectrum;
    spectrum.name = "Sample " + std::to_string(k);
    spectrum.spacing = 1;
    spectrum.ordinates = MadeUpSpectrum(0.1 * k).Data;
    spectra.push_back(std::move(spectrum));
  }
  return spectra;
}

std::string DocumentText(const std::vector<simulator::StoredSpectrum>& spectra) {
  std::vector<const simulator::StoredSpectrum*> pointers;
  for (const simulator::StoredSpectrum& spectrum : spectra) pointers.push_back(&spectrum);
  return simulator::WriteJcamp(pointers);
}

void WriteDocumentOf50Spectra(benchmark::State& state) {
  const std::vector<simulator::StoredSpectrum> spectra = FiftySpectra();
  for (auto _ : state) benchmark::DoNotOptimize(DocumentText(spectra));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(DocumentText(spectra).size()));
}
BENCHMARK(WriteDocumentOf50Spectra)->Unit(benchmark::kMillisecond);

void ReadDocumentOf50Spectra(benchmark::State& state) {
  const std::string text = DocumentText(FiftySpectra());
  for (auto _ : state) {
    const simulator::SpectrumFile file = simulator::ReadSpectrumFile("C:\\samples.bsp", text);
    if (file.spectra.size() != 50 || file.spectra.back().ordinates.Size() != 3601) {
      state.SkipWithError("the document came back incomplete");
    }
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(ReadDocumentOf50Spectra)->Unit(benchmark::kMillisecond);

std::string TableOf10000Rows() {
  std::vector<acquisition::Product> products;
  for (int row = 0; row < 10'000; ++row) {
    products.push_back({.productId = "Product" + std::to_string(row),
                        .collectMethod = "Transmission",
                        .algorithm = "Euclidean",
                        .additionalFile = ""});
  }
  return acquisition::ProductTableText(products);
}

void LoadProductTableOf10000Rows(benchmark::State& state) {
  const std::string text = TableOf10000Rows();
  for (auto _ : state) {
    if (acquisition::ReadProductTable(text).size() != 10'000) state.SkipWithError("rows are missing");
  }
}
BENCHMARK(LoadProductTableOf10000Rows)->Unit(benchmark::kMillisecond);

void FindLastOf10000Products(benchmark::State& state) {
  const std::string text = TableOf10000Rows();
  for (auto _ : state) {
    if (!acquisition::FindProduct(text, "PRODUCT9999")) state.SkipWithError("the product was not found");
  }
}
BENCHMARK(FindLastOf10000Products)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veritane::benchmarks
