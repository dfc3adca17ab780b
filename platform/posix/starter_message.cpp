// A program with a window has standard outputs like any other.
#include "platform/system/starter_message.h"

namespace veritane::platform {

void ShowToStarter(const std::string&) {}

}  // namespace veritane::platform
