// Finding the member that is meant.
#include "simulator/automation_object.h"

#include "platform/run_time_error.h"
#include "platform/windows_path.h"

#include <algorithm>

namespace veritane::simulator {

using platform::MemberUse;

void SimulatorObject::Add(acquisition::Member member, std::size_t arguments,
                          std::function<platform::AutomationValue(Arguments)> action) {
  const acquisition::ServerMember& named = (*members_)[member];
  served_.push_back(
      {platform::UpperCase(named.name), named.use == MemberUse::kPut, arguments, std::move(action)});
  if (std::ranges::find(names_, named.name) == names_.end()) names_.push_back(named.name);
}

platform::AutomationValue SimulatorObject::Use(MemberUse use, std::string_view member,
                                               std::span<const platform::AutomationValue> arguments) {
  const std::string name = platform::UpperCase(member);
  bool known = false;
  for (const Served& served : served_) {
    // Reading a property and calling a method are one and the same to late-bound callers.
    if (served.name != name || served.put != (use == MemberUse::kPut)) continue;
    if (served.arguments == arguments.size()) return served.action(arguments);
    known = true;
  }
  if (known) {
    throw platform::RunTimeError(platform::kWrongArgumentCount,
                                 "Wrong number of arguments: " + std::string(member));
  }
  throw platform::RunTimeError(platform::kNoSuchMember,
                               "Object doesn't support this property or method: " + std::string(member));
}

}  // namespace veritane::simulator
