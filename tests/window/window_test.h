// What tests of the drawn window share: the display, real keys and mouse clicks, and waiting for them to
// arrive.
#pragma once

#include "platform/desktop.h"
#include "platform/form.h"
#include "platform/wx/wx_user_interface.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/timer.h>
#include <wx/uiaction.h>
#include <wx/window.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>

namespace veritane::platform {

inline bool ShowsText(const wxWindow* window, const std::string& text) {
  if (window->GetLabel().utf8_string().find(text) != std::string::npos) return true;
  for (const wxWindow* child : window->GetChildren()) {
    if (ShowsText(child, text)) return true;
  }
  return false;
}

// Whether a dialog with this text in it is in front.
inline bool DialogShows(const std::string& text) {
  for (const wxWindow* window : wxTopLevelWindows) {
    const auto* dialog = dynamic_cast<const wxDialog*>(window);
    if (dialog != nullptr && dialog->IsShown() && dialog->IsModal() && ShowsText(dialog, text)) return true;
  }
  return false;
}

class WindowTest : public ::testing::Test {
protected:
  WindowTest() : ui_({.toNative = Same, .toWindows = Same}), desktop_(ui_) {
    timer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { TryNextStep(); });
  }

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

  static bool FocusIsIn(const char* name) {
    const wxWindow* focused = wxWindow::FindFocus();
    for (; focused != nullptr; focused = focused->GetParent()) {
      if (focused->GetName() == name) return true;
    }
    return false;
  }

  // Does each step once its condition holds, also while dialogs are open.
  struct Step {
    std::string name;
    std::function<bool()> isTime;
    std::function<void()> act;
  };
  void PlayAlong(std::deque<Step> steps) {
    steps_ = std::move(steps);
    was_time_ = false;
    timer_.Start(150);
  }
  void WaitForTheLastStep() {
    constexpr int kLongest = 60000;
    for (int waited = 0; !steps_.empty() && waited < kLongest; waited += 250) Settle(250);
    EXPECT_TRUE(steps_.empty()) << "still waiting for: " << (steps_.empty() ? "" : steps_.front().name);
    Settle(500);
  }
  Step AnswerBox(const std::string& text, int key = WXK_RETURN) {
    return {text, [text] { return DialogShows(text); }, [this, key] { mouse_and_keys_.Char(key); }};
  }

  wxUIActionSimulator mouse_and_keys_;
  WxUserInterface ui_;
  Desktop desktop_;

private:
  static std::string Same(const std::string& path) { return path; }

  // A window that has just come up takes keys a moment later, so that the condition must hold twice.
  void TryNextStep() {
    if (acting_ || steps_.empty()) return;
    const bool is_time = steps_.front().isTime();
    if (!is_time || !was_time_) {
      was_time_ = is_time;
      return;
    }
    was_time_ = false;
    acting_ = true;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    step.act();
    acting_ = false;
  }

  std::deque<Step> steps_;
  bool was_time_ = false;
  bool acting_ = false;
  wxTimer timer_;
};

}  // namespace veritane::platform
