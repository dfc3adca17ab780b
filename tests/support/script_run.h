// A script played from C++ lines instead of a file, and its events for a test to look at.
//
//   ScriptRun run;
//   Program program(run.Screen(), …);
//   run.program.start = [&] { program.Start(); };
//   const Events events = run.Lines({"click frmVeritane.cmdSample",
//                                    "type frmSamp.txtSampName \"Lot 7\"",
//                                    "click frmSamp.cmdProductIDOkay",
//                                    [&] { EXPECT_FALSE(files.Exists(sample)); },  // while the box is open
//                                    "answer OK"});
//   EXPECT_THAT(events.Messages(), ElementsAre(" A new Background is required.…"));
//   EXPECT_EQ(run.Get("frmVeritane.lblResult")["caption"], "…");
//   EXPECT_EQ(run.Finish(), 0);
#pragma once

#include "platform/desktop.h"
#include "platform/scripted/scripted_interface.h"

#include <nlohmann/json.hpp>

#include <deque>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace veritane::platform {

// Events in the order they happened.
class Events {
public:
  Events() = default;
  explicit Events(std::vector<nlohmann::ordered_json> events) : events_(std::move(events)) {}

  const std::vector<nlohmann::ordered_json>& All() const { return events_; }
  // Those of one kind, e.g. "form".
  std::vector<nlohmann::ordered_json> Named(std::string_view event) const;
  // The last of its kind; null when there was none.
  nlohmann::ordered_json Last(std::string_view event) const;
  // The last answer to `get` for a control, named as the program writes it; null when there was none.
  nlohmann::ordered_json LastGot(std::string_view control) const;

  // The texts of all message boxes, status lines, and the reasons of all refused lines.
  std::vector<std::string> Messages() const { return Texts("message", "text"); }
  std::vector<std::string> Statuses() const { return Texts("status", "text"); }
  std::vector<std::string> Refusals() const { return Texts("refused", "reason"); }

private:
  std::vector<std::string> Texts(std::string_view event, const char* key) const;

  std::vector<nlohmann::ordered_json> events_;
};

class ScriptRun {
public:
  // A script line, or something to do when the script comes there, e.g. while a message box is open.
  using Step = std::variant<std::string, std::function<void()>>;

  ScriptRun();

  // What the run starts and sets; fill it in before the first line.
  ScriptedProgram program;

  Desktop& Screen() { return desktop_; }
  ScriptedInterface& Interface() { return interface_; }

  // Plays the steps and returns their events. Can be called again while the program runs; every dialog must
  // be answered within the call, else the run is over with exit status 1. When the run is over, the events
  // end with the exit event, and a further call throws std::logic_error.
  Events Lines(std::vector<Step> steps);
  // Plays one `get` and returns its answer. Throws std::logic_error when it was refused.
  nlohmann::ordered_json Get(const std::string& control);
  // Ends the run and returns its exit status.
  int Finish() { return interface_.Finish(); }

  // All events from the beginning.
  Events AllEvents() const { return Events(events_); }

private:
  std::optional<std::string> NextLine();

  std::deque<Step> steps_;
  std::vector<nlohmann::ordered_json> events_;
  ScriptedInterface interface_;
  Desktop desktop_;
  bool begun_ = false;
};

}  // namespace veritane::platform
