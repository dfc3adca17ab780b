// Fills in a print template and draws it.
#pragma once

#include "platform/pdf_page.h"
#include "simulator/print_fields.h"
#include "simulator/print_template.h"

namespace veritane::simulator {

// The template's page in points.
platform::PdfPageSize PageSize(const PrintTemplate& print_template);

// Draws everything on the page, whose surface is in points.
void DrawPage(const PrintTemplate& print_template, const PrintSubject& subject,
              platform::DrawingContext& page);

// The text in at most `lines` lines no wider than `width`, broken at blanks; what does not fit is cut with
// "…".
std::vector<std::string> Wrapped(const std::string& text, double width, double height,
                                 platform::TextWeight weight, int lines,
                                 const platform::DrawingContext& surface);

}  // namespace veritane::simulator
