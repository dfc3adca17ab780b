// The chart as a landscape page: drawn as on screen, with the result's caption under it.
#pragma once

#include "platform/chart.h"
#include "platform/printer.h"

#include <string>

namespace veritane::review {

class ChartPrintout : public platform::Printout {
public:
  // The chart must outlive the printout. An empty caption takes no room.
  ChartPrintout(std::string title, const platform::Chart& chart, std::string caption)
      : title_(std::move(title)), chart_(chart), caption_(std::move(caption)) {}

  platform::PrintKind Kind() const override { return platform::PrintKind::kChart; }
  std::string Title() const override { return title_; }
  bool IsLandscape() const override { return true; }
  int LayOut(const platform::DrawingContext&) override { return 1; }
  void DrawPage(platform::DrawingContext& page, int number) override;

private:
  const std::string title_;
  const platform::Chart& chart_;
  const std::string caption_;
};

}  // namespace veritane::review
