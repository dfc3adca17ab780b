// Scripts from C++ and their events.
#include "tests/support/script_run.h"

#include <stdexcept>

namespace veritane::platform {

using nlohmann::ordered_json;

std::vector<ordered_json> Events::Named(std::string_view event) const {
  std::vector<ordered_json> found;
  for (const ordered_json& each : events_) {
    if (each.value("event", "") == event) found.push_back(each);
  }
  return found;
}

ordered_json Events::Last(std::string_view event) const {
  const std::vector<ordered_json> found = Named(event);
  return found.empty() ? ordered_json() : found.back();
}

ordered_json Events::LastGot(std::string_view control) const {
  for (auto each = events_.rbegin(); each != events_.rend(); ++each) {
    if (each->value("control", "") == control) return *each;
  }
  return {};
}

std::vector<std::string> Events::Texts(std::string_view event, const char* key) const {
  std::vector<std::string> texts;
  for (const ordered_json& each : Named(event)) texts.push_back(each.at(key).get<std::string>());
  return texts;
}

ScriptRun::ScriptRun()
    : interface_([this] { return NextLine(); },
                 [this](const ordered_json& event) { events_.push_back(event); }),
      desktop_(interface_) {}

std::optional<std::string> ScriptRun::NextLine() {
  while (!steps_.empty()) {
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    if (const auto* line = std::get_if<std::string>(&step)) return *line;
    std::get<std::function<void()>>(step)();
  }
  return std::nullopt;
}

Events ScriptRun::Lines(std::vector<Step> steps) {
  if (interface_.IsOver()) {
    throw std::logic_error("The run is over: " + (interface_.StopReason().empty() ? "the program has ended."
                                                                                  : interface_.StopReason()));
  }
  if (!begun_) interface_.Begin(desktop_, program);
  begun_ = true;
  const auto first = static_cast<std::ptrdiff_t>(events_.size());
  steps_.assign(std::make_move_iterator(steps.begin()), std::make_move_iterator(steps.end()));
  interface_.Play();
  if (interface_.IsOver()) interface_.Finish();
  return Events({events_.begin() + first, events_.end()});
}

ordered_json ScriptRun::Get(const std::string& control) {
  const Events events = Lines({"get " + control});
  if (!events.Refusals().empty()) throw std::logic_error(events.Refusals().back());
  return events.All().back();
}

}  // namespace veritane::platform
