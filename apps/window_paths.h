// The paths of a machine as the toolkit's file choosers take and give them.
#pragma once

#include "platform/system/native_path.h"
#include "platform/system/system_machine.h"
#include "platform/wx/wx_user_interface.h"

#include <string>

namespace veritane::apps {

// The machine outlives what is returned.
inline platform::PathMapping PathsOf(const platform::SystemMachine& machine) {
  return {
      .toNative = [&paths = machine.paths](
                      const std::string& path) { return platform::Utf8Of(paths.ToNative(path)); },
      .toWindows = [&paths = machine.paths](
                       const std::string& path) { return paths.ToWindows(platform::PathFromUtf8(path)); }};
}

}  // namespace veritane::apps
