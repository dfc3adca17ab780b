// The window: draws the program's forms with wxWidgets and passes on what the user does.
#pragma once

#include "platform/desktop.h"
#include "platform/wx/action_gate.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class wxDialog;
class wxWindow;

namespace veritane::platform {

class FormWindow;

// Between the paths of the program (Windows paths) and those of the machine.
struct PathMapping {
  std::function<std::string(const std::string& windows_path)> toNative;
  std::function<std::string(const std::string& native_path)> toWindows;
};

// Lives inside a running wxWidgets application; RunInWindow makes one. The forms must outlive it, or at least
// the event loop. The form attached first is the main window.
class WxUserInterface : public UserInterface {
public:
  explicit WxUserInterface(PathMapping paths);
  ~WxUserInterface() override;

  // Dialogs become windows when they are shown first, so that the program starts without them.
  void Attach(Form& form) override;
  void RunModal(Form& form) override;
  MessageAnswer ShowMessage(const Message& message) override;
  std::optional<std::string> ChooseFile(const FileChoice& choice) override;
  void ShowPointer(Pointer pointer) override;
  void ProcessPendingEvents() override;
  // Where a file was written the user is told of it; a printer speaks for itself.
  void NotePrint(PrintKind kind, const std::string& file) override;
  void CopyPicture(const Control& control) override;
  std::optional<std::string> ClipboardText() override;
  // Writes the error to standard error; the message box comes from the dispatcher.
  void NoteError(const RunTimeError& error) override;
  // Closes all loops. Message boxes from now on answer themselves with the choice that changes nothing.
  void End(int exit_status) override;

  bool Ended() const { return ended_; }
  int ExitStatus() const { return exit_status_; }

  // Runs the program's start as if it were a handler: nothing else can begin until it is done.
  void RunStart(const std::function<void()>& start);

private:
  wxWindow* MainWindow() const;
  // The window that a box belongs to: the one the user looks at.
  wxWindow* FrontWindow() const;
  FormWindow* WindowOf(const Form& form) const;
  void MakeWindow(Form& form);

  PathMapping paths_;
  ActionGate gate_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  std::vector<wxDialog*> open_boxes_;
  bool is_hourglass_ = false;
  bool ended_ = false;
  int exit_status_ = 0;
  // The forms may outlive this; their watchers ask this whether it is still there.
  std::shared_ptr<WxUserInterface*> alive_ = std::make_shared<WxUserInterface*>(this);
};

// Starts wxWidgets, calls `start`, serves the user until the program ends, and returns the exit status.
// `start` makes the forms, attaches them (Desktop::AttachForms) and begins the program; what it makes must
// live until this returns.
int RunInWindow(int argc, char** argv, PathMapping paths, std::function<void(WxUserInterface&)> start);

}  // namespace veritane::platform
