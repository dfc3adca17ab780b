// A table of texts with a header row, of which one row is current.
#pragma once

#include "platform/control.h"

#include <functional>
#include <string>
#include <vector>

namespace veritane::platform {

enum class GridAlignment { kLeft, kRight, kCentre };

// Rows and columns count from 0; the first FixedRows() rows are headings.
class Grid : public Control {
public:
  Grid(Form& form, std::string name);

  // Raised when another row or column became the current one.
  std::function<void()> OnRowColChange;

  int RowCount() const { return static_cast<int>(cells_.size()); }
  int ColumnCount() const { return column_count_; }
  // Keeps the cells that remain; new cells are empty. Error 5 for negative counts.
  void Resize(int rows, int columns);

  int FixedRows() const { return fixed_rows_; }
  void SetFixedRows(int rows);

  // Error 9 outside the table.
  const std::string& Cell(int row, int column) const;
  void SetCell(int row, int column, const std::string& text);
  const std::vector<std::vector<std::string>>& Rows() const { return cells_; }
  // Replaces the rows behind the header by these, all at once.
  void SetBody(std::vector<std::vector<std::string>> rows);
  void RemoveRow(int row);

  // Sets header texts and alignments from columns joined by "|": each begins with "<", ">" or "^" for the
  // alignment, blanks around the text only widen the column. Adds columns where there are fewer.
  void SetFormat(const std::string& format);
  GridAlignment Alignment(int column) const { return alignments_.at(static_cast<std::size_t>(column)); }

  // The cells of the current row with their headings.
  std::string SpokenContent() const override;

  int Row() const { return row_; }
  int Column() const { return column_; }
  void SetCurrentCell(int row, int column);
  void SetRow(int row) { SetCurrentCell(row, column_); }

private:
  void CheckInside(int row, int column) const;

  std::vector<std::vector<std::string>> cells_;
  std::vector<GridAlignment> alignments_;
  int column_count_ = 0;
  int fixed_rows_ = 1;
  int row_ = 1;
  int column_ = 1;
};

}  // namespace veritane::platform
