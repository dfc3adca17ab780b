// What tests of the drawn window share: the display, real keys and mouse clicks, and waiting for them to
// arrive.
#pragma once

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/timer.h>
#include <wx/uiaction.h>
#include <wx/window.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/desktop.h"
#include "platform/form.h"
#include "platform/wx/wx_user_interface.h"

namespace veritane::platform {

class WindowTest : public ::testing::Test {
protected:
  WindowTest() : ui_({.toNative = Same, .toWindows = Same}), desktop_(ui_) {}

  // Lets everything that is under way arrive.
  static void Settle(int milliseconds = 250) {
    for (int waited = 0; waited < milliseconds; waited += 10) {
      wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
      wxMilliSleep(10);
    }
    wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
  }

  void Open(Form& form) {
    desktop_.AttachForms();
    form.Show();
    Settle(500);
  }

  static wxWindow* Widget(const std::string& name) {
    wxWindow* widget = wxWindow::FindWindowByName(wxString::FromUTF8(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }

  void Point(const wxWindow* window, wxPoint at) {
    mouse_and_keys_.MouseMove(window->ClientToScreen(at));
    Settle(60);
  }

  void Click(const std::string& name) {
    const wxWindow* widget = Widget(name);
    Click(widget, wxPoint(widget->GetClientSize().x / 2, widget->GetClientSize().y / 2));
  }

  void Click(const wxWindow* window, wxPoint at) {
    Point(window, at);
    mouse_and_keys_.MouseClick();
    Settle();
  }

  void Press(int key, int modifiers = wxMOD_NONE) {
    mouse_and_keys_.Char(key, modifiers);
    Settle();
  }

  void Type(const char* text) {
    mouse_and_keys_.Text(text);
    Settle();
  }

  // Runs `step` while a modal loop is on screen.
  void Later(std::function<void()> step) {
    timers_.push_back(std::make_unique<wxTimer>());
    timers_.back()->Bind(wxEVT_TIMER, [step = std::move(step)](wxTimerEvent&) { step(); });
    timers_.back()->StartOnce(500 * static_cast<int>(timers_.size()));
  }

  wxUIActionSimulator mouse_and_keys_;
  WxUserInterface ui_;
  Desktop desktop_;

private:
  static std::string Same(const std::string& path) { return path; }

  std::vector<std::unique_ptr<wxTimer>> timers_;
};

}  // namespace veritane::platform
