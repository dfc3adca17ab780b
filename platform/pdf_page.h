// A page to be put into a PDF, as those see it who only draw it: how large it is, what is told about it, and
// the function that makes the file's bytes.
#pragma once

#include "platform/date_time.h"
#include "platform/drawing_context.h"

#include <functional>
#include <string>

namespace veritane::platform {

inline constexpr double kPointsPerInch = 72;
inline constexpr double kPointsPerMillimetre = kPointsPerInch / 25.4;

// What every printer leaves white at the edges, and room for the holes of a folder.
inline constexpr double kPageMargin = 15 * kPointsPerMillimetre;

struct PdfPageSize {
  // In points of 1/72 inch; A4 upright.
  double width = 210 * kPointsPerMillimetre;
  double height = 297 * kPointsPerMillimetre;
};

// The same paper lying on its long side.
inline PdfPageSize Landscape(PdfPageSize page) {
  return {page.height, page.width};
}

struct PdfDescription {
  std::string title;
  // The moment written into the file as that of its making, on the local wall clock.
  DateTime created;
  // Height of the usual text, in points.
  double fontHeight = 9;
};

// Makes a PDF of one page that `draw` draws, and returns the file's bytes.
using PdfMaker = std::function<std::string(PdfPageSize page, const PdfDescription& description,
                                           const std::function<void(DrawingContext&)>& draw)>;

}  // namespace veritane::platform
