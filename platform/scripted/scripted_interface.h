// Plays the program's forms from a script of lines and tells in events, one JSON object each, what they show.
//
// The program runs as it does with a window. While a handler shows a message box, a file chooser or a modal
// form, it waits there, and the lines that follow answer it. A line that does not fit what is on screen is
// refused with its reason, and the script goes on. script_line.h says how a line is written, user_actions.h
// what a user can do.
//
//   ScriptedInterface screen(LinesOf(std::cin), JsonLines(std::cout));
//   Desktop desktop(screen);
//   const int exit_status = screen.Run(desktop, {.start = …, .setInstrument = …, .setClock = …});
#pragma once

#include "platform/date_time.h"
#include "platform/desktop.h"
#include "platform/scripted/script_line.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace veritane::platform {

class Control;

// Gives the script's next line without its line end, nothing when there is none.
using LineSource = std::function<std::optional<std::string>()>;
using EventSink = std::function<void(const nlohmann::ordered_json&)>;

// Lines of a stream, which must outlive the source. A byte-order mark at the beginning and carriage returns
// at line ends are dropped; error 57 when the stream fails.
LineSource LinesOf(std::istream& stream);

// Writes each event as one line of UTF-8 text, bytes that are none replaced by U+FFFD, and flushes it.
// Whether the stream took everything is for its owner to check at the end.
EventSink JsonLines(std::ostream& stream);

// The program behind the screen, as a script sees it.
struct ScriptedProgram {
  // Makes the program and shows its first form. A RunTimeError ends the run with exit status 1.
  std::function<void()> start;
  // Does what an `app` line says (its words, without "app") and returns the events to print. Throws
  // RefusedLine for words that it does not understand. Empty when there is no simulated instrument.
  std::function<std::vector<nlohmann::ordered_json>(const std::vector<std::string>& words)> setInstrument;
  // Sets the program's clock. Empty when it cannot be set.
  std::function<void(const DateTime& now)> setClock;
};

// Exit statuses of a run.
inline constexpr int kExitStoppedOnError = 1;
inline constexpr int kExitLineRefused = 2;

class ScriptedInterface : public UserInterface {
public:
  ScriptedInterface(LineSource next_line, EventSink sink);

  // Plays all lines, ends with the exit event, and returns its status. The program starts at the first line
  // that is neither `app`, `now` nor a comment.
  int Run(Desktop& desktop, ScriptedProgram program);

  // The parts of Run, for a caller that looks at the program between lines: Play returns when the source has
  // no more lines for now, and can be called again unless the run is over; Finish prints the exit event once.
  void Begin(Desktop& desktop, ScriptedProgram program);
  void Play();
  int Finish();

  // Whether the program has ended, or an error or a dialog without an answer has stopped the run.
  bool IsOver() const { return stopped_ || finished_ || (desktop_ != nullptr && desktop_->Ended()); }
  // What stopped the run, "" when nothing did.
  const std::string& StopReason() const { return stop_reason_; }

  void Attach(Form& form) override;
  void RunModal(Form& form) override;
  MessageAnswer ShowMessage(const Message& message) override;
  std::optional<std::string> ChooseFile(const FileChoice& choice) override;
  void ShowPointer(Pointer) override {}
  // The script waits for no window messages, and a line is read only when the program waits for its user.
  void ProcessPendingEvents() override {}
  void NotePrint(PrintKind kind, const std::string& file) override;
  // There is no clipboard: the script is told that the picture was asked for.
  void CopyPicture(const Control& control) override;
  std::optional<std::string> ClipboardText() override { return std::nullopt; }
  void NoteError(const RunTimeError& error) override;
  void End(int exit_status) override { exit_status_ = exit_status; }

private:
  struct Command;
  // Unwinds all handlers when the script cannot go on. No error of the program's: nothing may catch it.
  struct ScriptOver {};

  static const std::vector<Command>& Commands();

  void Emit(const nlohmann::ordered_json& event);
  void EmitStatus(const Control& label);
  void Stop(const std::string& reason);
  // Plays a line while a dialog is on screen; unwinds when there is none left to answer it.
  void PlayForDialog(const std::string& dialog);
  void PlayLine(const std::string& line);
  void StartProgram();
  void Execute(const ScriptLine& line);

  void Start();
  void Answer(const std::string& button);
  void PickFile(const std::string& path);
  void CancelFile();
  void SetClock(const std::string& text);
  void SetInstrument(const ScriptLine& line);
  void Get(const ScriptLine& line);

  // These refuse what is missing.
  Form& FindForm(const std::string& name) const;
  Control& FindControl(const std::string& name) const;
  // These refuse also what lies behind a message box or file chooser. The control is the line's first word.
  Form& UsersForm(const std::string& name) const;
  Control& UsersControl(const ScriptLine& line) const;
  void CheckNoDialog(const std::string& name) const;

  LineSource next_line_;
  EventSink sink_;
  Desktop* desktop_ = nullptr;
  ScriptedProgram program_;

  // What is on screen and waits for an answer; at most one of the two.
  const Message* message_ = nullptr;
  const FileChoice* file_choice_ = nullptr;
  std::optional<MessageAnswer> answer_;
  bool file_answered_ = false;
  std::optional<std::string> file_;

  bool started_ = false;
  bool line_refused_ = false;
  bool stopped_ = false;
  bool finished_ = false;
  int exit_status_ = 0;
  std::string stop_reason_;
};

}  // namespace veritane::platform
