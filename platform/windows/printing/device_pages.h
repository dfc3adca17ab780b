// Pages drawn on a device of Windows: a printer, or a metafile.
#pragma once

#include "platform/printer.h"

#include <windows.h>

#include <functional>

namespace veritane::platform {

// Draws all pages of the document, each between a call of `begin_page` and one of `end_page`. The device's
// own units and unprintable edges are allowed for: a page's surface is the paper without its margin. Error 57
// when a page cannot be drawn.
void DrawPages(HDC device, Printout& printout, const std::function<void()>& begin_page,
               const std::function<void()>& end_page);

}  // namespace veritane::platform
