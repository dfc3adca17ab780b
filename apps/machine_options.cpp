// Reading the options of the machine.
#include "apps/machine_options.h"

namespace veritane::apps {

std::filesystem::path RootOption(const CommandLine& line) {
  const auto root = line.Option(kRootOption);
  return root ? std::filesystem::path(*root) : platform::DefaultRoot();
}

void SetClock(const CommandLine& line, platform::SystemMachine& machine) {
  const auto now = line.Option(kNowOption);
  if (!now) return;
  const auto moment = platform::ParseIsoDateTime(*now);
  if (!moment) throw UsageError("\"" + *now + "\" is no time");
  machine.clock.Set(*moment);
}

}  // namespace veritane::apps
