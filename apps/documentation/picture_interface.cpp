// Answering dialogs as planned, and taking pictures with a program outside: the toolkit's own copy of the
// screen may be stale.
#include "apps/documentation/picture_interface.h"

#include "platform/form.h"
#include "platform/run_time_error.h"

#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include <cstdio>
#include <cstdlib>

namespace veritane::documentation {

using platform::MessageAnswer;

namespace {

std::string Same(const std::string& path) {
  return path;
}

std::string Output(const std::string& command) {
  std::string text;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return text;
  for (int character = std::fgetc(pipe); character != EOF; character = std::fgetc(pipe))
    text += static_cast<char>(character);
  return pclose(pipe) == 0 ? text : std::string();
}

int NumberBehind(const std::string& text, const std::string& label) {
  const std::size_t at = text.find(label);
  return at == std::string::npos ? 0 : std::atoi(text.c_str() + at + label.size());
}

// The window with its title bar, which belongs to the window manager: the display knows where it lies.
wxRect FrameOf(const wxTopLevelWindow& window) {
  const std::string name = " -name '" + window.GetTitle().utf8_string() + "'";
  const std::string report = Output("xwininfo" + name);
  const std::string extents = Output("xprop" + name + " _NET_FRAME_EXTENTS");
  int left = 0;
  int right = 0;
  int top = 0;
  int bottom = 0;
  const std::size_t at = extents.find('=');
  if (at == std::string::npos ||
      std::sscanf(extents.c_str() + at, "= %d, %d, %d, %d", &left, &right, &top, &bottom) != 4) {
    return {};
  }
  return {NumberBehind(report, "Absolute upper-left X:") - left,
          NumberBehind(report, "Absolute upper-left Y:") - top, NumberBehind(report, "Width:") + left + right,
          NumberBehind(report, "Height:") + top + bottom};
}

}  // namespace

PictureInterface::PictureInterface(std::filesystem::path folder)
    : WxUserInterface({.toNative = Same, .toWindows = Same}), folder_(std::move(folder)) {}

void PictureInterface::Settle(int milliseconds) {
  for (int waited = 0; waited < milliseconds; waited += 10) {
    wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
    wxMilliSleep(10);
  }
  wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
}

void PictureInterface::Fail(const std::string& what) {
  std::fprintf(stderr, "manual_pictures: %s\n", what.c_str());
  has_failed_ = true;
}

void PictureInterface::TakePicture(const std::string& name, std::initializer_list<const char*> windows) {
  Settle();
  wxRect area;
  for (const char* window_name : windows) {
    const auto* window = dynamic_cast<wxTopLevelWindow*>(wxWindow::FindWindowByName(window_name));
    if (window == nullptr || !window->IsShownOnScreen()) return Fail(name + ": no " + window_name);
    const wxRect frame = FrameOf(*window);
    if (frame.IsEmpty()) return Fail(name + ": " + window_name + " has no frame");
    area.Union(frame);
  }
  const std::string part = std::to_string(area.width) + "x" + std::to_string(area.height) + "+" +
                           std::to_string(area.x) + "+" + std::to_string(area.y);
  // Few colours, no date: a picture of the same screen is the same file.
  const std::string command = "import -window root -crop " + part +
                              " +repage +dither -colors 64 -strip -define png:compression-level=9 "
                              "-define png:exclude-chunks=date,time 'png8:" +
                              (folder_ / (name + ".png")).string() + "'";
  if (std::system(command.c_str()) != 0) Fail(name + ": " + command);
}

void PictureInterface::Later(Act act) {
  constexpr int kDrawn = 300;
  wxTimer& timer = timers_.emplace_back();
  timer.Bind(wxEVT_TIMER, [act = std::move(act)](wxTimerEvent&) { act(); });
  timer.StartOnce(kDrawn);
}

void PictureInterface::RunModal(platform::Form& form) {
  const auto act = acts_.find(form.Name());
  if (act == acts_.end()) {
    Fail("nobody expects " + form.Name());
    return form.Hide();
  }
  Later([&form, act = act->second] {
    act();
    if (form.Shown()) form.Hide();
  });
  WxUserInterface::RunModal(form);
}

MessageAnswer PictureInterface::ShowMessage(const platform::Message& message) {
  if (boxes_.empty() || message.text.find(boxes_.front().text) == std::string::npos) {
    Fail("nobody expects \"" + message.text + "\"");
    return MessageAnswer::kCancel;
  }
  const Box box = boxes_.front();
  boxes_.pop_front();
  if (!box.picture.empty()) {
    Later([this, picture = box.picture] {
      TakePicture(picture, {"message"});
      if (auto* dialog = dynamic_cast<wxDialog*>(wxWindow::FindWindowByName("message")))
        dialog->EndModal(wxID_OK);
    });
    WxUserInterface::ShowMessage(message);
  }
  if (box.act) box.act();
  return box.answer;
}

std::optional<std::string> PictureInterface::ChooseFile(const platform::FileChoice& choice) {
  if (files_.empty()) {
    Fail("nobody expects \"" + choice.title + "\"");
    return std::nullopt;
  }
  const std::string path = files_.front();
  files_.pop_front();
  return path;
}

void PictureInterface::NoteError(const platform::RunTimeError& error) {
  Fail(error.what());
}

}  // namespace veritane::documentation
