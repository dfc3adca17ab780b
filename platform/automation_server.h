// Showing this program's objects to other programs.
#pragma once

#include "platform/automation.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace veritane::platform {

// What other programs create.
struct ServedClass {
  std::string progId;
  std::string classId;      // "{…}"
  std::string description;  // for people who look into the registry
};

// Serves one class until the last object that was handed out has gone, or End is called; everything happens
// on the calling thread.
class AutomationServer {
public:
  virtual ~AutomationServer() = default;

  // `ready` is called once other programs can create objects. Error 440 when the system does not let this
  // program serve.
  virtual void Serve(const ServedClass& served, std::shared_ptr<ServedObject> object,
                     const std::function<void()>& ready) = 0;
  // Ends Serve once the running call has been answered.
  virtual void End() = 0;
  // Tells callers for this long that the program is busy.
  virtual void RefuseCalls(std::chrono::milliseconds duration) = 0;
};

std::unique_ptr<AutomationServer> SystemAutomationServer();

// Names `command_line` as what starts the server of this class: for everybody, in the place of what the
// current user alone had, or for the current user where the system refuses that. Error 440 when the registry
// cannot be written, and when the ProgID belongs to another class: that program is not pushed aside.
void RegisterServer(const ServedClass& served, const std::string& command_line);

// Takes back all that RegisterServer wrote; nothing there is no error.
void UnregisterServer(const ServedClass& served);

}  // namespace veritane::platform
