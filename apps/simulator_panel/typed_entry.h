// A box to type in whose text becomes a setting of the instrument, with the note beside it. Others may change
// the same setting; what somebody is just typing stays.
#pragma once

#include "platform/controls.h"

#include <string>

namespace veritane::simulator_panel {

class TypedEntry {
public:
  TypedEntry(platform::TextBox& box, platform::Label& note) : box_(box), note_(note) {}

  // The text was written, or could not be for this reason.
  void Accept();
  void Refuse(const std::string& why);
  // Nobody is at work here: the box may follow the setting again.
  void Release();
  // About a second has passed.
  void Tick();

  // Whether the text must stay as it is: it was refused, or typed a few seconds ago into the box that has the
  // focus.
  bool IsInHand() const;
  // Says beside the box why its text is not used, and the setting in force where that is another one.
  void ShowNote(const std::string& in_force, bool has_other_text);

private:
  platform::TextBox& box_;
  platform::Label& note_;
  std::string refusal_;
  int ticks_of_typing_ = 0;
};

}  // namespace veritane::simulator_panel
