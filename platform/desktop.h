// The screen as the program sees it: its forms, message boxes, file choosers, the pointer, and the dispatcher
// that runs what the user does. A UserInterface behind it draws all that, or plays it from a script.
#pragma once

#include "platform/printer.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace veritane::platform {

class Control;
class Form;
class RunTimeError;

enum class MessageIcon { kNone, kCritical, kExclamation, kInformation, kQuestion };
enum class MessageButtons { kOk, kOkCancel, kYesNo };
enum class MessageAnswer { kOk, kCancel, kYes, kNo };

struct Message {
  std::string text;
  std::string title;
  MessageIcon icon = MessageIcon::kNone;
  MessageButtons buttons = MessageButtons::kOk;
};

// The buttons of a box from left to right.
std::vector<MessageAnswer> ButtonsOf(MessageButtons buttons);
// The answer where nobody is asked: the one that changes nothing.
MessageAnswer QuietAnswer(MessageButtons buttons);

struct FileChoice {
  std::string title;
  // "(*.clm)|*.clm": a description and a pattern, joined by "|".
  std::string filter;
  // Windows path of the folder to begin in.
  std::string folder;
};

enum class Pointer { kDefault, kHourglass, kCrosshair };

// Draws forms, or plays them. All calls come from the one user-interface thread.
class UserInterface {
public:
  virtual ~UserInterface() = default;

  // A form and its controls exist from now on, hidden; called once the form's constructor is done.
  virtual void Attach(Form& form) = 0;
  // Runs the form as a modal dialog until it is hidden.
  virtual void RunModal(Form& form) = 0;
  // Shows a message box and returns what was answered.
  virtual MessageAnswer ShowMessage(const Message& message) = 0;
  // Returns the Windows path of the chosen file, nothing on Cancel.
  virtual std::optional<std::string> ChooseFile(const FileChoice& choice) = 0;
  virtual void ShowPointer(Pointer pointer) = 0;
  // Lets pending window messages run.
  virtual void ProcessPendingEvents() = 0;
  // Something was printed: into the file of this Windows path, or by a printer when it is "".
  virtual void NotePrint(PrintKind kind, const std::string& file) = 0;
  // Puts a picture of what a control shows, and of everything in it, on the clipboard; error 57 when that
  // fails.
  virtual void CopyPicture(const Control& control) = 0;
  // The text on the clipboard, nothing when it holds none.
  virtual std::optional<std::string> ClipboardText() = 0;
  // A run-time error reached the dispatcher; its message box follows.
  virtual void NoteError(const RunTimeError& error) = 0;
  // The program ends: no further events.
  virtual void End(int exit_status) = 0;
};

class Desktop {
public:
  explicit Desktop(UserInterface& user_interface) : user_interface_(user_interface) {}

  // Runs something the user did. A RunTimeError that it does not handle is shown in one message box, after
  // the recovery set with OnError has put the screen back in order. Nothing runs once the program has ended.
  void Perform(const std::function<void()>& action);

  // `snapshot` is called before each action and gives what restores the screen should the action fail.
  using Restore = std::function<void()>;
  void OnError(std::function<Restore()> snapshot) { snapshot_ = std::move(snapshot); }

  MessageAnswer ShowMessage(const Message& message);
  std::optional<std::string> ChooseFile(const FileChoice& choice);

  // What Print prints with; it outlives the last print.
  void UsePrinter(Printer& printer) { printer_ = &printer; }
  // Prints, and lets the user interface tell where the print went. Errors as the printer's; 57 without one.
  void Print(Printout& printout);
  void CopyPicture(const Control& control) { user_interface_.CopyPicture(control); }
  std::optional<std::string> ClipboardText() { return user_interface_.ClipboardText(); }

  Pointer MousePointer() const { return pointer_; }
  void SetMousePointer(Pointer pointer);

  void ProcessPendingEvents() { user_interface_.ProcessPendingEvents(); }

  // Ends the program after the running handler.
  void End(int exit_status);
  bool Ended() const { return ended_; }

  // Draws every form that exists; called once, when all forms have been made.
  void AttachForms();

  const std::vector<Form*>& Forms() const { return forms_; }
  // Names are compared without regard to case; nullptr when there is none of this name.
  Form* Find(const std::string& form_name) const;
  // The modal form that lies over all others, nullptr when there is none on screen.
  Form* FrontModalForm() const;
  // Whether a modal form lies over `form`.
  bool IsBlocked(const Form& form) const;

private:
  friend class Form;

  UserInterface& user_interface_;
  std::vector<Form*> forms_;
  std::vector<Form*> modal_forms_;
  std::function<Restore()> snapshot_;
  Printer* printer_ = nullptr;
  Pointer pointer_ = Pointer::kDefault;
  bool ended_ = false;
};

}  // namespace veritane::platform
