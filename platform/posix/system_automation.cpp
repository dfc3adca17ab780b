// A POSIX system has no automation between programs.
#include "platform/automation.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"

namespace veritane::platform {

namespace {

class NoAutomation : public Automation {
public:
  std::shared_ptr<AutomationObject> Create(const std::string& prog_id) override {
    throw RunTimeError(ErrorNumber::kCannotCreateObject, Text(TextId::kNoAutomation, {prog_id}));
  }
  // Without objects there is nothing to wait for.
  void SetWaiting(const AutomationWaiting&) override {}
};

}  // namespace

std::unique_ptr<Automation> SystemAutomation(const ShowWaiting&) {
  return std::make_unique<NoAutomation>();
}

bool SystemHasAutomation() {
  return false;
}

}  // namespace veritane::platform
