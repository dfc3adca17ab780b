// The grid as it is drawn: reads the cells that are in sight from the grid control, however many rows it has.
#pragma once

#include "platform/grid.h"
#include "platform/wx/control_view.h"

#include <wx/grid.h>

namespace veritane::platform {

class GridView : public ControlView {
public:
  GridView(Grid& grid, ViewOwner& owner, wxWindow* parent);

  wxGrid* Widget() const { return widget_; }

protected:
  void ShowState() override;
  void Follow(Property property) override;

private:
  void ShowCells();
  void ShowCurrentRow();
  int FittingWidth(int column) const;
  void FitColumns();
  void StretchLastColumn();
  void OnSelectCell(wxGridEvent& event);

  Grid& grid_;
  wxGrid* widget_;
  wxGridTableBase* table_;
  // What the last column needs; it takes the width that is left over as well.
  int last_column_width_ = 0;
  // Cells often change many at once; the widget catches up when the change is over.
  bool is_catching_up_ = false;
  // The widget's selection is being moved by the program.
  bool is_following_ = false;
};

}  // namespace veritane::platform
