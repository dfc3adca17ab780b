// A wxGrid over the grid control's cells.
#include "platform/wx/grid_view.h"

#include "platform/wx/wx_text.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

#include <algorithm>

namespace veritane::platform {

namespace {

// How many of the longest texts of a column are measured: the longest text is not always the widest.
constexpr std::size_t kMeasuredTexts = 12;

// The rows behind the header. The counts are those that the widget has been told of.
class GridTable : public wxGridTableBase {
public:
  explicit GridTable(const Grid& grid) : grid_(grid) {}

  int GetNumberRows() override { return rows_; }
  int GetNumberCols() override { return columns_; }
  bool IsEmptyCell(int row, int column) override { return GetValue(row, column).empty(); }
  void SetValue(int, int, const wxString&) override {}

  wxString GetValue(int row, int column) override {
    const int grid_row = row + grid_.FixedRows();
    if (grid_row >= grid_.RowCount() || column >= grid_.ColumnCount()) return {};
    return ToWx(grid_.Cell(grid_row, column));
  }

  wxString GetColLabelValue(int column) override {
    if (grid_.FixedRows() == 0 || grid_.RowCount() == 0 || column >= grid_.ColumnCount()) return {};
    return ToWx(grid_.Cell(0, column));
  }

  wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override {
    wxGridCellAttr* attribute = wxGridTableBase::GetAttr(row, column, kind);
    if (column >= grid_.ColumnCount() || grid_.Alignment(column) == GridAlignment::kLeft) return attribute;
    if (attribute == nullptr) attribute = new wxGridCellAttr;
    attribute->SetAlignment(grid_.Alignment(column) == GridAlignment::kRight ? wxALIGN_RIGHT : wxALIGN_CENTRE,
                            wxALIGN_CENTRE);
    return attribute;
  }

  // Tells the widget about rows and columns that came or went.
  void CatchUp() {
    Announce(std::max(0, grid_.RowCount() - grid_.FixedRows()), rows_, wxGRIDTABLE_NOTIFY_ROWS_APPENDED,
             wxGRIDTABLE_NOTIFY_ROWS_DELETED);
    Announce(grid_.ColumnCount(), columns_, wxGRIDTABLE_NOTIFY_COLS_APPENDED,
             wxGRIDTABLE_NOTIFY_COLS_DELETED);
  }

private:
  void Announce(int count, int& known, int appended, int deleted) {
    const int difference = count - known;
    if (difference == 0) return;
    known = count;
    if (difference > 0) {
      wxGridTableMessage message(this, appended, difference);
      GetView()->ProcessTableMessage(message);
    } else {
      wxGridTableMessage message(this, deleted, count, -difference);
      GetView()->ProcessTableMessage(message);
    }
  }

  const Grid& grid_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace

GridView::GridView(Grid& grid, ViewOwner& owner, wxWindow* parent)
    : ControlView(grid, owner),
      grid_(grid),
      widget_(new wxGrid(parent, wxID_ANY)),
      table_(new GridTable(grid)) {
  widget_->SetTable(table_, true, wxGrid::wxGridSelectRows);
  widget_->EnableEditing(false);
  widget_->EnableDragRowSize(false);
  widget_->EnableDragColMove(false);
  widget_->DisableCellEditControl();
  widget_->HideRowLabels();
  widget_->SetDefaultRowSize(widget_->GetCharHeight() * 8 / 5, true);
  widget_->SetColLabelSize(widget_->GetCharHeight() * 9 / 5);
  widget_->SetColLabelAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
  widget_->SetLabelFont(widget_->GetFont().Bold());
  widget_->SetDefaultCellFont(widget_->GetFont());
  widget_->SetCellHighlightPenWidth(0);
  widget_->SetTabBehaviour(wxGrid::Tab_Leave);
  widget_->SetGridLineColour(wxSystemSettings::GetColour(wxSYS_COLOUR_3DLIGHT));
  widget_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    widget_->CallAfter([this] { StretchLastColumn(); });
  });
  widget_->Bind(wxEVT_GRID_SELECT_CELL, &GridView::OnSelectCell, this);
}

void GridView::ShowState() {
  if (is_catching_up_) return;
  is_catching_up_ = true;
  widget_->CallAfter([this] {
    is_catching_up_ = false;
    ShowCells();
  });
}

void GridView::ShowCells() {
  is_following_ = true;
  static_cast<GridTable*>(table_)->CatchUp();
  is_following_ = false;
  FitColumns();
  widget_->ForceRefresh();
  ShowCurrentRow();
}

void GridView::ShowCurrentRow() {
  const int row = grid_.Row() - grid_.FixedRows();
  const int column = std::min(grid_.Column(), widget_->GetNumberCols() - 1);
  if (row < 0 || row >= widget_->GetNumberRows() || column < 0) return;
  is_following_ = true;
  if (widget_->GetGridCursorRow() != row) widget_->SetGridCursor(row, column);
  widget_->SelectRow(row);
  widget_->MakeCellVisible(row, 0);
  is_following_ = false;
}

int GridView::FittingWidth(int column) const {
  std::vector<std::string> texts;
  for (int row = grid_.FixedRows(); row < grid_.RowCount(); ++row) texts.push_back(grid_.Cell(row, column));
  const std::size_t measured = std::min(kMeasuredTexts, texts.size());
  std::partial_sort(texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(measured), texts.end(),
                    [](const auto& a, const auto& b) { return a.size() > b.size(); });
  wxClientDC dc(widget_);
  dc.SetFont(widget_->GetLabelFont());
  int width = dc.GetTextExtent(widget_->GetColLabelValue(column)).x;
  dc.SetFont(widget_->GetDefaultCellFont());
  for (std::size_t i = 0; i < measured; ++i) width = std::max(width, dc.GetTextExtent(ToWx(texts[i])).x);
  const int margin = widget_->GetCharHeight();
  return std::max(width + margin, margin * 5);
}

void GridView::FitColumns() {
  const int last = grid_.ColumnCount() - 1;
  for (int column = 0; column < last; ++column) widget_->SetColSize(column, FittingWidth(column));
  if (last >= 0) last_column_width_ = FittingWidth(last);
  StretchLastColumn();
}

void GridView::StretchLastColumn() {
  const int last = widget_->GetNumberCols() - 1;
  if (last < 0) return;
  int others = 0;
  for (int column = 0; column < last; ++column) others += widget_->GetColSize(column);
  const int left_over = widget_->GetGridWindow()->GetClientSize().x - others;
  const int width = std::max(last_column_width_, left_over);
  if (width != widget_->GetColSize(last)) widget_->SetColSize(last, width);
}

void GridView::Follow(Property property) {
  if (property == Property::kRow) {
    ShowCurrentRow();
  } else {
    ControlView::Follow(property);
  }
}

void GridView::OnSelectCell(wxGridEvent& event) {
  event.Skip();
  if (is_following_) return;
  const int row = event.GetRow() + grid_.FixedRows();
  const int column = event.GetCol();
  if (row >= grid_.RowCount() || column >= grid_.ColumnCount()) return;
  Perform([this, row, column] { grid_.SetCurrentCell(row, column); });
  // The widget moves after this event; once it has, it shows what the program made of it.
  widget_->CallAfter([this] { ShowCurrentRow(); });
}

}  // namespace veritane::platform
