// The chart's panel.
#include "platform/wx/chart_panel.h"

#include "platform/chart_drawing.h"
#include "platform/desktop.h"
#include "platform/form.h"
#include "platform/wx/graphics_drawing_context.h"

#include <wx/dcbuffer.h>
#include <wx/graphics.h>

#include <algorithm>
#include <memory>

namespace veritane::platform {

namespace {

// A rectangle smaller than this across or down was a click with a trembling hand.
constexpr int kLeastDrag = 5;

wxRect Between(wxPoint a, wxPoint b) {
  return {wxPoint(std::min(a.x, b.x), std::min(a.y, b.y)), wxPoint(std::max(a.x, b.x), std::max(a.y, b.y))};
}

wxRect ToRect(const PlotArea& area) {
  return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.width),
          static_cast<int>(area.height)};
}

}  // namespace

ChartView::ChartView(Chart& chart, ViewOwner& owner, wxWindow* parent)
    : ControlView(chart, owner), chart_(chart), panel_(new wxPanel(parent)) {
  panel_->SetBackgroundStyle(wxBG_STYLE_PAINT);
  panel_->Bind(wxEVT_PAINT, [this](wxPaintEvent&) { OnPaint(); });
  panel_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    panel_->Refresh();
    event.Skip();
  });
  panel_->Bind(wxEVT_MOTION, &ChartView::OnMouseMove, this);
  panel_->Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent&) { OnLeave(); });
  panel_->Bind(wxEVT_LEFT_DOWN, &ChartView::BeginDrag, this);
  panel_->Bind(wxEVT_LEFT_UP, &ChartView::EndDrag, this);
  panel_->Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent&) {
    // The presses that it is made of have begun to drag.
    CancelDrag();
    Perform([this] { chart_.Zoom(chart_.X(), chart_.Y()); });
  });
  panel_->Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { CancelDrag(); });
}

void ChartView::ShowState() {
  panel_->Refresh();
}

void ChartView::OnPaint() {
  wxAutoBufferedPaintDC dc(panel_);
  const wxSize size = panel_->GetClientSize();
  const std::unique_ptr<wxGraphicsContext> graphics(wxGraphicsContext::Create(dc));
  if (!graphics || size.x <= 0 || size.y <= 0) return;
  GraphicsDrawingContext surface(*graphics, size.x, size.y, panel_->GetCharHeight(), panel_->GetFont());
  chart_.SetPlotArea(DrawChart(chart_, surface).plot);
  if (!drag_from_) return;
  const wxRect dragged = Between(*drag_from_, drag_to_);
  graphics->SetPen(wxPen(wxColour(20, 90, 180), 1));
  graphics->SetBrush(wxBrush(wxColour(20, 90, 180, 40)));
  graphics->DrawRectangle(dragged.x, dragged.y, dragged.width, dragged.height);
}

void ChartView::OnMouseMove(wxMouseEvent& event) {
  event.Skip();
  if (drag_from_) {
    drag_to_ = event.GetPosition();
    panel_->Refresh();
  }
  const wxPoint at = event.GetPosition();
  Perform([&] { chart_.MouseMove(at.x, at.y); });
}

// The crosshair belongs to the chart.
void ChartView::OnLeave() {
  Perform([this] {
    Desktop& desktop = chart_.Owner().Screen();
    if (desktop.MousePointer() == Pointer::kCrosshair) desktop.SetMousePointer(Pointer::kDefault);
  });
}

void ChartView::BeginDrag(wxMouseEvent& event) {
  if (!ToRect(chart_.Area()).Contains(event.GetPosition())) return;
  drag_from_ = event.GetPosition();
  drag_to_ = *drag_from_;
  if (!panel_->HasCapture()) panel_->CaptureMouse();
}

void ChartView::EndDrag(wxMouseEvent& event) {
  if (!drag_from_) return;
  const wxRect dragged = Between(*drag_from_, event.GetPosition());
  CancelDrag();
  if (dragged.width >= kLeastDrag && dragged.height >= kLeastDrag) ZoomTo(dragged);
}

void ChartView::CancelDrag() {
  drag_from_.reset();
  if (panel_->HasCapture()) panel_->ReleaseMouse();
  panel_->Refresh();
}

void ChartView::ZoomTo(const wxRect& pixels) {
  const wxRect inside = pixels.Intersect(ToRect(chart_.Area()));
  if (inside.IsEmpty()) return;
  const auto top_left = chart_.PixelToData(inside.GetLeft(), inside.GetTop());
  const auto bottom_right = chart_.PixelToData(inside.GetRight(), inside.GetBottom());
  Perform([&] { chart_.Zoom({bottom_right.x, top_left.x}, {bottom_right.y, top_left.y}); });
}

}  // namespace veritane::platform
