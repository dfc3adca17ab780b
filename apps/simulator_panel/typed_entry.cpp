// Keeping typed text from being overwritten.
#include "apps/simulator_panel/typed_entry.h"

namespace veritane::simulator_panel {

namespace {

// How long a pause in typing may be.
constexpr int kTicksOfTyping = 5;

}  // namespace

void TypedEntry::Accept() {
  refusal_.clear();
  ticks_of_typing_ = kTicksOfTyping;
}

void TypedEntry::Refuse(const std::string& why) {
  refusal_ = why;
  ticks_of_typing_ = kTicksOfTyping;
}

void TypedEntry::Release() {
  refusal_.clear();
  ticks_of_typing_ = 0;
}

void TypedEntry::Tick() {
  if (ticks_of_typing_ > 0) --ticks_of_typing_;
}

bool TypedEntry::IsInHand() const {
  return !refusal_.empty() || (ticks_of_typing_ > 0 && box_.HasFocus());
}

void TypedEntry::ShowNote(const std::string& in_force, bool has_other_text) {
  if (!refusal_.empty()) {
    note_.SetCaption(refusal_ + " In force: " + in_force + ".");
  } else {
    note_.SetCaption(has_other_text && IsInHand() ? "Changed elsewhere to " + in_force + "." : "");
  }
}

}  // namespace veritane::simulator_panel
