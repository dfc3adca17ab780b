// Taking the picture and handing it over.
#include "platform/wx/clipboard.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"

#include <wx/bitmap.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/imagpng.h>
#include <wx/window.h>

#include <memory>

namespace veritane::platform {

namespace {

wxBitmap PictureOf(wxWindow& part) {
  const wxSize size = part.GetClientSize();
  if (size.x <= 0 || size.y <= 0) {
    throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kNothingToCopy));
  }
  // What is due to be drawn belongs to the picture.
  part.Update();
  wxBitmap picture(size);
  wxClientDC screen(&part);
  wxMemoryDC memory(picture);
  memory.Blit(0, 0, size.x, size.y, &screen, 0, 0);
  memory.SelectObject(wxNullBitmap);
  return picture;
}

// GTK's clipboard carries pictures as PNG.
void LearnPng() {
#if wxUSE_LIBPNG
  if (wxImage::FindHandler(wxBITMAP_TYPE_PNG) == nullptr) wxImage::AddHandler(new wxPNGHandler);
#endif
}

}  // namespace

void CopyToClipboard(wxWindow& part) {
  LearnPng();
  auto picture = std::make_unique<wxBitmapDataObject>(PictureOf(part));
  const wxClipboardLocker clipboard;
  // The clipboard owns what it was given, whether or not it takes it.
  if (!clipboard || !wxTheClipboard->SetData(picture.release())) {
    throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kClipboardRefuses));
  }
  // The picture stays for other programs when this one ends, where the system can do that.
  wxTheClipboard->Flush();
}

std::optional<std::string> TextOnClipboard() {
  const wxClipboardLocker clipboard;
  wxTextDataObject text;
  if (!clipboard || !wxTheClipboard->IsSupported(wxDF_UNICODETEXT) || !wxTheClipboard->GetData(text)) {
    return std::nullopt;
  }
  return text.GetText().utf8_string();
}

}  // namespace veritane::platform
