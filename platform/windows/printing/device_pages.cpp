// Drawing pages through cairo's surface for printers.
#include "platform/windows/printing/device_pages.h"

#include "platform/part_of_surface.h"
#include "platform/pdf/cairo_drawing.h"
#include "platform/run_time_error.h"

#include <cairo-win32.h>

#include <memory>

namespace veritane::platform {

namespace {

void RequireSuccess(cairo_status_t status) {
  if (status == CAIRO_STATUS_SUCCESS) return;
  throw RunTimeError(ErrorNumber::kDeviceError, cairo_status_to_string(status));
}

// Lengths of the device in points.
class DeviceMeasures {
public:
  explicit DeviceMeasures(HDC device) : device_(device) {}

  double PixelsPerPointAcross() const { return ::GetDeviceCaps(device_, LOGPIXELSX) / kPointsPerInch; }
  double PixelsPerPointDown() const { return ::GetDeviceCaps(device_, LOGPIXELSY) / kPointsPerInch; }
  double Across(int index) const { return ::GetDeviceCaps(device_, index) / PixelsPerPointAcross(); }
  double Down(int index) const { return ::GetDeviceCaps(device_, index) / PixelsPerPointDown(); }

  PdfPageSize Printable() const { return {Across(HORZRES), Down(VERTRES)}; }
  // A device that is no printer has no paper around what can be printed.
  PdfPageSize Paper() const {
    const PdfPageSize paper{Across(PHYSICALWIDTH), Down(PHYSICALHEIGHT)};
    return paper.width > 0 && paper.height > 0 ? paper : Printable();
  }
  // Where on the paper the printable area begins.
  Point Edge() const { return {Across(PHYSICALOFFSETX), Down(PHYSICALOFFSETY)}; }

private:
  HDC device_;
};

}  // namespace

void DrawPages(HDC device, Printout& printout, const std::function<void()>& begin_page,
               const std::function<void()>& end_page) {
  const DeviceMeasures measures(device);
  const std::unique_ptr<cairo_surface_t, DestroySurface> surface(cairo_win32_printing_surface_create(device));
  const std::unique_ptr<cairo_t, DestroyContext> cairo(cairo_create(surface.get()));
  cairo_scale(cairo.get(), measures.PixelsPerPointAcross(), measures.PixelsPerPointDown());
  CairoDrawing drawing(cairo.get(), measures.Printable(), PdfDescription().fontHeight);
  const PdfPageSize paper = measures.Paper();
  const Point edge = measures.Edge();
  PartOfSurface page(drawing, {kPageMargin - edge.x, kPageMargin - edge.y}, paper.width - 2 * kPageMargin,
                     paper.height - 2 * kPageMargin, drawing.FontHeight());
  const int pages = printout.LayOut(page);
  for (int number = 1; number <= pages; ++number) {
    begin_page();
    printout.DrawPage(page, number);
    cairo_show_page(cairo.get());
    RequireSuccess(cairo_status(cairo.get()));
    RequireSuccess(cairo_surface_status(surface.get()));
    end_page();
  }
  cairo_surface_finish(surface.get());
  RequireSuccess(cairo_surface_status(surface.get()));
}

}  // namespace veritane::platform
