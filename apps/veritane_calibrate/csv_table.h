// Tables in comma-separated text: spectra with their reference values, or reference values alone.
#pragma once

#include "plslibrary/measured_spectrum.h"

#include <Eigen/Core>

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::calibrate {

// What is wrong with a file of samples: file, line and column, in words.
struct SampleError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// A table whose first row names the columns. Cells may stand in double quotes, with blanks around them;
// numbers have a decimal point.
class CsvTable {
public:
  // SampleError for text without a row of samples, for rows of another length, and for an open quote.
  CsvTable(std::string file, std::string_view bytes);

  const std::string& File() const { return file_; }
  std::size_t RowCount() const { return rows_.size(); }
  // The cell of column "sample" (in any case), or the row's number, from 1.
  std::string SampleName(std::size_t row) const;
  // "gas.csv, line 3".
  std::string Place(std::size_t row) const;

  // A column of reference values, for the rows given. SampleError for a column that is missing or named twice
  // and for a cell that is no number.
  Eigen::VectorXd Reference(const std::string& column, const std::vector<std::size_t>& rows) const;

  // The row's spectrum: the columns whose names are numbers, which have to be evenly spaced, are its x.
  // SampleError where there is no such axis and for a cell that is no number.
  plslibrary::MeasuredSpectrum Spectrum(std::size_t row) const;

private:
  struct Row {
    int line;
    std::vector<std::string> cells;
  };

  double Number(const Row& row, std::size_t column) const;
  std::optional<std::size_t> FindColumn(const std::string& name) const;
  void FindAxis();

  std::string file_;
  std::vector<std::string> columns_;
  std::vector<Row> rows_;
  std::vector<std::size_t> axis_columns_;
  std::vector<double> axis_;
};

// "1,4-9" as indices from 0 in the order given; nothing given is all `count` rows. apps::UsageError for a
// text that is no such list, for a row given twice, and for one beyond `count`.
std::vector<std::size_t> ParseRows(const std::optional<std::string>& text, std::size_t count);

// A cell that reads back as `text`.
std::string CsvCell(const std::string& text);
// The shortest text that reads back as the same number.
std::string CsvNumber(double number);

}  // namespace veritane::calibrate
