// The window's side of the program: forms, boxes, pointer, end.
#include "platform/wx/wx_user_interface.h"

#include "platform/control.h"
#include "platform/form.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/wx/clipboard.h"
#include "platform/wx/file_filter.h"
#include "platform/wx/form_window.h"
#include "platform/wx/message_dialog.h"
#include "platform/wx/wx_text.h"

#include <wx/app.h>
#include <wx/cursor.h>
#include <wx/evtloop.h>
#include <wx/filedlg.h>
#include <wx/utils.h>

#include <algorithm>
#include <cstdio>

namespace veritane::platform {

WxUserInterface::WxUserInterface(PathMapping paths) : paths_(std::move(paths)) {}

WxUserInterface::~WxUserInterface() {
  alive_.reset();
  // Dialogs go before the window that they lie over.
  while (!windows_.empty()) windows_.pop_back();
}

void WxUserInterface::Attach(Form& form) {
  if (windows_.empty() || form.Shown()) {
    MakeWindow(form);
    return;
  }
  form.Watch([weak = std::weak_ptr(alive_), &form](Form::Change change) {
    const auto alive = weak.lock();
    if (alive && change == Form::Change::kShown && (*alive)->WindowOf(form) == nullptr)
      (*alive)->MakeWindow(form);
  });
}

void WxUserInterface::MakeWindow(Form& form) {
  windows_.push_back(std::make_unique<FormWindow>(form, gate_, MainWindow()));
}

wxWindow* WxUserInterface::MainWindow() const {
  return windows_.empty() ? nullptr : windows_.front()->Window();
}

wxWindow* WxUserInterface::FrontWindow() const {
  if (windows_.empty()) return nullptr;
  if (const Form* modal = windows_.front()->Model().Screen().FrontModalForm()) {
    if (const FormWindow* window = WindowOf(*modal)) return window->Window();
  }
  wxWindow* main = MainWindow();
  return main->IsShown() ? main : nullptr;
}

FormWindow* WxUserInterface::WindowOf(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&form](const auto& window) { return &window->Model() == &form; });
  return found == windows_.end() ? nullptr : found->get();
}

void WxUserInterface::RunModal(Form& form) {
  FormWindow* window = WindowOf(form);
  if (window == nullptr || ended_) return;
  window->RunModal();
}

MessageAnswer WxUserInterface::ShowMessage(const Message& message) {
  if (ended_) return QuietAnswer(message.buttons);
  const ActionGate::NestedLoop loop(gate_, ActionGate::Allow::kBoxOnly);
  MessageDialog dialog(FrontWindow(), message);
  open_boxes_.push_back(&dialog);
  dialog.ShowModal();
  open_boxes_.pop_back();
  return dialog.Answer();
}

std::optional<std::string> WxUserInterface::ChooseFile(const FileChoice& choice) {
  if (ended_) return std::nullopt;
  const ActionGate::NestedLoop loop(gate_, ActionGate::Allow::kBoxOnly);
  const std::string folder = choice.folder.empty() ? "" : paths_.toNative(choice.folder);
  wxFileDialog dialog(FrontWindow(), ToWx(choice.title), ToWx(folder), "", ToWx(NativeFilter(choice.filter)),
                      wxFD_OPEN | wxFD_FILE_MUST_EXIST);
  open_boxes_.push_back(&dialog);
  const int answer = dialog.ShowModal();
  open_boxes_.pop_back();
  if (answer != wxID_OK || ended_) return std::nullopt;
  return paths_.toWindows(FromWx(dialog.GetPath()));
}

void WxUserInterface::ShowPointer(Pointer pointer) {
  const bool is_hourglass = pointer == Pointer::kHourglass;
  if (is_hourglass != is_hourglass_) {
    is_hourglass_ = is_hourglass;
    if (is_hourglass) {
      wxBeginBusyCursor();
    } else {
      wxEndBusyCursor();
    }
  }
  if (is_hourglass) return;
  // The crosshair belongs to the chart, wherever it lies.
  wxWindow* main = MainWindow();
  wxWindow* chart = main == nullptr ? nullptr : wxWindow::FindWindowByName("chart", main);
  if (chart != nullptr)
    chart->SetCursor(pointer == Pointer::kCrosshair ? wxCursor(wxCURSOR_CROSS) : wxNullCursor);
}

void WxUserInterface::ProcessPendingEvents() {
  for (const auto& window : windows_) window->Pulse();
  gate_.ProcessPendingEvents();
}

void WxUserInterface::NotePrint(PrintKind kind, const std::string& file) {
  if (file.empty()) return;
  const TextId text = kind == PrintKind::kTemplate ? TextId::kPrintOut : TextId::kPrintOutForWantOfPrinter;
  ShowMessage({.text = Text(text, {paths_.toNative(file)}),
               .title = Text(TextId::kPrintOutTitle),
               .icon = MessageIcon::kInformation});
}

void WxUserInterface::CopyPicture(const Control& control) {
  const FormWindow* window = WindowOf(control.Owner());
  wxWindow* part =
      window == nullptr ? nullptr : wxWindow::FindWindowByName(ToWx(control.Name()), window->Window());
  if (part == nullptr)
    throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kNotOnScreen, {control.Name()}));
  CopyToClipboard(*part);
}

std::optional<std::string> WxUserInterface::ClipboardText() {
  return TextOnClipboard();
}

void WxUserInterface::NoteError(const RunTimeError& error) {
  std::fprintf(stderr, "Veritane: run-time error %d: %s\n", error.Number(), error.what());
}

void WxUserInterface::End(int exit_status) {
  if (ended_) return;
  ended_ = true;
  exit_status_ = exit_status;
  for (wxDialog* box : open_boxes_) {
    if (box->IsModal()) box->EndModal(wxID_CANCEL);
  }
  for (const auto& window : windows_) window->EndModal();
  if (wxEventLoopBase* loop = wxTheApp->GetMainLoop()) loop->ScheduleExit(exit_status);
}

void WxUserInterface::RunStart(const std::function<void()>& start) {
  gate_.RunStart(*this, start);
}

}  // namespace veritane::platform
