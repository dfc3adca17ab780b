// Lets one action of the user run at a time. While its handler works, clicks and keys are thrown away instead
// of waiting to start another one.
#pragma once

#include "platform/desktop.h"

#include <wx/eventfilter.h>

#include <chrono>
#include <functional>

namespace veritane::platform {

class Form;

class ActionGate : private wxEventFilter {
public:
  ActionGate();
  ~ActionGate() override;

  // Runs something the user did on `form`, unless a handler is at work, the form lies under a modal one, or
  // the program has ended. Returns whether it ran. An exception that is no RunTimeError is shown in one
  // message box and ends the program with status 1.
  bool Perform(Form& form, const std::function<void()>& action);

  // Runs the program's own start in the place of a handler; any exception ends the program in the same way.
  void RunStart(UserInterface& screen, const std::function<void()>& start);

  // Repaints and answers the system, while input is thrown away.
  void ProcessPendingEvents();

  // A loop inside a handler: input counts again, and what had piled up before is gone. With kForms the user
  // may act on forms, with kBoxOnly just answer the box.
  enum class Allow { kForms, kBoxOnly };
  class NestedLoop {
  public:
    NestedLoop(ActionGate& gate, Allow allow);
    ~NestedLoop();
    NestedLoop(const NestedLoop&) = delete;
    NestedLoop& operator=(const NestedLoop&) = delete;

  private:
    ActionGate& gate_;
    const bool was_busy_;
    const bool was_blocking_;
  };

private:
  using Clock = std::chrono::steady_clock;

  int FilterEvent(wxEvent& event) override;
  void BeginWork();
  // Throws away the input that came while the handler did not look; a short handler has kept nobody waiting.
  void DropPiledUpInput();

  bool busy_ = false;
  bool blocking_ = false;
  Clock::time_point work_began_;
  Clock::time_point last_repaint_;
};

}  // namespace veritane::platform
