// Objects of other programs through the system's late-bound interface.
#pragma once

#include "platform/automation.h"
#include "platform/windows/dispatch_value.h"
#include "platform/windows/message_filter.h"

#include <windows.h>

#include <oleauto.h>

#include <map>
#include <memory>
#include <string>

namespace veritane::platform {

class DispatchObject : public AutomationObject {
public:
  // Takes a reference of its own.
  DispatchObject(IDispatch* dispatch, std::shared_ptr<AutomationThread> thread);
  ~DispatchObject() override;
  DispatchObject(const DispatchObject&) = delete;
  DispatchObject& operator=(const DispatchObject&) = delete;

  AutomationValue Use(MemberUse use, std::string_view member,
                      std::span<const AutomationValue> arguments) override;

  IDispatch* Interface() const { return dispatch_; }

private:
  DISPID IdOf(const std::string& member);

  IDispatch* dispatch_;
  std::shared_ptr<AutomationThread> thread_;
  std::map<std::string, DISPID> ids_;
};

}  // namespace veritane::platform
