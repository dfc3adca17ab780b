// The grid's cells and its current cell.
#include "platform/grid.h"

#include "platform/run_time_error.h"

#include <algorithm>

namespace veritane::platform {

Grid::Grid(Form& form, std::string name) : Control(form, std::move(name), ControlKind::kGrid) {
  Resize(2, 2);
}

void Grid::CheckInside(int row, int column) const {
  if (row < 0 || row >= RowCount() || column < 0 || column >= column_count_) {
    throw RunTimeError(ErrorNumber::kSubscript);
  }
}

void Grid::Resize(int rows, int columns) {
  if (rows < 0 || columns < 0) throw RunTimeError(ErrorNumber::kInvalidCall);
  column_count_ = columns;
  alignments_.resize(static_cast<std::size_t>(columns), GridAlignment::kLeft);
  cells_.resize(static_cast<std::size_t>(rows));
  for (auto& row : cells_) row.resize(static_cast<std::size_t>(columns));
  row_ = std::clamp(row_, 0, std::max(0, rows - 1));
  column_ = std::clamp(column_, 0, std::max(0, columns - 1));
  Changed(Property::kCells);
}

void Grid::SetFixedRows(int rows) {
  fixed_rows_ = rows;
  Changed(Property::kCells);
}

const std::string& Grid::Cell(int row, int column) const {
  CheckInside(row, column);
  return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void Grid::SetCell(int row, int column, const std::string& text) {
  CheckInside(row, column);
  std::string& cell = cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  if (cell == text) return;
  cell = text;
  Changed(Property::kCells);
}

void Grid::SetBody(std::vector<std::vector<std::string>> rows) {
  cells_.resize(std::min<std::size_t>(cells_.size(), 1));
  cells_.insert(cells_.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
  Resize(RowCount(), column_count_);
}

void Grid::RemoveRow(int row) {
  CheckInside(row, 0);
  cells_.erase(cells_.begin() + row);
  Resize(RowCount(), column_count_);
}

void Grid::SetFormat(const std::string& format) {
  std::vector<std::string> columns;
  std::size_t begin = 0;
  for (std::size_t bar = 0; bar != std::string::npos; begin = bar + 1) {
    bar = format.find('|', begin);
    columns.push_back(format.substr(begin, bar - begin));
  }
  Resize(std::max(1, RowCount()), std::max(column_count_, static_cast<int>(columns.size())));
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::string text = columns[i];
    if (!text.empty() && std::string("<>^").find(text[0]) != std::string::npos) {
      alignments_[i] = text[0] == '<'   ? GridAlignment::kLeft
                       : text[0] == '>' ? GridAlignment::kRight
                                        : GridAlignment::kCentre;
      text.erase(0, 1);
    }
    const std::size_t first = text.find_first_not_of(' ');
    const std::size_t last = text.find_last_not_of(' ');
    cells_[0][i] = first == std::string::npos ? "" : text.substr(first, last - first + 1);
  }
  Changed(Property::kCells);
}

void Grid::SetCurrentCell(int row, int column) {
  CheckInside(row, column);
  if (row == row_ && column == column_) return;
  row_ = row;
  column_ = column;
  Changed(Property::kRow);
  if (OnRowColChange) OnRowColChange();
}

std::string Grid::SpokenContent() const {
  if (row_ < fixed_rows_ || row_ >= RowCount()) return {};
  std::string content;
  for (int column = 0; column < column_count_; ++column) {
    if (!content.empty()) content += ", ";
    if (fixed_rows_ > 0) content += Cell(0, column) + " ";
    content += Cell(row_, column);
  }
  return content;
}

}  // namespace veritane::platform
