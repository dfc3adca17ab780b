// Feeds arbitrary bytes to the readers of lists: the product table, the methods list, null regions and peak
// files. The first byte says which. A list holds no more entries than its file has bytes, and what is written
// of it reads back; what is refused is refused with a RunTimeError.
#include "acquisition/method_list.h"
#include "acquisition/null_regions.h"
#include "acquisition/product_table.h"
#include "identification/mark_peaks.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"
#include "tests/fuzz/require.h"
#include "tests/support/memory_file_system.h"

#include <cmath>

namespace {

using namespace veritane;
using fuzz::Require;

void ProductTable(std::string_view bytes) {
  const std::vector<acquisition::Product> products = acquisition::ReadProductTable(bytes);
  // A row has three commas or line ends at least.
  Require(3 * products.size() <= bytes.size());
  Require(acquisition::ReadProductTable(acquisition::ProductTableText(products)) == products);
  for (const acquisition::Product& product : products) {
    const auto found = acquisition::FindProduct(bytes, product.productId);
    Require(found && platform::UpperCase(found->productId) == platform::UpperCase(product.productId));
  }
}

void MethodList(std::string_view bytes) {
  state::ProgramState state;
  state.folders.appDir = "C:\\Data\\";
  tests::MemoryFileSystem files;
  files.WriteBytes(acquisition::MethodListPath(state), bytes);
  const std::vector<std::string> paths = platform::ReadCountedLines(bytes, "");
  Require(paths.size() <= bytes.size());
  std::string short_name;
  for (const std::string& path : paths) {
    short_name = acquisition::MethodShortName(path, short_name);
    Require(short_name.find('\\') == std::string::npos);
  }
  state.methodPaths = paths;
  acquisition::SaveMethodList(files, state, state.methodPaths);
  Require(platform::ReadCountedLines(files.ReadBytes(acquisition::MethodListPath(state)), "") == paths);
}

void NullRegions(std::string_view bytes) {
  state::ProgramState state;
  state.clmName = "Disc";
  tests::MemoryFileSystem files;
  files.WriteBytes(acquisition::NullRegionPath(state.folders, state.clmName), bytes);
  acquisition::LoadNullRegions(files, state);
  Require(state.nullRegions.size() <= bytes.size());
  for (const state::NullRegion& region : state.nullRegions) {
    Require(std::isfinite(region.start) && std::isfinite(region.end));
  }
}

void PeakFile(std::string_view bytes) {
  const std::vector<double> peaks = identification::ReadPeakFile(bytes, "peaks.txt");
  Require(!peaks.empty() && 2 * peaks.size() <= bytes.size() + 1);
  for (const double peak : peaks) Require(std::isfinite(peak));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Feed({{'t', ProductTable}, {'m', MethodList}, {'n', NullRegions}, {'p', PeakFile}}, data, size);
  return 0;
}
