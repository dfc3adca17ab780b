// The toolkit of a POSIX system initialises its own controls.
#include "platform/system/common_controls.h"

namespace veritane::platform {

void InitialiseCommonControls() {}

}  // namespace veritane::platform
