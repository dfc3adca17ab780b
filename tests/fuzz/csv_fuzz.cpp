// Feeds arbitrary bytes to the reader of tables of samples; a first line that begins with "#" is the list of
// rows that is asked for. What the tables give is finite and no larger than the file, and a sample's name
// that is written as a cell reads back; what is refused is refused with a SampleError or a UsageError.
#include "apps/command_line.h"
#include "apps/veritane_calibrate/csv_table.h"
#include "tests/fuzz/require.h"

#include <cmath>
#include <set>

namespace {

using namespace veritane;
using fuzz::Require;

template <typename Action>
void Attempt(Action action) {
  try {
    action();
  } catch (const calibrate::SampleError&) {
  } catch (const apps::UsageError&) {
  }
}

void RequireFiniteSpectrum(const calibrate::CsvTable& table, std::size_t row, std::size_t size) {
  const plslibrary::MeasuredSpectrum spectrum = table.Spectrum(row);
  Require(std::isfinite(spectrum.firstX) && std::isfinite(spectrum.lastX));
  Require(spectrum.firstX != spectrum.lastX && spectrum.y.size() <= size);
  for (const double y : spectrum.y) Require(std::isfinite(y));
}

void RequireCellReadsBack(const std::string& text) {
  const calibrate::CsvTable again("again.csv", "sample,1\n" + calibrate::CsvCell(text) + ",2\n");
  Require(again.RowCount() == 1 && again.SampleName(0) == text);
}

void RequireTable(const calibrate::CsvTable& table, const std::optional<std::string>& rows,
                  std::size_t size) {
  Require(table.RowCount() <= size);
  for (std::size_t row = 0; row < table.RowCount(); ++row) {
    RequireCellReadsBack(table.SampleName(row));
    Attempt([&] { RequireFiniteSpectrum(table, row, size); });
  }
  const std::vector<std::size_t> chosen = calibrate::ParseRows(rows, table.RowCount());
  Require(std::set(chosen.begin(), chosen.end()).size() == chosen.size());
  for (const std::size_t row : chosen) Require(row < table.RowCount());
  for (const char* const column : {"octane", "sample", "1"}) {
    Attempt([&] {
      const Eigen::VectorXd values = table.Reference(column, chosen);
      Require(values.allFinite() && static_cast<std::size_t>(values.size()) == chosen.size());
    });
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view bytes = fuzz::BytesOf(data, size);
  std::optional<std::string> rows;
  if (bytes.starts_with('#')) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    rows = bytes.substr(1, end - 1);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  Attempt([&] { RequireTable(calibrate::CsvTable("fuzzed.csv", bytes), rows, size); });
  return 0;
}
