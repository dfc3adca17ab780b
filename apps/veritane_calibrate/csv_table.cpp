// Reading and writing comma-separated text.
#include "apps/veritane_calibrate/csv_table.h"

#include "apps/command_line.h"
#include "platform/number_text.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"
#include "plslibrary/even_spacing.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <set>

namespace veritane::calibrate {

namespace {

// Takes text apart into rows of cells; a quoted cell may hold commas and line ends.
class CsvReader {
public:
  CsvReader(const std::string& file, std::string text) : file_(file), text_(std::move(text)) {}

  bool AtEnd() const { return position_ == text_.size(); }
  int Line() const { return line_; }

  std::vector<std::string> ReadRow() {
    std::vector<std::string> cells;
    do {
      cells.push_back(ReadCell());
    } while (Take(','));
    Take('\r');
    Take('\n');
    ++line_;
    return cells;
  }

private:
  bool Take(char wanted) {
    if (AtEnd() || text_[position_] != wanted) return false;
    ++position_;
    return true;
  }

  void SkipBlanks() {
    while (Take(' ') || Take('\t')) {
    }
  }

  std::string ReadCell() {
    SkipBlanks();
    if (Take('"')) return ReadQuoted();
    const std::size_t end = std::min(text_.find_first_of(",\r\n", position_), text_.size());
    const std::string_view cell = std::string_view(text_).substr(position_, end - position_);
    position_ = end;
    return std::string(platform::TrimBlanks(cell));
  }

  std::string ReadQuoted() {
    const std::string place = file_ + ", line " + std::to_string(line_);
    std::string cell;
    while (!AtEnd()) {
      const char character = text_[position_++];
      if (character == '"' && !Take('"')) {
        SkipBlanks();
        if (!AtEnd() && std::string_view(",\r\n").find(text_[position_]) == std::string_view::npos) {
          throw SampleError(place + ": text behind a quoted cell");
        }
        return cell;
      }
      line_ += character == '\n' ? 1 : 0;
      cell.push_back(character);
    }
    throw SampleError(place + ": a quote that does not end");
  }

  const std::string& file_;
  const std::string text_;
  std::size_t position_ = 0;
  int line_ = 1;
};

bool IsEmpty(const std::vector<std::string>& cells) {
  return cells.size() == 1 && cells.front().empty();
}

std::size_t RowNumber(std::string_view text, const std::string& whole) {
  const auto number = platform::ParseWholeNumber(text, 1, std::numeric_limits<std::ptrdiff_t>::max());
  if (!number) throw apps::UsageError("\"" + whole + "\" is no list of rows such as 1,4-9");
  return static_cast<std::size_t>(*number);
}

}  // namespace

CsvTable::CsvTable(std::string file, std::string_view bytes) : file_(std::move(file)) {
  CsvReader reader(file_, platform::DecodeText(bytes));
  while (!reader.AtEnd()) {
    const int line = reader.Line();
    std::vector<std::string> cells = reader.ReadRow();
    if (IsEmpty(cells)) continue;
    if (columns_.empty()) {
      columns_ = std::move(cells);
      continue;
    }
    if (cells.size() != columns_.size()) {
      throw SampleError(file_ + ", line " + std::to_string(line) + ": " + std::to_string(cells.size()) +
                        " columns, the first row names " + std::to_string(columns_.size()));
    }
    rows_.push_back({line, std::move(cells)});
  }
  if (rows_.empty()) throw SampleError(file_ + ": no row of samples below the names of the columns");
  FindAxis();
}

void CsvTable::FindAxis() {
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    if (const auto x = platform::ParseNumber(columns_[column])) {
      axis_columns_.push_back(column);
      axis_.push_back(*x);
    }
  }
}

std::optional<std::size_t> CsvTable::FindColumn(const std::string& name) const {
  const auto found = std::ranges::find(columns_, name);
  if (found == columns_.end()) return std::nullopt;
  if (std::find(found + 1, columns_.end(), name) != columns_.end()) {
    throw SampleError(file_ + ": two columns are named \"" + name + "\"");
  }
  return static_cast<std::size_t>(found - columns_.begin());
}

std::string CsvTable::SampleName(std::size_t row) const {
  const auto found = std::ranges::find(columns_, "SAMPLE", platform::UpperCase);
  if (found == columns_.end()) return std::to_string(row + 1);
  return rows_[row].cells[static_cast<std::size_t>(found - columns_.begin())];
}

std::string CsvTable::Place(std::size_t row) const {
  return file_ + ", line " + std::to_string(rows_[row].line);
}

double CsvTable::Number(const Row& row, std::size_t column) const {
  const auto number = platform::ParseNumber(row.cells[column]);
  if (number && std::isfinite(*number)) return *number;
  throw SampleError(file_ + ", line " + std::to_string(row.line) + ", column " + std::to_string(column + 1) +
                    " (\"" + columns_[column] + "\"): \"" + row.cells[column] + "\" is no number");
}

Eigen::VectorXd CsvTable::Reference(const std::string& column, const std::vector<std::size_t>& rows) const {
  const std::optional<std::size_t> found = FindColumn(column);
  if (!found) throw SampleError(file_ + ": there is no column \"" + column + "\"");
  Eigen::VectorXd values(static_cast<Eigen::Index>(rows.size()));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    values(static_cast<Eigen::Index>(i)) = Number(rows_[rows[i]], *found);
  }
  return values;
}

plslibrary::MeasuredSpectrum CsvTable::Spectrum(std::size_t row) const {
  if (axis_.size() < 2) {
    throw SampleError(file_ + ": fewer than two columns are named by numbers, which would be the x axis");
  }
  try {
    plslibrary::RequireEvenSpacing(axis_, "the columns that are named by numbers: ");
  } catch (const plslibrary::SpectrumReadError& error) {
    throw SampleError(file_ + ", line 1: " + error.what());
  }
  plslibrary::MeasuredSpectrum spectrum{axis_.front(), axis_.back(), {}};
  for (const std::size_t column : axis_columns_) spectrum.y.push_back(Number(rows_[row], column));
  return spectrum;
}

std::vector<std::size_t> ParseRows(const std::optional<std::string>& text, std::size_t count) {
  std::vector<std::size_t> rows;
  if (!text) {
    for (std::size_t row = 0; row < count; ++row) rows.push_back(row);
    return rows;
  }
  std::set<std::size_t> seen;
  std::string_view rest = *text;
  for (bool more = true; more;) {
    const std::size_t comma = rest.find(',');
    const std::string_view part = rest.substr(0, comma);
    more = comma != std::string_view::npos;
    if (more) rest.remove_prefix(comma + 1);
    const std::size_t dash = part.find('-');
    const std::size_t first = RowNumber(part.substr(0, dash), *text);
    const std::size_t last = dash == std::string_view::npos ? first : RowNumber(part.substr(dash + 1), *text);
    if (last < first) throw apps::UsageError("\"" + *text + "\": rows are counted upwards");
    if (last > count) {
      throw apps::UsageError("row " + std::to_string(last) + " of --rows: there are " +
                             std::to_string(count));
    }
    for (std::size_t row = first; row <= last; ++row) {
      if (!seen.insert(row).second)
        throw apps::UsageError("row " + std::to_string(row) + " of --rows: given twice");
      rows.push_back(row - 1);
    }
  }
  return rows;
}

std::string CsvCell(const std::string& text) {
  const bool padded = text.starts_with(' ') || text.ends_with(' ');
  if (!padded && text.find_first_of(",\"\r\n\t") == std::string::npos) return text;
  std::string cell = "\"";
  for (const char character : text) cell.append(character == '"' ? 2 : 1, character);
  return cell + '"';
}

std::string CsvNumber(double number) {
  std::array<char, 32> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
  return {text.data(), end};
}

}  // namespace veritane::calibrate
