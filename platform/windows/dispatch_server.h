// Objects of this program behind the system's late-bound interface.
#pragma once

#include "platform/automation.h"

#include <windows.h>

#include <oleauto.h>

#include <memory>

namespace veritane::platform {

// An interface of the object with one reference, which belongs to the caller. Each one keeps the process
// serving; the last one that goes posts the thread's quit message.
IDispatch* ServeObject(std::shared_ptr<ServedObject> object);

}  // namespace veritane::platform
