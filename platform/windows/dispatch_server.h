// Objects of this program behind the system's late-bound interface.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <memory>

#include "platform/automation.h"

namespace veritane::platform {

// An interface of the object with one reference, which belongs to the caller. Each one keeps the process
// serving; the last one that goes posts the thread's quit message.
IDispatch* ServeObject(std::shared_ptr<ServedObject> object);

}  // namespace veritane::platform
