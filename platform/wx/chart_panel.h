// The chart as it is drawn, with zooming by dragging a rectangle and back by a double click.
#pragma once

#include "platform/chart.h"
#include "platform/wx/control_view.h"

#include <wx/panel.h>

#include <optional>

namespace veritane::platform {

class ChartView : public ControlView {
public:
  ChartView(Chart& chart, ViewOwner& owner, wxWindow* parent);

  bool CanTakeFocus() const override { return false; }
  wxPanel* Widget() const { return panel_; }

protected:
  void ShowState() override;

private:
  void OnPaint();
  void OnMouseMove(wxMouseEvent& event);
  void OnLeave();
  void BeginDrag(wxMouseEvent& event);
  void EndDrag(wxMouseEvent& event);
  void CancelDrag();
  void ZoomTo(const wxRect& pixels);

  Chart& chart_;
  wxPanel* panel_;
  std::optional<wxPoint> drag_from_;
  wxPoint drag_to_;
};

}  // namespace veritane::platform
