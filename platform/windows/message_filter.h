// How the program behaves while a call to another program is on its way: busy servers are asked again, the
// windows go on being drawn, and keys and clicks lead to nothing.
#pragma once

#include "platform/automation.h"

#include <windows.h>

#include <objbase.h>

#include <functional>
#include <memory>

namespace veritane::platform {

class MessageFilter;

// The thread's part in automation: entered by the constructor and left by the destructor, which must run on
// the same thread. Whoever holds objects of other programs holds this too.
class AutomationThread {
public:
  // Error 440 when the thread has taken another part already.
  explicit AutomationThread(ShowWaiting show);
  ~AutomationThread();
  AutomationThread(const AutomationThread&) = delete;
  AutomationThread& operator=(const AutomationThread&) = delete;

  void SetWaiting(const AutomationWaiting& waiting);

  // Makes a call, and makes it again as long as the server is busy, within the time that is set.
  HRESULT Carry(const std::function<HRESULT()>& call);

private:
  MessageFilter* filter_;
};

}  // namespace veritane::platform
