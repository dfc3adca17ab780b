// Values of automation as the system's variants, and the other way round.
#pragma once

#include "platform/automation.h"
#include "platform/windows/system_text.h"

#include <windows.h>

#include <oleauto.h>

#include <memory>
#include <string>
#include <string_view>

namespace veritane::platform {

// A text that belongs to the system's automation.
class AutomationText {
public:
  explicit AutomationText(std::string_view utf8);
  ~AutomationText() { SysFreeString(text_); }
  AutomationText(const AutomationText&) = delete;
  AutomationText& operator=(const AutomationText&) = delete;

  // Hands the text over to the caller.
  BSTR Release();

private:
  BSTR text_;
};

// A variant that lets go of what it holds.
class Variant {
public:
  Variant() { VariantInit(&value_); }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT* Get() { return &value_; }
  const VARIANT& operator*() const { return value_; }

private:
  VARIANT value_;
};

// How objects travel; the client and the server of a call see them from different sides.
class ObjectExchange {
public:
  virtual ~ObjectExchange() = default;
  // The object's interface, with a reference for the receiver. Error 13 for an object that cannot travel.
  virtual IDispatch* Outgoing(const std::shared_ptr<AutomationObject>& object) = 0;
  // The object behind an interface, which is not null.
  virtual std::shared_ptr<AutomationObject> Incoming(IDispatch* dispatch) = 0;
};

// Sets an empty variant. Error 7 when the system has no memory for it.
void ToVariant(const AutomationValue& value, ObjectExchange& objects, VARIANT* variant);

// Numbers of every width become one of the program's, dates and currencies text as the system writes them;
// the lower bound of an array is kept. Error 13 for arrays of more than one dimension or of anything but
// numbers.
AutomationValue FromVariant(const VARIANT& variant, ObjectExchange& objects);

}  // namespace veritane::platform
