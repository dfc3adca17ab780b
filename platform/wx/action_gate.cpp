// One action at a time.
#include "platform/wx/action_gate.h"

#include "platform/form.h"
#include "platform/texts.h"

#include <wx/app.h>
#include <wx/event.h>
#include <wx/evtloop.h>
#include <wx/utils.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>

namespace veritane::platform {

namespace {

using std::chrono::milliseconds;

// A handler shorter than this cannot have made anybody press twice; a barcode scanner's keys must not be
// lost.
constexpr milliseconds kNoticeable{250};
// How often waiting for the next picture is worth its time.
constexpr milliseconds kRepaintPeriod{60};
constexpr int kPicturePeriodMilliseconds = 17;

// Says why the program ends, and ends it. The window must not vanish without a word.
template <typename Screen>
void EndUnexpectedly(Screen& screen, const char* what) {
  std::fprintf(stderr, "Veritane: unexpected error: %s\n", what);
  try {
    screen.ShowMessage({.text = Text(TextId::kUnexpectedEnd, {what}),
                        .title = Text(TextId::kProgramName),
                        .icon = MessageIcon::kCritical});
  } catch (...) {
    // The same want, of memory say, may keep the box away; the program ends all the same.
    std::fputs("Veritane: the box about it cannot be shown\n", stderr);
  }
  screen.End(1);
}

// Exceptions must not cross the toolkit's frames, which are not made for them.
template <typename Screen>
void RunOrEnd(Screen& screen, const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception& error) {
    EndUnexpectedly(screen, error.what());
  } catch (...) {
    EndUnexpectedly(screen, Text(TextId::kUnknownReason).c_str());
  }
}

void Yield() {
  if (wxEventLoopBase* loop = wxEventLoopBase::GetActive()) loop->YieldFor(wxEVT_CATEGORY_ALL);
}

bool IsInput(const wxEvent& event) {
  static const std::array kInputs = {wxEventType(wxEVT_KEY_DOWN),      wxEventType(wxEVT_CHAR),
                                     wxEventType(wxEVT_CHAR_HOOK),     wxEventType(wxEVT_LEFT_DOWN),
                                     wxEventType(wxEVT_LEFT_DCLICK),   wxEventType(wxEVT_RIGHT_DOWN),
                                     wxEventType(wxEVT_MIDDLE_DOWN),   wxEventType(wxEVT_RIGHT_DCLICK),
                                     wxEventType(wxEVT_MIDDLE_DCLICK), wxEventType(wxEVT_MOUSEWHEEL)};
  return std::find(kInputs.begin(), kInputs.end(), event.GetEventType()) != kInputs.end();
}

}  // namespace

ActionGate::ActionGate() {
  wxEvtHandler::AddFilter(this);
}

ActionGate::~ActionGate() {
  wxEvtHandler::RemoveFilter(this);
}

int ActionGate::FilterEvent(wxEvent& event) {
  return blocking_ && IsInput(event) ? Event_Processed : Event_Skip;
}

void ActionGate::BeginWork() {
  busy_ = true;
  blocking_ = true;
  work_began_ = Clock::now();
}

void ActionGate::DropPiledUpInput() {
  if (blocking_ && Clock::now() - work_began_ >= kNoticeable) Yield();
}

bool ActionGate::Perform(Form& form, const std::function<void()>& action) {
  Desktop& desktop = form.Screen();
  if (busy_ || desktop.Ended() || desktop.IsBlocked(form)) return false;
  BeginWork();
  RunOrEnd(desktop, [&] { desktop.Perform(action); });
  DropPiledUpInput();
  busy_ = false;
  blocking_ = false;
  return true;
}

void ActionGate::RunStart(UserInterface& screen, const std::function<void()>& start) {
  BeginWork();
  RunOrEnd(screen, start);
  DropPiledUpInput();
  busy_ = false;
  blocking_ = false;
}

void ActionGate::ProcessPendingEvents() {
  Yield();
  // Pictures are drawn at the screen's pace: once in a while it is waited for, so that a status really shows.
  if (Clock::now() - last_repaint_ < kRepaintPeriod) return;
  wxMilliSleep(kPicturePeriodMilliseconds);
  Yield();
  last_repaint_ = Clock::now();
}

ActionGate::NestedLoop::NestedLoop(ActionGate& gate, Allow allow)
    : gate_(gate), was_busy_(gate.busy_), was_blocking_(gate.blocking_) {
  gate_.DropPiledUpInput();
  gate_.busy_ = allow == Allow::kBoxOnly;
  gate_.blocking_ = false;
}

ActionGate::NestedLoop::~NestedLoop() {
  gate_.busy_ = was_busy_;
  gate_.blocking_ = was_blocking_;
  gate_.work_began_ = Clock::now();
}

}  // namespace veritane::platform
