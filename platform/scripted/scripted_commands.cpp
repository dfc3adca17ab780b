// The commands of a script, one table.
#include "platform/control.h"
#include "platform/form.h"
#include "platform/run_time_error.h"
#include "platform/scripted/control_report.h"
#include "platform/scripted/scripted_interface.h"
#include "platform/scripted/user_actions.h"
#include "platform/windows_path.h"

namespace veritane::platform {

struct ScriptedInterface::Command {
  std::string_view name;
  std::size_t fewestWords;
  std::size_t mostWords;
  // The whole line, as a refusal shows it.
  std::string_view usage;
  void (*run)(ScriptedInterface& screen, const ScriptLine& line);
};

namespace {

constexpr std::size_t kAnyNumber = std::string::npos;

std::string_view TextOf(const ScriptLine& line, std::size_t word) {
  return line.words[word].text;
}

}  // namespace

const std::vector<ScriptedInterface::Command>& ScriptedInterface::Commands() {
  using Screen = ScriptedInterface;
  using Line = ScriptLine;
  static const std::vector<Command> commands = {
      {"start", 0, 0, "start", [](Screen& screen, const Line&) { screen.Start(); }},
      {"click", 1, 1, "click F.C",
       [](Screen& screen, const Line& line) { Click(screen.UsersControl(line)); }},
      {"type", 2, 2, "type F.C \"text\"",
       [](Screen& screen, const Line& line) { Type(screen.UsersControl(line), line.words[1].text); }},
      {"set", 2, 2, "set F.C \"text\"",
       [](Screen& screen, const Line& line) { Paste(screen.UsersControl(line), line.words[1].text); }},
      {"highlight", 3, 3, "highlight F.C START LENGTH",
       [](Screen& screen, const Line& line) {
         Highlight(screen.UsersControl(line), ParseWholeNumber(TextOf(line, 1), "a start"),
                   ParseWholeNumber(TextOf(line, 2), "a length"));
       }},
      {"key", 2, 2, "key F.C Enter",
       [](Screen& screen, const Line& line) { PressKey(screen.UsersControl(line), line.words[1].text); }},
      {"choose", 2, 2, "choose F.C \"item\" (or #index)",
       [](Screen& screen, const Line& line) { Choose(screen.UsersControl(line), line.words[1]); }},
      {"tab", 2, 2, "tab F.C INDEX",
       [](Screen& screen, const Line& line) {
         ShowTab(screen.UsersControl(line), ParseWholeNumber(TextOf(line, 1), "a tab's index"));
       }},
      {"row", 2, 2, "row F.C INDEX",
       [](Screen& screen, const Line& line) {
         GoToRow(screen.UsersControl(line), ParseWholeNumber(TextOf(line, 1), "a row's index"));
       }},
      {"answer", 1, 1, "answer OK (Cancel, Yes, No)",
       [](Screen& screen, const Line& line) { screen.Answer(line.words[0].text); }},
      {"file", 1, 1, "file \"C:\\…\"",
       [](Screen& screen, const Line& line) { screen.PickFile(line.words[0].text); }},
      {"cancel", 0, 0, "cancel", [](Screen& screen, const Line&) { screen.CancelFile(); }},
      {"close", 1, 1, "close F",
       [](Screen& screen, const Line& line) { Close(screen.UsersForm(line.words[0].text)); }},
      {"get", 1, 2, "get F.C (or: get F.C points)",
       [](Screen& screen, const Line& line) { screen.Get(line); }},
      {"list", 0, 0, "list",
       [](Screen& screen, const Line&) { screen.Emit(DescribeScreen(*screen.desktop_)); }},
      {"app", 1, kAnyNumber, "app NAME VALUE…",
       [](Screen& screen, const Line& line) { screen.SetInstrument(line); }},
      {"now", 1, 1, "now \"2026-11-21T10:59:00\"",
       [](Screen& screen, const Line& line) { screen.SetClock(line.words[0].text); }},
  };
  return commands;
}

void ScriptedInterface::Execute(const ScriptLine& line) {
  for (const Command& command : Commands()) {
    if (command.name != line.command) continue;
    if (line.words.size() < command.fewestWords || line.words.size() > command.mostWords) {
      throw RefusedLine("Write it as: " + std::string(command.usage));
    }
    return command.run(*this, line);
  }
  throw RefusedLine("There is no command \"" + line.command + "\".");
}

void ScriptedInterface::Start() {
  if (started_) throw RefusedLine("The program has started already.");
  StartProgram();
}

void ScriptedInterface::Answer(const std::string& button) {
  if (message_ == nullptr) throw RefusedLine("There is no message box to answer.");
  std::string buttons;
  for (const MessageAnswer known : ButtonsOf(message_->buttons)) {
    if (UpperCase(ButtonText(known)) == UpperCase(button)) {
      answer_ = known;
      return;
    }
    buttons += (buttons.empty() ? "" : ", ") + ButtonText(known);
  }
  throw RefusedLine("The " + DialogName(*message_) + " has no button \"" + button + "\", only: " + buttons +
                    ".");
}

void ScriptedInterface::PickFile(const std::string& path) {
  if (file_choice_ == nullptr) throw RefusedLine("There is no file chooser to answer.");
  if (path.empty()) throw RefusedLine("A file chooser takes no empty name: use cancel.");
  file_ = path;
  file_answered_ = true;
}

void ScriptedInterface::CancelFile() {
  if (file_choice_ == nullptr) throw RefusedLine("There is no file chooser to cancel.");
  file_answered_ = true;
}

void ScriptedInterface::SetClock(const std::string& text) {
  const std::optional<DateTime> now = ParseIsoDateTime(text);
  if (!now) throw RefusedLine("\"" + text + "\" is no date and time like 2026-11-21T10:59:00.");
  if (!program_.setClock) throw RefusedLine("The clock cannot be set here.");
  try {
    program_.setClock(*now);
  } catch (const RunTimeError& error) {
    // The line's fault, and none of the handler that waits for an answer.
    throw RefusedLine("\"" + text + "\": " + error.what() + ".");
  }
}

void ScriptedInterface::SetInstrument(const ScriptLine& line) {
  if (!program_.setInstrument) throw RefusedLine("There is no simulated instrument here.");
  std::vector<std::string> words;
  for (const ScriptWord& word : line.words) words.push_back(word.text);
  try {
    for (const nlohmann::ordered_json& event : program_.setInstrument(words)) Emit(event);
  } catch (const RunTimeError& error) {
    throw RefusedLine("The instrument could not be set: " + std::string(error.what()));
  }
}

void ScriptedInterface::Get(const ScriptLine& line) {
  const bool points = line.words.size() == 2;
  if (points && line.words[1].text != "points") {
    throw RefusedLine("Only points can be asked for, not \"" + line.words[1].text + "\".");
  }
  const Control& control = FindControl(line.words[0].text);
  if (points && control.Kind() != ControlKind::kChart) {
    throw RefusedLine(FullName(control) + " is a " + TypeName(control) + " and has no points.");
  }
  Emit(DescribeControl(control, points));
}

Form& ScriptedInterface::FindForm(const std::string& name) const {
  Form* form = desktop_->Find(name);
  if (form == nullptr) throw RefusedLine("The form " + name + " is missing.");
  return *form;
}

Control& ScriptedInterface::FindControl(const std::string& name) const {
  const std::size_t point = name.find('.');
  if (point == std::string::npos) throw RefusedLine("\"" + name + "\" is not written as form.control.");
  const Form& form = FindForm(name.substr(0, point));
  Control* control = form.Find(name.substr(point + 1));
  if (control == nullptr) throw RefusedLine(name + " is missing: " + form.Name() + " has no such control.");
  return *control;
}

void ScriptedInterface::CheckNoDialog(const std::string& name) const {
  if (message_ != nullptr) throw RefusedLine(name + " is behind the " + DialogName(*message_) + ".");
  if (file_choice_ != nullptr) throw RefusedLine(name + " is behind the " + DialogName(*file_choice_) + ".");
}

Control& ScriptedInterface::UsersControl(const ScriptLine& line) const {
  Control& control = FindControl(line.words[0].text);
  CheckNoDialog(FullName(control));
  return control;
}

Form& ScriptedInterface::UsersForm(const std::string& name) const {
  Form& form = FindForm(name);
  CheckNoDialog(form.Name());
  return form;
}

}  // namespace veritane::platform
