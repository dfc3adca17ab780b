// Playing lines: start-up, dialogs that wait for an answer, and the end of a run.
#include "platform/scripted/scripted_interface.h"

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/run_time_error.h"
#include "platform/scripted/control_report.h"
#include "platform/texts.h"
#include "platform/utf8.h"

#include <istream>
#include <ostream>

namespace veritane::platform {

using nlohmann::ordered_json;

namespace {

// The line of the status window is reported by itself, each time it comes on screen and when it changes
// there.
const std::string kStatusLabel = "lblStatus";

const char* KindText(PrintKind kind) {
  switch (kind) {
    case PrintKind::kChart:
      return "chart";
    case PrintKind::kText:
      return "text";
    case PrintKind::kTemplate:
      break;
  }
  return "template";
}

}  // namespace

LineSource LinesOf(std::istream& stream) {
  return [&stream, is_first = true]() mutable -> std::optional<std::string> {
    std::string line;
    if (!std::getline(stream, line)) {
      if (stream.bad()) throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kScriptUnreadable));
      return std::nullopt;
    }
    if (is_first && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    is_first = false;
    if (line.ends_with('\r')) line.pop_back();
    return line;
  };
}

EventSink JsonLines(std::ostream& stream) {
  return [&stream](const ordered_json& event) {
    stream << event.dump(-1, ' ', false, ordered_json::error_handler_t::replace) << '\n' << std::flush;
  };
}

ScriptedInterface::ScriptedInterface(LineSource next_line, EventSink sink)
    : next_line_(std::move(next_line)), sink_(std::move(sink)) {}

int ScriptedInterface::Run(Desktop& desktop, ScriptedProgram program) {
  Begin(desktop, std::move(program));
  Play();
  return Finish();
}

void ScriptedInterface::Begin(Desktop& desktop, ScriptedProgram program) {
  desktop_ = &desktop;
  program_ = std::move(program);
}

void ScriptedInterface::Play() {
  try {
    while (!IsOver()) {
      const std::optional<std::string> line = next_line_();
      if (!line) return;
      PlayLine(*line);
    }
  } catch (const ScriptOver&) {
    // Stop has noted why.
  } catch (const RunTimeError& error) {
    NoteError(error);
    Stop("Run-time error " + std::to_string(error.Number()) + ": " + error.what());
  } catch (const std::exception& error) {
    Emit({{"event", "error"}, {"number", nullptr}, {"text", error.what()}});
    Stop(std::string("Unexpected error: ") + error.what());
  }
}

int ScriptedInterface::Finish() {
  if (!finished_) {
    if (exit_status_ == 0 && line_refused_) exit_status_ = kExitLineRefused;
    ordered_json event = {{"event", "exit"}, {"status", exit_status_}};
    if (stopped_) event["reason"] = stop_reason_;
    sink_(event);
    finished_ = true;
  }
  return exit_status_;
}

void ScriptedInterface::Emit(const ordered_json& event) {
  // Forms that are hidden while a stopped run unwinds, or after its end, are no events of the program.
  if (!stopped_ && !finished_) sink_(event);
}

void ScriptedInterface::Stop(const std::string& reason) {
  if (stopped_) return;
  stopped_ = true;
  stop_reason_ = reason;
  exit_status_ = kExitStoppedOnError;
}

void ScriptedInterface::PlayForDialog(const std::string& dialog) {
  const std::optional<std::string> line = stopped_ ? std::nullopt : next_line_();
  if (!line) {
    Stop("The script ended while the " + dialog + " was open.");
    throw ScriptOver();
  }
  PlayLine(*line);
}

void ScriptedInterface::PlayLine(const std::string& line) {
  const std::string_view command = FirstWord(line);
  if (command.empty() || command.starts_with('#')) return;
  if (command != "app" && command != "now" && command != "start") StartProgram();
  if (IsOver()) return;
  try {
    Execute(ParseScriptLine(line));
  } catch (const RefusedLine& refused) {
    line_refused_ = true;
    Emit({{"event", "refused"}, {"line", line}, {"reason", refused.what()}});
  }
}

void ScriptedInterface::StartProgram() {
  if (started_) return;
  started_ = true;
  if (program_.start) program_.start();
}

void ScriptedInterface::NotePrint(PrintKind kind, const std::string& file) {
  Emit({{"event", "print"}, {"kind", KindText(kind)}, {"file", file}});
}

void ScriptedInterface::CopyPicture(const Control& control) {
  Emit({{"event", "picture"}, {"control", FullName(control)}});
}

void ScriptedInterface::EmitStatus(const Control& label) {
  Emit({{"event", "status"}, {"text", label.Caption()}});
}

void ScriptedInterface::Attach(Form& form) {
  form.Watch([this, &form](Form::Change change) {
    if (change != Form::Change::kCaption) Emit(FormEvent(form));
    if (change == Form::Change::kShown && form.Name() == kStatusForm) EmitStatus(*form.Find(kStatusLabel));
  });
  for (Control* control : form.Controls()) {
    if (control->Kind() == ControlKind::kFrame && control->EnclosingFrame() == nullptr) {
      control->Watch([this, control](Property property) {
        if (property != Property::kVisible || !control->Owner().Shown()) return;
        Emit({{"event", "panel"}, {"name", control->Name()}, {"shown", control->Visible()}});
      });
    }
    if (form.Name() == kStatusForm && control->Name() == kStatusLabel) {
      control->Watch([this, control](Property property) {
        if (property == Property::kCaption && control->Owner().Shown()) EmitStatus(*control);
      });
    }
  }
}

void ScriptedInterface::RunModal(Form& form) {
  while (form.Shown() && !IsOver()) PlayForDialog("modal form " + form.Name());
  if (stopped_) throw ScriptOver();
}

MessageAnswer ScriptedInterface::ShowMessage(const Message& message) {
  Emit(MessageEvent(message));
  // Nobody is there any more to agree to anything.
  if (desktop_ != nullptr && desktop_->Ended()) return QuietAnswer(message.buttons);
  answer_.reset();
  message_ = &message;
  while (!answer_) PlayForDialog(DialogName(message));
  message_ = nullptr;
  return *answer_;
}

std::optional<std::string> ScriptedInterface::ChooseFile(const FileChoice& choice) {
  Emit(FileDialogEvent(choice));
  if (desktop_ != nullptr && desktop_->Ended()) return std::nullopt;
  file_answered_ = false;
  file_.reset();
  file_choice_ = &choice;
  while (!file_answered_) PlayForDialog(DialogName(choice));
  file_choice_ = nullptr;
  return file_;
}

void ScriptedInterface::NoteError(const RunTimeError& error) {
  Emit({{"event", "error"}, {"number", error.Number()}, {"text", error.what()}});
}

}  // namespace veritane::platform
