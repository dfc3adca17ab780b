// Documents for the default printer.
#include "platform/windows/printing/windows_printer.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/windows/printing/device_pages.h"
#include "platform/windows/system_text.h"

#include <windows.h>

#include <winspool.h>

#include <cstddef>
#include <vector>

namespace veritane::platform {

namespace {

[[noreturn]] void RaisePrinterError(const std::wstring& name) {
  throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kPrinterRefuses, {Utf8Text(name)}));
}

// The printer's settings, with the paper as the document wants it. Empty when the driver gives none.
std::vector<std::byte> Settings(std::wstring name, bool is_landscape) {
  HANDLE printer = nullptr;
  if (!::OpenPrinterW(name.data(), &printer, nullptr)) return {};
  std::vector<std::byte> settings;
  const LONG size = ::DocumentPropertiesW(nullptr, printer, name.data(), nullptr, nullptr, 0);
  if (size > 0) {
    settings.resize(static_cast<std::size_t>(size));
    auto* const mode = reinterpret_cast<DEVMODEW*>(settings.data());
    LONG answer = ::DocumentPropertiesW(nullptr, printer, name.data(), mode, nullptr, DM_OUT_BUFFER);
    if (answer == IDOK) {
      mode->dmFields |= DM_ORIENTATION;
      mode->dmOrientation = is_landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
      answer = ::DocumentPropertiesW(nullptr, printer, name.data(), mode, mode, DM_IN_BUFFER | DM_OUT_BUFFER);
    }
    if (answer != IDOK) settings.clear();
  }
  ::ClosePrinter(printer);
  return settings;
}

class PrinterDevice {
public:
  PrinterDevice(const std::wstring& name, bool is_landscape) {
    std::vector<std::byte> settings = Settings(name, is_landscape);
    auto* const mode = settings.empty() ? nullptr : reinterpret_cast<DEVMODEW*>(settings.data());
    device_ = ::CreateDCW(L"WINSPOOL", name.c_str(), nullptr, mode);
    if (device_ == nullptr) RaisePrinterError(name);
  }
  ~PrinterDevice() { ::DeleteDC(device_); }
  PrinterDevice(const PrinterDevice&) = delete;
  PrinterDevice& operator=(const PrinterDevice&) = delete;

  HDC Handle() const { return device_; }

private:
  HDC device_;
};

}  // namespace

std::optional<WindowsPrinter> WindowsPrinter::Default() {
  DWORD size = 0;
  ::GetDefaultPrinterW(nullptr, &size);
  if (size == 0) return std::nullopt;
  std::wstring name(size, L'\0');
  if (!::GetDefaultPrinterW(name.data(), &size)) return std::nullopt;
  name.resize(name.find(L'\0'));
  if (name.empty()) return std::nullopt;
  return WindowsPrinter(name);
}

bool WindowsPrinter::Print(Printout& printout) const {
  const PrinterDevice device(name_, printout.IsLandscape());
  const std::wstring title = WideText(printout.Title());
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = title.c_str();
  if (::StartDocW(device.Handle(), &document) <= 0) {
    // Whoever closes the driver's own box, as for a file's name, has changed his mind.
    const DWORD code = ::GetLastError();
    if (code == ERROR_CANCELLED || code == ERROR_PRINT_CANCELLED) return false;
    RaisePrinterError(name_);
  }
  const auto require = [this](int answer) {
    if (answer <= 0) RaisePrinterError(name_);
  };
  try {
    DrawPages(
        device.Handle(), printout, [&] { require(::StartPage(device.Handle())); },
        [&] { require(::EndPage(device.Handle())); });
    require(::EndDoc(device.Handle()));
  } catch (...) {
    // Half a document is none.
    ::AbortDoc(device.Handle());
    throw;
  }
  return true;
}

}  // namespace veritane::platform
